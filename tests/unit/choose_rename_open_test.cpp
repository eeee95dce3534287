// Renaming an item in its panel, and opening an item by its group.
#include <gtest/gtest.h>

#include "choose_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

struct ChooseRename : ::testing::Test {
    ChooseApp t;
    LaunchListPane& pane = t.pane();
    const ThemeState& theme = t.app.theme;
    void SetUp() override {
        t.Add(2, L"editor", L"C:\\Apps\\editor.exe");
        t.Add(2, L"player", L"C:\\Apps\\player.exe");
        t.OpenPane();
    }
};

TEST_F(ChooseRename, TheRenameButtonTogglesTheFrameWithAnEmptyBoxAndNoOK) {
    pane.TextListRename(2).SetText(L"left over");
    pane.ImageListRename(2).Press();
    EXPECT_TRUE(pane.FrameListRename(2).Visible());
    EXPECT_EQ(pane.ImageListRename(2).Picture(), theme.ImageZeroSet[2]);
    EXPECT_EQ(pane.TextListRename(2).Text(), L"");
    EXPECT_FALSE(pane.ImageListOKRename(2).Visible());
    EXPECT_EQ(pane.ImageListOKRename(2).Picture(), theme.ImageZeroBlank);
    pane.ImageListRename(2).Press();
    EXPECT_FALSE(pane.FrameListRename(2).Visible());
    EXPECT_EQ(pane.ImageListRename(2).Picture(), theme.ImageZeroSet[0]);
}

