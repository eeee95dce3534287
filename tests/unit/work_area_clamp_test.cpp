// The work-area rule by a window's own size, shared by the bar and the
// QuickLauncher.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "common/failure.h"
#include "windows/work_area_clamp.h"

namespace {

using qs::KeepInWorkArea;
using qs::test::BarApp;

// A borderless window of no program window's size.
struct Strip : qs::ui::Form {
    Strip() : Form(L"frmStrip", qs::ui::FormStyle::Borderless) {}
};

TEST(WorkAreaClamp, TheRightAndBottomLimitsFollowTheSizeGiven) {
    BarApp t;
    Strip f;
    f.Move(28000, 16000, 10332, 744);
    KeepInWorkArea(t.app, f, 10332, 744);
    EXPECT_EQ(f.Left(), 28800 - 10332);
    EXPECT_EQ(f.Top(), 15600 - 744);
}

TEST(WorkAreaClamp, TheSizeGivenNotTheFormsOwnSetsTheLimits) {
    BarApp t;
    Strip f;
    f.Move(29000, 16000, 10332, 744);
    KeepInWorkArea(t.app, f, 588, 372);
    EXPECT_EQ(f.Left(), 28800 - 588);
    EXPECT_EQ(f.Top(), 15600 - 372);
}

TEST(WorkAreaClamp, LeftAndTopBelowTheirLimitsGoToTheLimitsWithTheHorizontalRatioForTheTop) {
    BarApp t;
    t.sys.twipsPerPixel = 15;
    t.sys.twipsPerPixelY = 12;
    t.app.place.WorkAreaTop = 40;
    t.app.place.WorkAreaLeft = 10;
    Strip f;
    f.Move(-500, -500, 10332, 744);
    KeepInWorkArea(t.app, f, 10332, 744);
    EXPECT_EQ(f.Left(), 10 * 15);
    EXPECT_EQ(f.Top(), 40 * 15);
}

TEST(WorkAreaClamp, ALimitPastSixteenBitsIsAnOverflow) {
    BarApp t;
    t.app.place.WorkAreaRight = 4000;
    Strip f;
    f.Move(0, 0, 588, 372);
    EXPECT_THROW(KeepInWorkArea(t.app, f, 588, 372), qs::Overflow);
}

TEST(WorkAreaClamp, AWindowInsideStaysPut) {
    BarApp t;
    Strip f;
    f.Move(4000, 3000, 10332, 744);
    KeepInWorkArea(t.app, f, 10332, 744);
    EXPECT_EQ(f.Left(), 4000);
    EXPECT_EQ(f.Top(), 3000);
}

}  // namespace
