// Hover pictures by polling: which picture each button takes on a tick, and
// that an idle bar tells its windows nothing.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "theme/active_theme.h"

namespace {

using qs::test::BarApp;
using qs::test::CountingPeer;

// The bar at (1500, 900) twips: PictureWeb covers pixels 420..435 by 62..77.
struct Hover : ::testing::Test {
    BarApp t;
    void SetUp() override {
        t.bar().Move(1500, 900, qs::MainWidthCommand, qs::MainHeight);
        t.sys.cursor = {5, 5};
    }
    void Tick() { t.bar().TimerMouseOver.Fire(); }
    void PointAt(const qs::ui::Control& c) {
        t.sys.cursor = {(t.bar().Left() + c.Left()) / 15 + 2, (t.bar().Top() + c.Top()) / 15 + 2};
    }
    const qs::ThemeState& s() { return t.app.theme; }
};

TEST_F(Hover, EveryButtonRestsInItsNormalPictureWithThePointerAway) {
    Tick();
    for (std::int16_t i = 0; i < 5; ++i) EXPECT_EQ(t.bar().PictureMenu(i).Picture(), s().ButtonNormal[i]);
    EXPECT_EQ(t.bar().PictureWeb.Picture(), s().ButtonNormal[5]);
    EXPECT_EQ(t.bar().PictureHelp.Picture(), s().ButtonNormal[6]);
    EXPECT_EQ(t.bar().PictureHide.Picture(), s().ButtonNormal[7]);
    EXPECT_EQ(t.bar().PictureExit.Picture(), s().ButtonNormal[8]);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), s().ImageQuickClosed);
    EXPECT_EQ(t.bar().PictureZero.Picture(), s().ImageZeroSet[2]);
}

TEST_F(Hover, TheButtonUnderThePointerTakesItsOverPicture) {
    for (std::int16_t i = 0; i < 5; ++i) {
        PointAt(t.bar().PictureMenu(i));
        Tick();
        EXPECT_EQ(t.bar().PictureMenu(i).Picture(), s().ButtonOver[i]);
    }
    PointAt(t.bar().PictureWeb);
    Tick();
    EXPECT_EQ(t.bar().PictureWeb.Picture(), s().ButtonOver[5]);
    PointAt(t.bar().PictureHelp);
    Tick();
    EXPECT_EQ(t.bar().PictureHelp.Picture(), s().ButtonOver[6]);
    PointAt(t.bar().PictureHide);
    Tick();
    EXPECT_EQ(t.bar().PictureHide.Picture(), s().ButtonOver[7]);
    PointAt(t.bar().PictureExit);
    Tick();
    EXPECT_EQ(t.bar().PictureExit.Picture(), s().ButtonOver[8]);
    EXPECT_EQ(t.bar().PictureHide.Picture(), s().ButtonNormal[7]);
    PointAt(t.bar().PictureShowQuick);
    Tick();
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), s().ImageQuickOver);
    PointAt(t.bar().PictureZero);
    Tick();
    EXPECT_EQ(t.bar().PictureZero.Picture(), s().ImageZeroOver);
}

TEST_F(Hover, TheRectangleIncludesItsEdgesOnEverySide) {
    // PictureWeb: left 420, top 62, right 435, bottom 77.
    for (const qs::PixelPoint p : {qs::PixelPoint{420, 62}, qs::PixelPoint{435, 77}, qs::PixelPoint{435, 62}}) {
        t.sys.cursor = p;
        Tick();
        EXPECT_EQ(t.bar().PictureWeb.Picture(), s().ButtonOver[5]);
    }
    for (const qs::PixelPoint p : {qs::PixelPoint{419, 62}, qs::PixelPoint{436, 70}, qs::PixelPoint{425, 78}}) {
        t.sys.cursor = p;
        Tick();
        EXPECT_EQ(t.bar().PictureWeb.Picture(), s().ButtonNormal[5]);
    }
}

