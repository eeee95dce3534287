// Completion of Launch Names from the user's lists while typing.
#include <gtest/gtest.h>

#include <random>

#include "command/auto_fill.h"
#include "common/text_case.h"
#include "test_app.h"

namespace {

using qs::test::TestApp;

struct AutoFill : ::testing::Test {
    TestApp t;
    qs::ui::TextBox& box() { return t.app.frmMain.TextMain; }
    void SetUp() override {
        t.AddItem(2, L"myPlayer", L"C:\\Apps\\player.exe");
        t.sys.PutFile(L"C:\\Apps\\player.exe");
    }
};

TEST_F(AutoFill, FirstLetterCompletesAndSelectsTheTail) {
    t.Type(L"p-m");
    EXPECT_EQ(box().Text(), L"p-myPlayer");
    EXPECT_EQ(box().SelStart(), 3);
    EXPECT_EQ(box().SelText(), L"yPlayer");
    EXPECT_EQ(t.app.PendingItemIndex, 0);
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"C:\\Apps\\player.exe");
}

TEST_F(AutoFill, CapitalCodeKeepsItsCapitalsAndRuns) {
    t.Type(L"P-M");
    EXPECT_EQ(box().Text(), L"P-myPlayer");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"C:\\Apps\\player.exe");
}

TEST_F(AutoFill, BackspaceTakesBackTheTailAndLeavesNothingPending) {
    t.Type(L"p-m");
    t.Backspace();
    EXPECT_EQ(box().Text(), L"p-m");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    t.Enter();
    EXPECT_TRUE(t.sys.launches.empty());
    EXPECT_EQ(box().Text(), L"p-m");
    t.Type(L"y");
    EXPECT_EQ(t.app.PendingItemIndex, 0);
}

TEST_F(AutoFill, WrongLetterThenBackspaceRestoresTextWithNothingPending) {
    t.Type(L"p-m");
    box().SetSelStart(static_cast<std::int32_t>(box().Text().size()));
    t.Type(L"x");
    EXPECT_EQ(box().Text(), L"p-myPlayerx");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    t.Backspace();
    EXPECT_EQ(box().Text(), L"p-myPlayer");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    t.Enter();
    EXPECT_TRUE(t.sys.launches.empty());
}

TEST_F(AutoFill, DeleteSetsNoFlagSoTheTailComesBackAtOnce) {
    t.Type(L"p-m");
    box().PressDelete();
    EXPECT_EQ(box().Text(), L"p-myPlayer");
    EXPECT_EQ(t.app.PendingItemIndex, 0);
}

TEST_F(AutoFill, BackspaceInEmptyBoxLeavesTheFlagForTheNextChange) {
    t.Backspace();
    EXPECT_TRUE(t.app.frmMain.BackspaceTyped);
    t.Type(L"p-m");
    EXPECT_FALSE(t.app.frmMain.BackspaceTyped);
    EXPECT_EQ(box().Text(), L"p-myPlayer");
}

TEST_F(AutoFill, BackspaceThatEmptiesTheBoxIsConsumedByTheNextCharacter) {
    t.Type(L"p");
    t.Backspace();
    EXPECT_EQ(box().Text(), L"");
    EXPECT_TRUE(t.app.frmMain.BackspaceTyped);
    t.Type(L"p");
    EXPECT_FALSE(t.app.frmMain.BackspaceTyped);
}

TEST_F(AutoFill, TwoHyphensAtTheEndWipeTheBox) {
    t.Type(L"p--");
    EXPECT_EQ(box().Text(), L"");
    t.Type(L"w;abc--");
    EXPECT_EQ(box().Text(), L"");
}

TEST_F(AutoFill, FamilyNeedsThreeLettersAndMoreThanOneRecord) {
    t.app.FamilyMembers = {{L"Quillstart", L"t", 1, L"C:\\Q\\", L"C:\\Q\\Quillstart.exe"},
                           {L"Abcdef", L"t", 1, L"C:\\A\\", L"C:\\A\\Abcdef.exe"}};
    t.app.FamilyMemberCount = 1;
    t.Type(L"r.ab");
    EXPECT_EQ(box().Text(), L"r.ab");
    t.Type(L"c");
    EXPECT_EQ(box().Text(), L"r.Abcdef");
    EXPECT_EQ(t.app.PendingFamilyIndex, 1);
}

TEST_F(AutoFill, WithoutFamilyFileFamilyCommandsDoNothing) {
    t.Type(L"r.abc");
    EXPECT_EQ(box().Text(), L"r.abc");
    t.Enter();
    EXPECT_TRUE(t.sys.launches.empty());
    EXPECT_EQ(box().Text(), L"r.abc");
}

TEST_F(AutoFill, FamilyNeverOffersItself) {
    t.app.FamilyMembers = {{L"Quillstart", L"t", 1, L"C:\\Q\\", L"C:\\Q\\Quillstart.exe"},
                           {L"Quilted", L"t", 1, L"C:\\W\\", L"C:\\W\\Quilted.exe"}};
    t.app.FamilyMemberCount = 1;
    t.Type(L"r.qui");
    EXPECT_EQ(box().Text(), L"r.Quilted");
    EXPECT_EQ(t.app.PendingFamilyIndex, 1);
}

TEST_F(AutoFill, EmptyGroupIsNotSearched) {
    t.Type(L"w-x");
    EXPECT_EQ(box().Text(), L"w-x");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
}

