// The bar's once-a-second timer: back on top, and text left standing wiped.
#include <gtest/gtest.h>

#include "test_app.h"

namespace {

using qs::test::TestApp;

TEST(TimerOnTop, EachTickPutsTheBarOnTop) {
    TestApp t;
    t.app.frmMain.SetTopMost(false);
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    t.app.frmMain.TimerOnTop.Fire();
    EXPECT_TRUE(t.app.frmMain.TopMost());
}

TEST(TimerOnTop, TextLeftStandingIsWipedAfterSixtyOneTicksWithText) {
    TestApp t;
    auto& timer = t.app.frmMain.TimerOnTop;
    timer.SetEnabled(true);
    t.Type(L"w;x");
    for (int i = 0; i < 60; ++i) timer.Fire();
    EXPECT_EQ(t.Text(), L"w;x");
    timer.Fire();
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.app.frmMain.IdleTicks, 0);
}

TEST(TimerOnTop, TicksWithAnEmptyBoxCountNothingAndTheCountIsKept) {
    TestApp t;
    auto& timer = t.app.frmMain.TimerOnTop;
    timer.SetEnabled(true);
    t.Type(L"w;x");
    for (int i = 0; i < 30; ++i) timer.Fire();
    t.ClearBox();
    for (int i = 0; i < 100; ++i) timer.Fire();
    t.Type(L"w;y");
    for (int i = 0; i < 30; ++i) timer.Fire();
    EXPECT_EQ(t.Text(), L"w;y");
    timer.Fire();
    EXPECT_EQ(t.Text(), L"");
}

TEST(TimerOnTop, DisabledTimerWipesNothing) {
    TestApp t;
    t.Type(L"w;x");
    for (int i = 0; i < 100; ++i) t.app.frmMain.TimerOnTop.Fire();
    EXPECT_EQ(t.Text(), L"w;x");
}

}  // namespace
