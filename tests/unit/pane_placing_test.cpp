// Where a pane opens beside the bar: below, above, or with the bar pushed to
// the top of the work area.
#include <gtest/gtest.h>

#include "common/failure.h"
#include "test_app.h"
#include "windows/pane_placing.h"

namespace {

using qs::test::TestApp;

// A work area of 1280 x 800 pixels at 15 twips a pixel: 12,000 twips high.
void WorkArea(TestApp& t, std::int32_t top, std::int32_t bottom) {
    t.app.place.WorkAreaTop = top;
    t.app.place.WorkAreaBottom = bottom;
}

TEST(PanePlacing, APaneThatFitsBelowTheBarOpensBelowIt) {
    TestApp t;
    WorkArea(t, 0, 800);
    t.app.frmMain.Move(3000, 1000, 6360, 348);
    t.app.frmBrowse.Move(0, 0, 5400, 8652);
    qs::PlacePaneByTheBar(t.app, t.app.frmBrowse);
    EXPECT_EQ(t.app.frmBrowse.Left(), 3600);
    EXPECT_EQ(t.app.frmBrowse.Top(), 1000 + 348 + 120);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST(PanePlacing, ABarNearTheBottomOpensItsPaneAbove) {
    TestApp t;
    WorkArea(t, 0, 800);
    t.app.frmMain.Move(3000, 11000, 6360, 348);
    t.app.frmBrowse.Move(0, 0, 5400, 8652);
    qs::PlacePaneByTheBar(t.app, t.app.frmBrowse);
    EXPECT_EQ(t.app.frmBrowse.Top(), 11000 - (8652 + 120));
    EXPECT_EQ(t.app.frmMain.Top(), 11000);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST(PanePlacing, APaneThatFitsNeitherSideMovesTheBarToTheTopAndKeepsItsOldTop) {
    TestApp t;
    WorkArea(t, 0, 600);  // 9,000 twips
    t.app.frmMain.Move(3000, 5000, 6360, 348);
    t.app.frmBrowse.Move(0, 0, 5400, 8652);
    qs::PlacePaneByTheBar(t.app, t.app.frmBrowse);
    EXPECT_EQ(t.app.SavedMainTop, 5000);
    EXPECT_EQ(t.app.frmMain.Top(), 0);
    EXPECT_EQ(t.app.frmBrowse.Top(), 348 + 120);
}

TEST(PanePlacing, AWorkAreaBelowTheScreenTopIsTurnedIntoTwips) {
    TestApp t;
    WorkArea(t, 40, 640);  // a bar of 40 pixels at the top: 600 twips
    t.app.frmMain.Move(3000, 5000, 6360, 348);
    t.app.frmBrowse.Move(0, 0, 5400, 8652);
    qs::PlacePaneByTheBar(t.app, t.app.frmBrowse);
    EXPECT_EQ(t.app.frmMain.Top(), 600);
    EXPECT_EQ(t.app.frmBrowse.Top(), 600 + 348 + 120);
}

TEST(PanePlacing, PositionsArePastSixteenBitsAnOverflow) {
    TestApp t;
    WorkArea(t, 0, 800);
    t.app.frmMain.Move(32500, 1000, 6360, 348);
    EXPECT_THROW(qs::PlacePaneByTheBar(t.app, t.app.frmBrowse), qs::Overflow);
}

}  // namespace
