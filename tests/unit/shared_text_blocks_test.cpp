// Texts carved from shared blocks: they read and share like texts of their
// own, a block lives until its last text and its maker let go, and a text
// longer than a block gets an allocation of its own.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/shared_text.h"

namespace qs::test {
namespace {

using ui::SharedText;
using ui::TextBlocks;

TEST(SharedTextBlocks, CarvedTextsReadAsGivenAndCountTheirHolders) {
    TextBlocks blocks;
    const SharedText empty(blocks, L"");
    const SharedText name(blocks, L"Item00042");
    const SharedText target(blocks, L"C:\\Bench\\Programs\\p00042.exe");
    EXPECT_EQ(empty.Text(), L"");
    EXPECT_EQ(name.Text(), L"Item00042");
    EXPECT_EQ(target.Text(), L"C:\\Bench\\Programs\\p00042.exe");
    {
        const SharedText share = name;
        EXPECT_EQ(name.Holders(), 2);
        EXPECT_EQ(share.Text().data(), name.Text().data());
    }
    EXPECT_EQ(name.Holders(), 1);
}

TEST(SharedTextBlocks, ABlockLivesUntilItsLastTextAndItsMakerLetGo) {
    const std::int64_t before = TextBlocks::BlocksInUse();
    std::vector<SharedText> kept;
    {
        TextBlocks blocks;
        kept.emplace_back(blocks, L"first");
        kept.emplace_back(blocks, L"second");
        EXPECT_EQ(TextBlocks::BlocksInUse(), before + 1);
    }
    EXPECT_EQ(TextBlocks::BlocksInUse(), before + 1);
    EXPECT_EQ(kept[1].Text(), L"second");
    kept.erase(kept.begin());
    EXPECT_EQ(TextBlocks::BlocksInUse(), before + 1);
    EXPECT_EQ(kept[0].Text(), L"second");
    kept.clear();
    EXPECT_EQ(TextBlocks::BlocksInUse(), before);
}

TEST(SharedTextBlocks, TextsBeyondOneBlockGoOnInANewOneAndAllAreGivenBack) {
    const std::int64_t before = TextBlocks::BlocksInUse();
    std::vector<SharedText> texts;
    {
        TextBlocks blocks;
        for (int i = 0; i < 100000; ++i) texts.emplace_back(blocks, L"C:\\Files\\f" + std::to_wstring(i) + L".txt");
    }
    // 100,000 texts of about 40 bytes each fill several blocks of 1 MiB.
    EXPECT_GT(TextBlocks::BlocksInUse(), before + 2);
    for (int i = 0; i < 100000; i += 9973) EXPECT_EQ(texts[i].Text(), L"C:\\Files\\f" + std::to_wstring(i) + L".txt");
    texts.clear();
    EXPECT_EQ(TextBlocks::BlocksInUse(), before);
}

TEST(SharedTextBlocks, ATextLongerThanABlockGetsAnAllocationOfItsOwn) {
    const std::int64_t before = TextBlocks::BlocksInUse();
    TextBlocks blocks;
    const std::wstring huge(TextBlocks::kBlockBytes, L'x');
    const SharedText text(blocks, huge);
    EXPECT_EQ(text.Text(), huge);
    EXPECT_EQ(TextBlocks::BlocksInUse(), before);
    const SharedText small(blocks, L"after");
    EXPECT_EQ(small.Text(), L"after");
    EXPECT_EQ(TextBlocks::BlocksInUse(), before + 1);
}

}  // namespace
}  // namespace qs::test
