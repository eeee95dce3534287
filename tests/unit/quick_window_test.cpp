// The QuickLauncher as a window: its heights and widths, and the drag that
// keeps it in the work area by its own size.
#include <gtest/gtest.h>

#include "quick_app.h"

namespace {

using qs::test::QuickApp;

struct QuickWindow : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    void SetUp() override {
        t.AddItems(2, 3);
        t.LoadQuick();
    }
};

TEST_F(QuickWindow, TogglingTheHeightWithTheWindowAboveTheBarMovesItToTopZero) {
    t.bar().Move(3000, 10000, 6360, 348);
    q().Move(3000, 10000 - 744, 10332, 744);
    q().QuickTop = 10000 - 744;
    q().ImageQuickHeight.Press();
    EXPECT_EQ(q().Height(), 372);
    EXPECT_EQ(q().Top(), 0);
    EXPECT_EQ(q().ImageQuickHeight.Picture(), t.app.theme.ImageQuickClosed);
    q().ImageQuickHeight.Press();
    EXPECT_EQ(q().Height(), 744);
    EXPECT_EQ(q().Top(), 0);
    EXPECT_EQ(q().ImageQuickHeight.Picture(), t.app.theme.ImageQuickOpen);
}

TEST_F(QuickWindow, TogglingTheHeightBelowTheBarKeepsTheTopItWasShownAt) {
    t.bar().Move(3000, 3000, 6360, 348);
    q().Move(3000, 3348, 10332, 744);
    q().QuickTop = 3348;
    q().ImageQuickHeightA.Press();
    EXPECT_EQ(q().Height(), 372);
    EXPECT_EQ(q().Top(), 3348);
    q().ImageQuickHeightA.Press();
    EXPECT_EQ(q().Height(), 744);
    EXPECT_EQ(q().Top(), 3348);
}

TEST_F(QuickWindow, TheFullHeightNearTheWorkAreasBottomIsPulledUpToFit) {
    t.bar().Move(3000, 14800, 6360, 348);
    q().Move(3000, 15200, 10332, 372);
    q().QuickTop = 15200;
    q().ImageQuickHeight.Press();
    EXPECT_EQ(q().Height(), 744);
    EXPECT_EQ(q().Top(), 15 * 1040 - 744);
    q().ImageQuickHeight.Press();
    EXPECT_EQ(q().Height(), 372);
    EXPECT_EQ(q().Top(), 15200);
}

TEST_F(QuickWindow, TheHeightToggleForgetsTheButtonLastClicked) {
    q().ImageQuickChoice(2).Press();
    q().ImageQuick(1).Press();
    ASSERT_EQ(q().QuickItemClicked, 1);
    q().ImageQuickHeight.Press();
    EXPECT_EQ(q().QuickItemClicked, -1);
}

TEST_F(QuickWindow, TheWidthToggleCutsTheWindowToTheRoundButtonAndBack) {
    q().ImageQuickZero.Press();
    EXPECT_EQ(q().Width(), 588);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[3]);
    EXPECT_EQ(q().ImageQuickZero.ToolTipText(), L"QuickLauncher");
    q().ImageQuickZero.Press();
    EXPECT_EQ(q().Width(), 10332);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_EQ(q().ImageQuickZero.ToolTipText(), L"Minimize On Screen");
}

TEST_F(QuickWindow, TheRoundButtonShowsItsPressedPictureWhileHeldAndItsWidthsAfter) {
    q().ImageQuickZero.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroOver);
    q().ImageQuickZero.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[2]);
    q().SetWidth(588);
    q().ImageQuickZero.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[3]);
}

TEST_F(QuickWindow, TheLeftButtonDragsTheWindowAndTheEndOfTheDragIsClampedByItsOwnSize) {
    q().Show();
    t.sys.onDrag = [this](const qs::ui::Form&) { q().UserMoved(28000, 15500); };
    q().UserMouseMove(1, 0, 30, 30);
    ASSERT_EQ(t.sys.drags.size(), 1u);
    EXPECT_EQ(t.sys.drags[0], &q());
    EXPECT_EQ(q().Left(), 28800 - 10332);
    EXPECT_EQ(q().Top(), 15600 - 744);
    EXPECT_TRUE(q().QuickPosKnown);
    EXPECT_EQ(q().QuickLeft, 28800 - 10332);
    EXPECT_EQ(q().QuickTop, 15600 - 744);
}

TEST_F(QuickWindow, TheClampFollowsTheCutWidthAndTheHalfHeight) {
    q().Show();
    q().ImageQuickZero.Press();
    q().ImageQuickHeight.Press();
    q().UserMoved(28500, 15500);
    q().UserMouseMove(0, 0, 0, 0);
    EXPECT_EQ(q().Left(), 28800 - 588);
    EXPECT_EQ(q().Top(), 15600 - 372);
}

TEST_F(QuickWindow, AMoveWithoutTheButtonDragsNothingButFixesThePlaceForTheRun) {
    q().Show();
    q().UserMoved(4000, 2000);
    q().UserMouseMove(0, 0, 10, 10);
    EXPECT_TRUE(t.sys.drags.empty());
    EXPECT_EQ(q().Left(), 4000);
    EXPECT_EQ(q().Top(), 2000);
    EXPECT_TRUE(q().QuickPosKnown);
    EXPECT_EQ(q().QuickLeft, 4000);
    EXPECT_EQ(q().QuickTop, 2000);
}

}  // namespace
