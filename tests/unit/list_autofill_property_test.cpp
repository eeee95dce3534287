#include <gtest/gtest.h>

#include <random>

#include "command/auto_fill.h"
#include "common/text_case.h"
#include "ui/form.h"
#include "ui/list_box.h"

namespace {

// The lookup as a scan from the top: the first name, in list order, whose
// lower-cased first characters equal the lower-cased typed text.
std::int32_t ScanFromTheTop(const qs::ui::ListBox& list, const std::wstring& typed, std::int32_t lastIndex) {
    const std::wstring lower = qs::LCase(typed);
    for (std::int32_t i = 0; i <= lastIndex; ++i) {
        const std::wstring name(list.List(i));
        if (name.size() >= lower.size() && qs::LCase(name.substr(0, lower.size())) == lower) return i;
    }
    return -1;
}

std::wstring RandomText(std::mt19937& rng, int maxLength) {
    // Mixed case, Latin-1 letters with their capitals, the two letters
    // without a capital of their own, digits and punctuation.
    static const std::wstring letters = L"aAbBnNoOzZ\u00e0\u00c0\u00e9\u00c9\u00f6\u00d6\u00df\u00ff\u00d70_- .";
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::uniform_int_distribution<int> length(0, maxLength);
    std::wstring text;
    for (int n = length(rng); n > 0; --n) text.push_back(letters[pick(rng)]);
    return text;
}

TEST(FirstNameWithPrefixProperty, BinarySearchFindsWhatTheScanFromTheTopFinds) {
    std::mt19937 rng(2026);
    int hits = 0;
    for (int round = 0; round < 400; ++round) {
        qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
        qs::ui::ListBox list{form, L"ComboListItemName", true};
        const int count = static_cast<int>(rng() % 60) + 1;
        std::vector<std::wstring> pool;
        for (int i = 0; i < count; ++i) {
            // Duplicates, exact and differing in case only, are frequent.
            std::wstring name = (!pool.empty() && rng() % 3 == 0) ? pool[rng() % pool.size()] : RandomText(rng, 6);
            if (rng() % 4 == 0) name = qs::UCase(name);
            pool.push_back(name);
            list.AddItem(name);
        }
        for (int probe = 0; probe < 50; ++probe) {
            std::wstring typed = RandomText(rng, 3);
            if (rng() % 2 == 0) {
                // A prefix of a listed name, in another case.
                const std::wstring& name = pool[rng() % pool.size()];
                typed = name.substr(0, rng() % (name.size() + 1));
                if (rng() % 2 == 0) typed = qs::UCase(typed);
            }
            const auto lastIndex = static_cast<std::int32_t>(rng() % static_cast<unsigned>(list.ListCount()));
            const std::int32_t expected = ScanFromTheTop(list, typed, lastIndex);
            ASSERT_EQ(qs::FirstNameWithPrefix(list, qs::LCase(typed), lastIndex), expected)
                << "round " << round << " probe " << probe;
            if (expected >= 0) ++hits;
        }
    }
    // The probes must have exercised both outcomes.
    EXPECT_GT(hits, 1000);
    EXPECT_LT(hits, 400 * 50);
}

TEST(FirstNameWithPrefixProperty, NotesAndNotepadGiveNotepadForNot) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    qs::ui::ListBox list{form, L"ComboListItemName", true};
    list.AddItem(L"Notes");
    list.AddItem(L"Notepad");
    EXPECT_EQ(qs::FirstNameWithPrefix(list, L"not", 1), 0);
    EXPECT_EQ(list.List(0), L"Notepad");
}

}  // namespace