// A flash drive can merge two full sides into one list of more names than a
// 16-bit last index holds: the search then gives up without a word.
TEST_F(AutoFill, MergedListPastTheSixteenBitIndexCompletesNothingAndSaysNothing) {
    auto& names = t.app.frmChoose.ComboListItemName(2);
    auto& paths = t.app.frmChoose.ComboListItemPath(2);
    for (int i = 0; i < 32768; ++i) {
        names.AddItem(L"zz" + std::to_wstring(i));
        paths.AddItem(L"C:\\Apps\\zz.exe");
    }
    t.Type(L"p-m");
    EXPECT_EQ(box().Text(), L"p-m");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    EXPECT_TRUE(t.dialogs.shown.empty());
}

TEST_F(AutoFill, ListOfThirtyTwoThousandSevenHundredSixtySevenNamesStillCompletes) {
    auto& names = t.app.frmChoose.ComboListItemName(2);
    auto& paths = t.app.frmChoose.ComboListItemPath(2);
    for (int i = 1; i < 32767; ++i) {
        names.AddItem(L"zz" + std::to_wstring(i));
        paths.AddItem(L"C:\\Apps\\zz.exe");
    }
    ASSERT_EQ(names.ListCount(), 32767);
    t.Type(L"p-m");
    EXPECT_EQ(box().Text(), L"p-myPlayer");
    EXPECT_EQ(t.app.PendingItemIndex, 0);
}

TEST_F(AutoFill, NameShorterThanTheTypedTextCannotMatch) {
    t.AddItem(2, L"ab", L"C:\\ab.exe");
    t.Type(L"p-abc");
    EXPECT_EQ(box().Text(), L"p-abc");
    EXPECT_EQ(t.app.PendingItemIndex, -1);
}

TEST_F(AutoFill, ExactMatchSelectsNothing) {
    box().UserEdited(L"p-myplayer", 10, 0);
    EXPECT_EQ(box().Text(), L"p-myPlayer");
    EXPECT_EQ(box().SelLength(), 0);
    EXPECT_EQ(t.app.PendingItemIndex, 0);
}

TEST_F(AutoFill, FeedbackAddressIsPendingAfterItsFirstLetter) {
    t.Type(L"e.f");
    EXPECT_EQ(box().Text(), L"e.feedback@quillstart.example");
    EXPECT_EQ(t.app.PendingFeedbackIndex, 0);
}

TEST_F(AutoFill, FirstMatchInSortedOrderWins) {
    t.AddItem(2, L"Notes", L"C:\\notes.exe");
    t.AddItem(2, L"Notepad", L"C:\\notepad.exe");
    t.Type(L"p-not");
    EXPECT_EQ(box().Text(), L"p-Notepad");
}

TEST_F(AutoFill, EveryNonEmptyChangeResetsThePendingIndicesAndMessage) {
    t.Type(L"p-m");
    t.app.MessageToShow = L"x";
    t.app.TextMainBusy = true;
    box().SetText(L"p-q");
    t.app.TextMainBusy = false;
    EXPECT_EQ(t.app.PendingItemIndex, -1);
    EXPECT_EQ(t.app.MessageToShow, L"");
}

TEST_F(AutoFill, EmptyingTheBoxKeepsThePendingIndex) {
    t.Type(L"p-m");
    t.ClearBox();
    EXPECT_EQ(t.app.PendingItemIndex, 0);
}

TEST_F(AutoFill, EachGroupCodeSearchesItsOwnGroup) {
    t.AddItem(0, L"report", L"C:\\r.txt");
    t.AddItem(1, L"music", L"C:\\Music");
    t.AddItem(3, L"ann", L"ann@x.example");
    t.AddItem(4, L"news", L"http://news.example");
    const std::vector<std::pair<std::wstring, std::wstring>> cases = {
        {L"f-r", L"f-report"}, {L"d-m", L"d-music"}, {L"e-a", L"e-ann"}, {L"w-n", L"w-news"}, {L"p-n", L"p-n"}};
    for (const auto& [typed, expected] : cases) {
        t.ClearBox();
        t.Type(typed);
        EXPECT_EQ(box().Text(), expected);
    }
}

// The first name in list order that begins with the typed text, found by
// walking the list from the top.
std::int32_t ScanFromTheTop(const qs::ui::ListBox& list, const std::wstring& typed) {
    const std::wstring lower = qs::LCase(typed);
    for (std::int32_t i = 0; i < list.ListCount(); ++i) {
        const std::wstring name = qs::LCase(list.List(i));
        if (name.size() >= lower.size() && name.compare(0, lower.size(), lower) == 0) return i;
    }
    return -1;
}

TEST(AutoFillSearch, BinarySearchFindsWhatAScanFromTheTopFinds) {
    std::mt19937 rng(20261123);
    const std::wstring alphabet = L"aAbBcC\u00e9\u00c9zZ -.";
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    std::uniform_int_distribution<int> length(0, 6);
    for (int round = 0; round < 300; ++round) {
        qs::ui::Form form{L"f", qs::ui::FormStyle::Borderless};
        qs::ui::ListBox list{form, L"ComboListItemName", true};
        const int count = length(rng) * 8;
        for (int i = 0; i < count; ++i) {
            std::wstring name;
            const int n = 1 + length(rng);
            for (int k = 0; k < n; ++k) name.push_back(alphabet[pick(rng)]);
            list.AddItem(name);
        }
        for (int probe = 0; probe < 30; ++probe) {
            std::wstring typed;
            const int n = 1 + length(rng) / 2;
            for (int k = 0; k < n; ++k) typed.push_back(alphabet[pick(rng)]);
            const std::int32_t expected = ScanFromTheTop(list, typed);
            const std::int32_t last = list.ListCount() - 1;
            const std::int32_t found = last < 0 ? -1 : qs::FirstNameWithPrefix(list, qs::LCase(typed), last);
            ASSERT_EQ(found, expected) << "round " << round;
        }
    }
}

}  // namespace
