// The bar's three widths and the Lefts it keeps while a width pushes it in
// from the right edge of the work area.
#include <gtest/gtest.h>

#include "bar_app.h"

namespace {

using qs::test::BarApp;

TEST(BarWidths, TheWebButtonOpensAndClosesTheWebPane) {
    BarApp t;
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthWeb);
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthWeb);
    EXPECT_EQ(t.app.MainWidthPixels, 822);
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthCommand);
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthCommand);
    EXPECT_EQ(t.app.MainWidthPixels, 424);
}

TEST(BarWidths, OpeningTheWebPaneEmptiesItsBoxesAndHidesTheNameUntilAUrlIsTyped) {
    BarApp t;
    t.bar().TextWebUrl.SetText(L"http://old.example/");
    t.bar().TextWebName.SetText(L"old");
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().TextWebUrl.Text(), L"");
    EXPECT_EQ(t.bar().TextWebName.Text(), L"");
    EXPECT_FALSE(t.bar().TextWebName.Visible());
    EXPECT_FALSE(t.bar().LabelWebName.Visible());
}

TEST(BarWidths, ClosingTheWebPaneEmptiesTheCommandBox) {
    BarApp t;
    t.bar().PictureWeb.Press();
    t.Type(L"p-x");
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.Text(), L"");
}

TEST(BarWidths, OpeningTheWebPaneNearTheRightEdgeMovesTheBarLeftAndClosingBringsItBack) {
    BarApp t;
    t.bar().SetLeft(20000);
    t.bar().PictureWeb.Press();
    // 15 * (1920 - 822)
    EXPECT_EQ(t.bar().Left(), 16470);
    EXPECT_EQ(t.bar().WebSavedLeft, 20000);
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().Left(), 20000);
    EXPECT_EQ(t.bar().WebSavedLeft, -1);
}

TEST(BarWidths, ABarWithRoomForTheWebPaneStaysWhereItIs) {
    BarApp t;
    t.bar().SetLeft(16470);
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().Left(), 16470);
    EXPECT_EQ(t.bar().WebSavedLeft, -1);
}

TEST(BarWidths, StartedMinimizedTheRoundButtonWidensTo6360Not2652) {
    BarApp t;
    t.app.settings.OptionStartMinimized = 1;
    t.Reload();
    ASSERT_EQ(t.bar().Width(), qs::MainWidthZero);
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthCommand);
    EXPECT_EQ(t.app.MainWidth, qs::MainWidthCommand);
    // The width to come back to is left as Load set it.
    EXPECT_EQ(t.bar().LastWideWidth, qs::MainWidthZero);
}

TEST(BarWidths, TheRoundButtonComesBackToTheWebPaneWhenThatWasTheLastWideWidth) {
    BarApp t;
    t.bar().PictureWeb.Press();
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthZero);
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthWeb);
}

TEST(BarWidths, TheRoundButtonsTooltipAndPictureFollowTheWidth) {
    BarApp t;
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().PictureZero.ToolTipText(), L"Quillstart");
    EXPECT_EQ(t.bar().PictureZero.Picture(), t.app.theme.ImageZeroSet[3]);
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().PictureZero.ToolTipText(), L"Minimize On Screen");
    EXPECT_EQ(t.bar().PictureZero.Picture(), t.app.theme.ImageZeroSet[2]);
}

TEST(BarWidths, WideningEmptiesEveryBox) {
    BarApp t;
    t.bar().PictureZero.Press();
    t.Type(L"p-x");
    t.bar().TextWebUrl.SetText(L"http://a.example/");
    t.bar().TextWebName.SetText(L"a");
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.bar().TextWebUrl.Text(), L"");
    EXPECT_EQ(t.bar().TextWebName.Text(), L"");
}

TEST(BarWidths, WideningNearTheRightEdgeMovesTheBarLeftWithItsOwnSavedLeft) {
    BarApp t;
    t.app.settings.OptionStartMinimized = 1;
    t.Reload();
    t.bar().SetLeft(26000);
    t.bar().PictureZero.Press();
    // 15 * (1920 - 424)
    EXPECT_EQ(t.bar().Left(), 22440);
    EXPECT_EQ(t.bar().ZeroSavedLeft, 26000);
    EXPECT_EQ(t.bar().WebSavedLeft, -1);
    t.bar().PictureZero.Press();
    EXPECT_EQ(t.bar().Left(), 26000);
    EXPECT_EQ(t.bar().ZeroSavedLeft, -1);
}

TEST(BarWidths, TheTwoSavedLeftsAreKeptApart) {
    BarApp t;
    t.bar().SetLeft(20000);
    t.bar().PictureWeb.Press();
    ASSERT_EQ(t.bar().WebSavedLeft, 20000);
    t.bar().PictureZero.Press();
    t.bar().PictureZero.Press();
    // Widening back to the web pane from 16470 needs no push.
    EXPECT_EQ(t.bar().ZeroSavedLeft, -1);
    t.bar().PictureWeb.Press();
    EXPECT_EQ(t.bar().Left(), 20000);
}

TEST(BarWidths, TheRoundButtonShowsItsPressedPictureWhileHeld) {
    BarApp t;
    t.bar().PictureZero.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(t.bar().PictureZero.Picture(), t.app.theme.ImageZeroOver);
    t.bar().PictureZero.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(t.bar().PictureZero.Picture(), t.app.theme.ImageZeroSet[2]);
}

TEST(BarWidths, EnterInAnEmptyCommandBoxClosesTheWebPane) {
    BarApp t;
    t.bar().PictureWeb.Press();
    t.Enter();
    EXPECT_EQ(t.bar().Width(), qs::MainWidthCommand);
}

}  // namespace
