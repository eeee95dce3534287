// The bar in the tray and back, its drag by the surface, the work-area clamp
// and the timers of the topmost state.
#include <gtest/gtest.h>

#include <cstring>

#include "bar_app.h"

namespace {

using qs::test::BarApp;
using TrayKind = qs::test::FakeSystem::TrayCall::Kind;

TEST(BarTray, TheTrayRecordHoldsTheProgramsValues) {
    const qs::TrayIconData data = qs::BarTrayIconData();
    EXPECT_EQ(data.cbSize, 88);
    EXPECT_EQ(data.uID, 1);
    EXPECT_EQ(data.uFlags, 7);
    EXPECT_EQ(data.uCallbackMessage, 512);
    const char expected[64] = "Quillstart";
    EXPECT_EQ(std::memcmp(data.szTip.data(), expected, sizeof(expected)), 0);
}

TEST(BarTray, HidingPutsTheIconInTheTrayAndHidesTheBar) {
    BarApp t;
    t.bar().Show();
    t.bar().PictureHide.Press();
    EXPECT_FALSE(t.bar().Visible());
    ASSERT_EQ(t.sys.trayCalls.size(), 1u);
    EXPECT_EQ(t.sys.trayCalls[0].kind, TrayKind::Add);
    EXPECT_EQ(t.sys.trayCalls[0].form, &t.bar());
    EXPECT_EQ(t.sys.trayCalls[0].data.uCallbackMessage, 512);
    EXPECT_TRUE(t.bar().TimerWatchOnTop.Enabled());
}

TEST(BarTray, HidingClosesThePaneAndSuspendsTheTopmostState) {
    BarApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.bar().Show();
    t.bar().TimerOnTop.SetEnabled(true);
    t.bar().SetTopMost(true);
    t.ClickMenu(0);
    t.ClickMenu(0);
    ASSERT_TRUE(t.bar().TimerOnTop.Enabled());
    t.ClickMenu(1);
    t.bar().PictureHide.Press();
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
    EXPECT_FALSE(t.bar().TopMost());
}

TEST(BarTray, HoveringOverTheTrayIconWithNoClickRestoresTheBarAndRemovesTheIcon) {
    BarApp t;
    t.bar().Show();
    t.bar().PictureHide.Press();
    t.bar().UserMouseMove(0, 0, 0, 0);
    EXPECT_TRUE(t.bar().Visible());
    ASSERT_EQ(t.sys.trayCalls.size(), 2u);
    EXPECT_EQ(t.sys.trayCalls[1].kind, TrayKind::Delete);
    EXPECT_EQ(t.sys.trayCalls[1].data.uID, 1);
    // Nothing else happens on that move: no drag.
    EXPECT_TRUE(t.sys.drags.empty());
}

TEST(BarTray, TheTopmostTimerComesBackWithinASecondOfTheReturnWhenTheOptionIsSet) {
    BarApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.bar().Show();
    t.bar().TimerOnTop.SetEnabled(true);
    t.bar().PictureHide.Press();
    t.bar().TimerWatchOnTop.Fire();
    EXPECT_TRUE(t.bar().TimerWatchOnTop.Enabled());
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
    t.bar().UserMouseMove(1, 0, 0, 0);
    t.bar().TimerWatchOnTop.Fire();
    EXPECT_FALSE(t.bar().TimerWatchOnTop.Enabled());
    EXPECT_TRUE(t.bar().TimerOnTop.Enabled());
    t.bar().TimerOnTop.Fire();
    EXPECT_TRUE(t.bar().TopMost());
}

TEST(BarTray, TextLeftInTheCommandBoxStaysForEverWithTheOptionOff) {
    BarApp t;
    t.bar().Show();
    t.Type(L"w;x");
    t.ClickMenu(3);
    t.ClickMenu(3);
    t.bar().PictureHide.Press();
    t.bar().UserMouseMove(0, 0, 0, 0);
    t.bar().TimerWatchOnTop.Fire();
    EXPECT_FALSE(t.bar().TimerOnTop.Enabled());
    for (int i = 0; i < 200; ++i) t.bar().TimerOnTop.Fire();
    EXPECT_EQ(t.Text(), L"w;x");
}

TEST(BarTray, TextLeftStandingIsWipedWhileTheTopmostTimerRuns) {
    BarApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.ClickMenu(3);
    t.ClickMenu(3);
    t.Type(L"w;x");
    for (int i = 0; i < 61; ++i) t.bar().TimerOnTop.Fire();
    EXPECT_EQ(t.Text(), L"");
}

TEST(BarDrag, TheLeftButtonDragsTheBarByItsSurfaceAndTheEndOfTheDragIsClamped) {
    BarApp t;
    t.bar().Show();
    t.sys.onDrag = [&t](const qs::ui::Form&) { t.bar().UserMoved(-3000, 40000 - 20000); };
    t.bar().UserMouseMove(1, 0, 200, 100);
    ASSERT_EQ(t.sys.drags.size(), 1u);
    EXPECT_EQ(t.sys.drags[0], &t.bar());
    EXPECT_EQ(t.bar().Left(), 0);
    EXPECT_EQ(t.bar().Top(), 15600 - 348);
}

TEST(BarDrag, AMoveWithoutTheButtonDragsNothingButStillClamps) {
    BarApp t;
    t.bar().Show();
    t.bar().UserMoved(30000, -50);
    t.bar().UserMouseMove(0, 0, 200, 100);
    EXPECT_TRUE(t.sys.drags.empty());
    EXPECT_EQ(t.bar().Left(), 28800 - 6360);
    EXPECT_EQ(t.bar().Top(), 0);
}

TEST(BarDrag, TheRightLimitFollowsTheBarsWidth) {
    BarApp t;
    t.bar().Show();
    t.bar().PictureZero.Press();
    t.bar().UserMoved(28000, 100);
    t.bar().UserMouseMove(0, 0, 0, 0);
    EXPECT_EQ(t.bar().Left(), 28800 - 2652);
}

TEST(BarDrag, TheTopLimitOfAWorkAreaBelowTheScreensTopUsesTheHorizontalRatio) {
    BarApp t;
    t.sys.twipsPerPixel = 15;
    t.sys.twipsPerPixelY = 12;
    t.app.place.WorkAreaTop = 40;
    t.app.place.WorkAreaLeft = 10;
    t.bar().Show();
    t.bar().UserMoved(0, 0);
    t.bar().UserMouseMove(0, 0, 0, 0);
    EXPECT_EQ(t.bar().Top(), 40 * 15);
    EXPECT_EQ(t.bar().Left(), 10 * 15);
    t.bar().UserMoved(100, 20000);
    t.bar().UserMouseMove(0, 0, 0, 0);
    // The bottom limit uses the vertical ratio.
    EXPECT_EQ(t.bar().Top(), 12 * 1040 - 348);
}

TEST(BarDrag, ABarInsideTheWorkAreaStaysPut) {
    BarApp t;
    t.bar().Show();
    t.bar().UserMoved(4000, 3000);
    t.bar().UserMouseMove(0, 0, 0, 0);
    EXPECT_EQ(t.bar().Left(), 4000);
    EXPECT_EQ(t.bar().Top(), 3000);
}

TEST(BarExit, TheExitButtonSavesThePlaceAndEndsTheProgram) {
    BarApp t;
    t.bar().Show();
    t.bar().UserMoved(4500, 2100);
    EXPECT_THROW(t.bar().PictureExit.Press(), qs::test::ProgramEnded);
    EXPECT_EQ(t.app.settings.MainLeft, 4500);
    EXPECT_EQ(t.app.settings.MainTop, 2100);
}

}  // namespace
