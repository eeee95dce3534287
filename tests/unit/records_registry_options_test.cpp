// The registry door and the spreading of the saved options word.
#include <gtest/gtest.h>

#include "data/registry_value.h"
#include "records_app.h"
#include "shown_messages.h"
#include "startup/saved_options.h"

namespace {

using qs::test::RecordsApp;
using qs::test::ShownMessages;
using qs::test::TestApp;

const std::wstring Key = L"HKEY_CURRENT_USER\\Software\\Test\\Value";

std::wstring Registry(TestApp& t, std::int16_t action, std::wstring value = L"") {
    std::wstring key = Key;
    return qs::RegistryValue(t.app, action, key, value);
}

TEST(RecordsRegistry, WriteReadAndDelete) {
    TestApp t;
    EXPECT_EQ(Registry(t, qs::RegistryWrite, L"C:\\Tools\\Quillstart.exe"), L"");
    EXPECT_EQ(t.sys.registry[Key], L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(Registry(t, qs::RegistryRead), L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(Registry(t, qs::RegistryDelete), L"");
    EXPECT_EQ(t.sys.registry.count(Key), 0u);
}

TEST(RecordsRegistry, ReadingAMissingValueGivesEmptyWithNoMessage) {
    TestApp t;
    EXPECT_EQ(Registry(t, qs::RegistryRead), L"");
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST(RecordsRegistry, DeletingAMissingValueIsIgnored) {
    TestApp t;
    EXPECT_EQ(Registry(t, qs::RegistryDelete), L"");
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST(RecordsRegistry, TheAutostartValueIsNamedInFull) {
    EXPECT_EQ(std::wstring(qs::AutostartValueName),
              L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\Morvane Quillstart");
}

std::array<std::int16_t, 6> Flags(const qs::Settings& s) {
    return {s.OptionStartWithWindows, s.OptionShowAddUrlBox, s.OptionStartMinimized,
            s.OptionAddUrlFontBold,   s.OptionMainFontBold,  s.OptionAlwaysOnTop};
}

std::array<std::int16_t, 6> Spread(std::int16_t word) {
    TestApp t;
    qs::AtStartsavedOptions(t.app, word);
    return Flags(t.app.settings);
}

TEST(RecordsOptions, FixedDiskDefaultSetsStartWithWindowsBoldAndOnTop) {
    EXPECT_EQ(Spread(57), (std::array<std::int16_t, 6>{1, 0, 0, 1, 1, 1}));
}

TEST(RecordsOptions, FlashDriveDefaultLeavesStartWithWindowsOff) {
    EXPECT_EQ(Spread(56), (std::array<std::int16_t, 6>{0, 0, 0, 1, 1, 1}));
}

TEST(RecordsOptions, OptionWordZeroTurnsEverythingOff) {
    EXPECT_EQ(Spread(0), (std::array<std::int16_t, 6>{0, 0, 0, 0, 0, 0}));
}

TEST(RecordsOptions, EachBitSetsItsOwnFlag) {
    for (int bit = 0; bit < 6; ++bit) {
        std::array<std::int16_t, 6> expected{};
        expected[static_cast<std::size_t>(bit)] = 1;
        EXPECT_EQ(Spread(static_cast<std::int16_t>(1 << bit)), expected) << "bit " << bit;
    }
}

TEST(RecordsOptions, BitsAboveTheSixthAreIgnored) {
    EXPECT_EQ(Spread(64 + 2), (std::array<std::int16_t, 6>{0, 1, 0, 0, 0, 0}));
}

TEST(RecordsOptions, NegativeWordSetsNoFlag) { EXPECT_EQ(Spread(-1), (std::array<std::int16_t, 6>{0, 0, 0, 0, 0, 0})); }

TEST(RecordsOptions, FlagsAreClearedWhenTheirBitIsOff) {
    TestApp t;
    std::int16_t all = 63;
    qs::AtStartsavedOptions(t.app, all);
    std::int16_t one = 32;
    qs::AtStartsavedOptions(t.app, one);
    EXPECT_EQ(Flags(t.app.settings), (std::array<std::int16_t, 6>{0, 0, 0, 0, 0, 1}));
}

}  // namespace
