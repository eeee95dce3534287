// Opening and closing panes from the bar, Help and the QuickLauncher.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "shown_messages.h"

namespace {

using qs::test::BarApp;
using qs::test::ShownMessages;

TEST(BarPanes, TheAddItemButtonOpensTheBrowsePaneBelowTheBar) {
    BarApp t;
    t.bar().Move(3000, 1000, 6360, 348);
    t.ClickMenu(0);
    EXPECT_EQ(t.app.OpenMenuIndex, 0);
    EXPECT_TRUE(t.app.frmBrowse.Visible());
    EXPECT_EQ(t.app.frmBrowse.Caption(), L"Add Item");
    EXPECT_EQ(t.app.frmBrowse.Left(), 3600);
    EXPECT_EQ(t.app.frmBrowse.Top(), 1000 + 348 + 120);
}

TEST(BarPanes, SecondClickOnTheOpenPanesButtonClosesItAndRestoresTheBarsTop) {
    BarApp t;
    t.app.place.WorkAreaBottom = 600;
    t.bar().Move(3000, 5000, 6360, 348);
    t.ClickMenu(1);
    ASSERT_EQ(t.app.SavedMainTop, 5000);
    ASSERT_EQ(t.bar().Top(), 0);
    t.ClickMenu(1);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    EXPECT_EQ(t.bar().Top(), 5000);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST(BarPanes, TheLaunchListButtonWithAnEmptyListOpensNothingAndShowsNoMessage) {
    BarApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.bar().TimerOnTop.SetEnabled(true);
    t.ClickMenu(2);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmChoose.Visible());
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    EXPECT_TRUE(ShownMessages(t).empty());
    // The refused pane has already lowered the bar, and nothing raises it.
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
    EXPECT_FALSE(t.bar().TopMost());
}

TEST(BarPanes, TheLaunchListButtonCountsEveryGroup) {
    BarApp t;
    t.AddItem(4, L"news", L"http://news.example/");
    t.ClickMenu(2);
    EXPECT_EQ(t.app.OpenMenuIndex, 2);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
}

TEST(BarPanes, ABarNearTheBottomOpensItsPaneAbove) {
    BarApp t;
    t.bar().Move(3000, 14000, 6360, 348);
    t.ClickMenu(0);
    EXPECT_EQ(t.app.frmBrowse.Top(), 14000 - (8652 + 120));
    EXPECT_EQ(t.bar().Top(), 14000);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST(BarPanes, APaneThatFitsNeitherSideMovesTheBarToTheTopAndClosingBringsItBack) {
    BarApp t;
    t.app.place.WorkAreaTop = 20;
    t.app.place.WorkAreaBottom = 620;
    t.bar().Move(3000, 5000, 6360, 348);
    t.ClickMenu(0);
    EXPECT_EQ(t.bar().Top(), 300);
    EXPECT_EQ(t.app.frmBrowse.Top(), 300 + 348 + 120);
    t.ClickMenu(0);
    EXPECT_EQ(t.bar().Top(), 5000);
}

TEST(BarPanes, AnotherButtonSwitchesPanesAndUndoesThePushFirst) {
    BarApp t;
    t.app.place.WorkAreaBottom = 600;
    t.bar().Move(3000, 5000, 6360, 348);
    t.ClickMenu(0);
    ASSERT_EQ(t.bar().Top(), 0);
    t.ClickMenu(3);
    EXPECT_EQ(t.app.OpenMenuIndex, 3);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    // The new pane fits neither side either: the bar was back at 5000 when
    // it was placed, so the push is made again from there and remembered.
    EXPECT_EQ(t.bar().Top(), 0);
    EXPECT_EQ(t.app.SavedMainTop, 5000);
    t.ClickMenu(3);
    EXPECT_EQ(t.bar().Top(), 5000);
}

TEST(BarPanes, AnOpenPaneLowersTheBarAndStopsTheTopmostTimerClosingStartsItAgain) {
    BarApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.bar().TimerOnTop.SetEnabled(true);
    t.bar().SetTopMost(true);
    t.ClickMenu(3);
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
    EXPECT_FALSE(t.bar().TopMost());
    t.ClickMenu(3);
    EXPECT_TRUE(t.bar().TimerOnTop.Enabled());
}

TEST(BarPanes, WithTheOptionOffClosingAPaneLeavesTheTimerStopped) {
    BarApp t;
    t.ClickMenu(4);
    t.ClickMenu(4);
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
}

TEST(BarPanes, EscClosesTheOpenPane) {
    BarApp t;
    t.ClickMenu(1);
    t.Type(L"p-x");
    t.app.frmMain.TextMain.TypeKey(27);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
}

TEST(BarPanes, OpeningHelpClosesTheOpenPaneAndASecondClickClosesHelp) {
    BarApp t;
    t.app.place.WorkAreaBottom = 600;
    t.bar().Move(3000, 5000, 6360, 348);
    t.ClickMenu(0);
    t.bar().PictureHelp.Press();
    EXPECT_TRUE(t.app.HelpOpen);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    EXPECT_EQ(t.bar().Top(), 5000);
    t.bar().PictureHelp.Press();
    EXPECT_FALSE(t.app.HelpOpen);
}

TEST(BarPanes, ShowingTheQuickLauncherClosesThePaneAndSetsItsPicture) {
    BarApp t;
    // The QuickLauncher's button is disabled over an empty Launch List.
    t.AddItem(4, L"news", L"http://news.example/");
    t.ClickMenu(0);
    t.bar().PictureShowQuick.Press();
    EXPECT_TRUE(t.app.QuickOpen);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickOpen);
    t.bar().PictureShowQuick.Press();
    EXPECT_FALSE(t.app.QuickOpen);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickClosed);
}

TEST(BarPanes, TheQuickButtonShowsItsPressedPictureWhileHeld) {
    BarApp t;
    t.bar().PictureShowQuick.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickDown);
    t.bar().PictureShowQuick.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickClosed);
}

}  // namespace
