// The window of three panes: its frame, the bar's buttons 2 to 4 opening it
// with the right pane in front, and the close buttons going through the bar.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "shown_messages.h"
#include "theme/holders.h"

namespace qs::test {
namespace {

struct ChooseFrame : ::testing::Test {
    BarApp t;
    FrmChoose& choose = t.app.frmChoose;
    void SetUp() override {
        choose.Load();
        t.AddItem(2, L"player", L"C:\\Apps\\player.exe");
    }
};

TEST_F(ChooseFrame, TheLoadSizesTheWindowAndStacksTheThreePanesAtOnePlace) {
    EXPECT_EQ(choose.Width(), 5400);
    EXPECT_EQ(choose.Height(), 8652);
    for (ui::Frame* pane : {&choose.PictureList, &choose.PictureCode, &choose.PictureTool}) {
        EXPECT_EQ(pane->Left(), 120);
        EXPECT_EQ(pane->Top(), 120);
        EXPECT_EQ(pane->Width(), 5160);
        EXPECT_EQ(pane->Height(), 8412);
    }
    EXPECT_EQ(choose.PictureHideList.Container(), &choose.PictureList);
    EXPECT_EQ(choose.PictureHideCode.Container(), &choose.PictureCode);
    EXPECT_EQ(choose.PictureHideTool.Container(), &choose.PictureTool);
    EXPECT_EQ(choose.PictureHideList.ToolTipText(), L"Close");
    // The window is still made only when it first shows.
    EXPECT_TRUE(choose.WindowWaitsForShow());
}

TEST_F(ChooseFrame, EachOfTheButtonsTwoToFourShowsItsOwnPaneAndHidesTheOthers) {
    const std::int16_t panes[] = {2, 3, 4};
    for (const std::int16_t pane : panes) {
        t.ClickMenu(pane);
        EXPECT_EQ(t.app.OpenMenuIndex, pane);
        EXPECT_TRUE(choose.Visible());
        EXPECT_FALSE(t.app.frmBrowse.Visible());
        EXPECT_EQ(choose.PictureList.Visible(), pane == 2);
        EXPECT_EQ(choose.PictureCode.Visible(), pane == 3);
        EXPECT_EQ(choose.PictureTool.Visible(), pane == 4);
        EXPECT_EQ(choose.Caption(), pane == 2 ? L"Launch List" : pane == 3 ? L"Code And Command" : L"Preferences");
    }
}

TEST_F(ChooseFrame, TheWindowIsPlacedBelowTheBarOrAboveItByThePanePlacing) {
    t.bar().Move(3000, 1000, 6360, 348);
    t.ClickMenu(2);
    EXPECT_EQ(choose.Left(), 3600);
    EXPECT_EQ(choose.Top(), 1000 + 348 + 120);
    t.ClickMenu(2);
    t.bar().Move(3000, 14000, 6360, 348);
    t.ClickMenu(3);
    EXPECT_EQ(choose.Top(), 14000 - (8652 + 120));
}

TEST_F(ChooseFrame, MinusOneHidesTheWindow) {
    t.ClickMenu(2);
    std::int16_t none = -1;
    ActionSetChoose(t.app, none);
    EXPECT_FALSE(choose.Visible());
}

TEST_F(ChooseFrame, OpeningTheAddItemPaneHidesThisWindowAndTheOtherWayRound) {
    t.ClickMenu(2);
    t.ClickMenu(0);
    EXPECT_FALSE(choose.Visible());
    EXPECT_TRUE(t.app.frmBrowse.Visible());
    t.ClickMenu(4);
    EXPECT_TRUE(choose.Visible());
    EXPECT_FALSE(t.app.frmBrowse.Visible());
}

TEST_F(ChooseFrame, EachCloseButtonClosesItsPaneThroughTheBar) {
    t.app.settings.OptionAlwaysOnTop = 1;
    struct Case {
        std::int16_t pane;
        ui::PictureBox& hide;
    };
    for (const Case& c : {Case{2, choose.PictureHideList}, Case{3, choose.PictureHideCode},
                          Case{4, choose.PictureHideTool}}) {
        t.ClickMenu(c.pane);
        ASSERT_TRUE(c.hide.Shown());
        c.hide.Press();
        EXPECT_EQ(t.app.OpenMenuIndex, -1);
        EXPECT_EQ(t.app.PendingClick, -1);
        EXPECT_FALSE(choose.Visible());
        // Closed as the bar closes a pane: the topmost timer runs again.
        EXPECT_TRUE(t.bar().TimerOnTop.Enabled());
    }
}

TEST_F(ChooseFrame, TheCloseButtonsPressShowsTheBlankButtonAndItsReleaseTheCross) {
    t.ClickMenu(3);
    const std::int16_t theme = t.app.settings.ThemeIndex;
    choose.PictureHideCode.UserMouseDown(ui::LeftButton, 0, 0, 0);
    EXPECT_EQ(choose.PictureHideCode.Picture(), OneOfTheme(ui::PictureSlot::ImageMStar, theme));
    choose.PictureHideCode.UserMouseUp(ui::LeftButton, 0, 0, 0);
    EXPECT_EQ(choose.PictureHideCode.Picture(), OneOfTheme(ui::PictureSlot::ImageMX, theme));
}

TEST_F(ChooseFrame, EnterOrSpaceOnACloseButtonClosesAndEscDoesToo) {
    for (const wchar_t key : {L'\r', L' ', L'\x1b'}) {
        t.ClickMenu(2);
        ASSERT_EQ(t.app.OpenMenuIndex, 2);
        EXPECT_EQ(choose.PictureHideList.UserKeyPress(key), 0);
        EXPECT_EQ(t.app.OpenMenuIndex, -1);
        EXPECT_FALSE(choose.Visible());
    }
}

TEST_F(ChooseFrame, AFailureWhilePlacingIsReportedUnderItsName) {
    // A bar beyond what 16 bits can add to overflows the placing.
    t.bar().Move(3000, 32700, 6360, 348);
    std::int16_t pane = 3;
    ActionSetChoose(t.app, pane);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionSetChoose"));
}

}  // namespace
}  // namespace qs::test