TEST_F(Hover, TheOpenPanesButtonAndTheOpenWindowsButtonsShowActive) {
    t.ClickMenu(3);
    t.bar().PictureHelp.Press();
    t.ClickMenu(4);
    t.bar().PictureWeb.Press();
    Tick();
    EXPECT_EQ(t.bar().PictureMenu(4).Picture(), s().ButtonActive[4]);
    EXPECT_EQ(t.bar().PictureMenu(3).Picture(), s().ButtonNormal[3]);
    EXPECT_EQ(t.bar().PictureHelp.Picture(), s().ButtonActive[6]);
    EXPECT_EQ(t.bar().PictureWeb.Picture(), s().ButtonActive[5]);
    t.bar().PictureShowQuick.Press();
    Tick();
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), s().ImageQuickOpen);
    EXPECT_EQ(t.bar().PictureMenu(4).Picture(), s().ButtonNormal[4]);
}

TEST_F(Hover, TheHideAndExitButtonsHaveNoActiveLook) {
    t.bar().PictureHide.Press();
    Tick();
    EXPECT_EQ(t.bar().PictureHide.Picture(), s().ButtonNormal[7]);
}

TEST_F(Hover, TheRoundButtonFollowsTheLastWideWidthSoTheMinimisedPictureLastsOneTick) {
    t.bar().PictureZero.Press();
    ASSERT_EQ(t.bar().PictureZero.Picture(), s().ImageZeroSet[3]);
    Tick();
    EXPECT_EQ(t.bar().PictureZero.Picture(), s().ImageZeroSet[2]);
}

TEST_F(Hover, StartedMinimisedTheRoundButtonKeepsTheMinimisedPicture) {
    t.app.settings.OptionStartMinimized = 1;
    t.Reload();
    Tick();
    EXPECT_EQ(t.bar().PictureZero.Picture(), s().ImageZeroSet[3]);
}

TEST_F(Hover, AButtonCutOffByTheMinimisedBarsEdgeStillAnswersThePointer) {
    t.bar().PictureZero.Press();
    PointAt(t.bar().PictureExit);
    Tick();
    EXPECT_EQ(t.bar().PictureExit.Picture(), s().ButtonOver[8]);
}

TEST_F(Hover, EachButtonReadsThePointerOnEveryTick) {
    const auto before = t.sys.cursorReads;
    Tick();
    EXPECT_EQ(t.sys.cursorReads - before, 11);
}

TEST_F(Hover, AnIdleBarTellsItsWindowsNothingAfterTheFirstTick) {
    Tick();
    std::vector<CountingPeer> peers(11);
    std::vector<qs::ui::PictureBox*> buttons = {&t.bar().PictureShowQuick, &t.bar().PictureZero, &t.bar().PictureWeb,
                                                &t.bar().PictureHelp,      &t.bar().PictureHide, &t.bar().PictureExit};
    for (std::int16_t i = 0; i < 5; ++i) buttons.push_back(&t.bar().PictureMenu(i));
    for (std::size_t i = 0; i < buttons.size(); ++i) buttons[i]->AttachPeer(&peers[i]);
    for (int i = 0; i < 100; ++i) Tick();
    PointAt(t.bar().PictureHelp);
    for (int i = 0; i < 100; ++i) Tick();
    std::int64_t total = 0;
    for (const auto& p : peers) total += p.pictures;
    // Only the pointer's arrival on PictureHelp changed a picture.
    EXPECT_EQ(total, 1);
    EXPECT_EQ(peers[3].pictures, 1);
    for (auto* b : buttons) b->AttachPeer(nullptr);
}

TEST_F(Hover, AThemeChangeReachesTheButtonsAtTheNextTick) {
    Tick();
    std::int16_t theme = 4;
    qs::ThemeCreate(t.app, theme);
    Tick();
    EXPECT_EQ(t.bar().PictureExit.Picture(), s().ButtonNormal[8]);
    EXPECT_EQ(qs::ui::PictureName(t.bar().PictureExit.Picture()), L"ImageMenu(88)");
}

}  // namespace
