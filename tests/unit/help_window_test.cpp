// Help as a window: the roads that open and close it, where it stands, its
// drag within the work area, its two links and its keys.
#include <gtest/gtest.h>

#include "help_app.h"
#include "shown_messages.h"

namespace {

using qs::test::HelpApp;

struct HelpWindow : ::testing::Test {
    HelpApp t;
    qs::FrmHelp& h() { return t.help(); }
};

TEST_F(HelpWindow, IsNotLoadedUntilTheUserAsksForIt) {
    EXPECT_FALSE(h().IsLoaded());
    EXPECT_FALSE(t.app.HelpOpen);
}

TEST_F(HelpWindow, TheQuestionMarkButtonLoadsAndShowsItAndASecondClickUnloadsIt) {
    t.ClickHelpButton();
    EXPECT_TRUE(t.app.HelpOpen);
    EXPECT_TRUE(h().IsLoaded());
    EXPECT_TRUE(h().Visible());
    EXPECT_EQ(h().Caption(), L"Help");
    t.ClickHelpButton();
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(h().IsLoaded());
}

TEST_F(HelpWindow, OpeningHelpWithAPaneOpenClosesThePaneAndUndoesThePushedTop) {
    // A bar at the foot of a short work area pushes the pane's bar up.
    t.app.place.WorkAreaBottom = 600;
    t.bar().Move(3000, 8000, 6360, 348);
    t.ClickMenu(0);
    ASSERT_EQ(t.app.OpenMenuIndex, 0);
    ASSERT_NE(t.app.SavedMainTop, -1);
    t.OpenHelp();
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    EXPECT_FALSE(t.app.frmChoose.Visible());
    EXPECT_EQ(t.bar().Top(), 8000);
    EXPECT_TRUE(h().Visible());
}

TEST_F(HelpWindow, ClosingByExitHelpLetsTheNextQuestionMarkClickOpenItAgain) {
    t.OpenHelp();
    h().LabelHelpExit.UserClick();
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(h().IsLoaded());
    t.ClickHelpButton();
    EXPECT_TRUE(t.app.HelpOpen);
    EXPECT_TRUE(h().Visible());
}

TEST_F(HelpWindow, TheHelpCommandClosesAnOpenHelpAndOpensTheOnlinePage) {
    t.OpenHelp();
    t.Type(L"a.Help");
    t.Enter();
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(h().IsLoaded());
    EXPECT_EQ(t.LastTarget(), L"http://www.quillstart.example/help/quillstart.html");
    // Closed that way, the next "?" click opens it.
    t.ClickHelpButton();
    EXPECT_TRUE(h().Visible());
}

TEST_F(HelpWindow, TheOnlineLinkClosesHelpThenOpensTheOnlinePage) {
    t.OpenHelp();
    bool openAtLaunch = true;
    t.sys.onLaunch = [&](const qs::test::Launch&) { openAtLaunch = h().IsLoaded() || t.app.HelpOpen; };
    h().LabelHelpOnline.UserClick();
    EXPECT_FALSE(openAtLaunch);
    EXPECT_EQ(t.LastTarget(), L"http://www.quillstart.example/help/quillstart.html");
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(h().IsLoaded());
    t.ClickHelpButton();
    EXPECT_TRUE(h().Visible());
}

TEST_F(HelpWindow, TheOnlineLinkReportsAFailedLaunchAsABug) {
    t.OpenHelp();
    t.sys.shellOpenResult = 2;
    h().LabelHelpOnline.UserClick();
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
}

TEST_F(HelpWindow, TheSiteLinkOpensTheMakersSiteAndLeavesHelpOpen) {
    t.OpenHelp();
    h().LabelHelpTopic(12).UserClick();
    h().LabelHelpExtraD.UserClick();
    EXPECT_EQ(t.LastTarget(), L"http://www.quillstart.example");
    EXPECT_TRUE(t.app.HelpOpen);
    EXPECT_TRUE(h().Visible());
}

TEST_F(HelpWindow, TheSiteLinkFailingShowsNothing) {
    t.OpenHelp();
    t.sys.shellOpenResult = 2;
    h().LabelHelpExtraD.UserClick();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
}

TEST_F(HelpWindow, FirstOpeningCentresTheWindowOnTheScreen) {
    t.OpenHelp();
    EXPECT_EQ(h().Width(), 5400);
    EXPECT_EQ(h().Height(), 8652);
    EXPECT_EQ(h().Left(), (1920 * 15 - 5400) / 2);
    EXPECT_EQ(h().Top(), (1080 * 15 - 8652) / 2);
}

TEST_F(HelpWindow, AScreenJustTheWindowsSizePutsItAtZero) {
    t.sys.screenWidthTwips = 5400;
    t.sys.screenHeightTwips = 8652;
    t.OpenHelp();
    EXPECT_EQ(h().Left(), 0);
    EXPECT_EQ(h().Top(), 0);
}

TEST_F(HelpWindow, TheLeftButtonDragsItAndTheEndOfTheDragIsClampedByItsOwnSize) {
    t.OpenHelp();
    t.sys.onDrag = [this](const qs::ui::Form&) { h().UserMoved(27000, 12000); };
    h().UserMouseMove(1, 0, 30, 30);
    ASSERT_EQ(t.sys.drags.size(), 1u);
    EXPECT_EQ(t.sys.drags[0], &h());
    EXPECT_EQ(h().Left(), 28800 - 5400);
    EXPECT_EQ(h().Top(), 15600 - 8652);
    EXPECT_TRUE(h().HelpPosKnown);
    EXPECT_EQ(h().HelpLeft, 28800 - 5400);
    EXPECT_EQ(h().HelpTop, 15600 - 8652);
}

TEST_F(HelpWindow, APlaceFromTheMouseOutlivesTheWindowForTheNextOpening) {
    t.OpenHelp();
    h().UserMoved(2000, 1000);
    h().UserMouseMove(0, 0, 10, 10);
    EXPECT_TRUE(t.sys.drags.empty());
    h().LabelHelpExit.UserClick();
    t.ClickHelpButton();
    EXPECT_EQ(h().Left(), 2000);
    EXPECT_EQ(h().Top(), 1000);
}

TEST_F(HelpWindow, EscClosesItAsExitHelpDoes) {
    t.OpenHelp();
    EXPECT_EQ(h().UserKeyDown(27, 0), 0);
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(h().IsLoaded());
}

TEST_F(HelpWindow, TakesTheKeyboardWhenShown) {
    // Unlike the panes beside the bar, Help is read, not typed past.
    EXPECT_TRUE(h().TakesFocusWhenShown());
}

}  // namespace