TEST_F(ChooseRename, OKShowsOnlyWhileANameIsTyped) {
    pane.ImageListRename(2).Press();
    pane.TextListRename(2).TypeText(L"x");
    EXPECT_TRUE(pane.ImageListOKRename(2).Visible());
    EXPECT_TRUE(pane.LabelListRenOK(2).Visible());
    EXPECT_EQ(pane.ImageListOKRename(2).Picture(), theme.ImageZeroSet[0]);
    pane.TextListRename(2).TypeKey(8);
    EXPECT_FALSE(pane.ImageListOKRename(2).Visible());
    EXPECT_FALSE(pane.LabelListRenOK(2).Visible());
    EXPECT_EQ(pane.ImageListOKRename(2).Picture(), theme.ImageZeroBlank);
    // Enter with nothing typed does nothing.
    pane.TextListRename(2).TypeKey(13);
    EXPECT_TRUE(pane.FrameListRename(2).Visible());
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ChooseRename, ANewNameTypedAndEnteredRenamesTheItemAndClosesTheFrame) {
    t.choose().ComboListItemName(2).UserSelected(1);
    pane.ImageListRename(2).Press();
    pane.TextListRename(2).TypeText(L"audio");
    pane.TextListRename(2).TypeKey(13);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (std::vector<std::wstring>{L"audio", L"editor"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)),
              (std::vector<std::wstring>{L"C:\\Apps\\player.exe", L"C:\\Apps\\editor.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (std::vector<std::wstring>{L"audio", L"editor"}));
    EXPECT_FALSE(pane.FrameListRename(2).Visible());
    EXPECT_EQ(pane.ImageListRename(2).Picture(), theme.ImageZeroSet[0]);
    // The list goes back to its first item, and the panel follows it.
    EXPECT_EQ(pane.LabelListOpen(2).Caption(), L"Open: audio");
    EXPECT_EQ(MergedPaths(t, 2).ListIndex(), 0);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ChooseRename, TheOKButtonRenamesAsEnterDoes) {
    pane.ImageListRename(2).Press();
    pane.TextListRename(2).TypeText(L"writer");
    pane.ImageListOKRename(2).Press();
    EXPECT_EQ(Entries(MergedNames(t, 2)), (std::vector<std::wstring>{L"player", L"writer"}));
    EXPECT_FALSE(pane.FrameListRename(2).Visible());
}

TEST_F(ChooseRename, RenamingWithTheNameOfAnotherItemShowsTheMessageAndKeepsTheFrameOpenWithTheText) {
    pane.ImageListRename(2).Press();
    pane.TextListRename(2).TypeText(L"player");
    pane.TextListRename(2).TypeKey(13);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageNameAlreadyListed");
    EXPECT_TRUE(pane.FrameListRename(2).Visible());
    EXPECT_EQ(pane.TextListRename(2).Text(), L"player");
    EXPECT_TRUE(pane.ImageListOKRename(2).Visible());
    EXPECT_EQ(Entries(MergedNames(t, 2)), (std::vector<std::wstring>{L"editor", L"player"}));
}

TEST_F(ChooseRename, CancelClosesTheFrameAndRenamesNothing) {
    pane.ImageListRename(2).Press();
    pane.TextListRename(2).TypeText(L"other");
    pane.ImageListCancelRename(2).Press();
    EXPECT_FALSE(pane.FrameListRename(2).Visible());
    EXPECT_EQ(Entries(MergedNames(t, 2)), (std::vector<std::wstring>{L"editor", L"player"}));
}

TEST_F(ChooseRename, OpeningThePaneAgainHidesAnOpenRenameFrame) {
    pane.ImageListRename(2).Press();
    t.OpenPane();
    t.OpenPane();
    EXPECT_FALSE(pane.FrameListRename(2).Visible());
}

struct ChooseOpen : ::testing::Test {
    ChooseApp t;
    LaunchListPane& pane = t.pane();
    void SetUp() override {
        t.sys.PutFile(L"C:\\Docs\\plan.doc");
        t.sys.PutFile(L"C:\\Apps\\player.exe");
        t.FillAllGroups();
        t.OpenPane();
    }
};

TEST_F(ChooseOpen, EachGroupOpensItsItemByItsKindAndClosesThePane) {
    struct Case {
        std::int16_t group;
        Launch::Kind kind;
        std::wstring target;
    };
    const Case cases[] = {
        {0, Launch::Kind::Open, L"C:\\Docs\\plan.doc"},
        {1, Launch::Kind::Run, L"C:\\Windows\\explorer.exe C:\\Music"},
        {2, Launch::Kind::Open, L"C:\\Apps\\player.exe"},
        {3, Launch::Kind::Open, L"mailto:ben@example.com"},
        {4, Launch::Kind::Open, L"http://search.example/"},
    };
    for (const Case& c : cases) {
        if (!t.choose().Visible()) t.OpenPane();
        t.ShowGroup(c.group);
        t.choose().ComboListItemPath(c.group).UserSelected(1);
        pane.ImageListOpen(c.group).Press();
        ASSERT_FALSE(t.sys.launches.empty());
        EXPECT_EQ(t.sys.launches.back().target, c.target) << c.group;
        EXPECT_EQ(t.sys.launches.back().kind, c.kind) << c.group;
        EXPECT_FALSE(t.choose().Visible());
        EXPECT_EQ(t.app.OpenMenuIndex, -1);
    }
    EXPECT_EQ(t.sys.launches.size(), 5u);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ChooseOpen, OpeningGivesTheBarItsTopAndItsTopmostTimerBack) {
    t.OpenPane();
    t.app.place.WorkAreaBottom = 600;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.app.frmMain.Move(3000, 5000, 6360, 348);
    t.OpenPane();
    ASSERT_EQ(t.app.SavedMainTop, 5000);
    pane.ImageListOpen(2).Press();
    EXPECT_EQ(t.app.frmMain.Top(), 5000);
    EXPECT_EQ(t.app.SavedMainTop, -1);
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST_F(ChooseOpen, AFailedOpenShowsTheBugDialogAfterThePaneHasClosed) {
    t.sys.shellOpenResult = 2;
    pane.ImageListOpen(2).Press();
    EXPECT_FALSE(t.choose().Visible());
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
}

}  // namespace
}  // namespace qs::test
