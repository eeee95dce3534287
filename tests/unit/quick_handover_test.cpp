// The bar's QuickLauncher button: where the window shows, the group it
// opens on, and the window's own button that hides it through the bar.
#include <gtest/gtest.h>

#include "quick_app.h"

namespace {

using qs::test::QuickApp;

// Counts the focus requests a control makes.
class FocusPeer : public qs::ui::ControlPeer {
public:
    void Changed(qs::ui::Property what) override {
        if (what == qs::ui::Property::Focus) ++focusRequests;
    }
    int focusRequests = 0;
};

struct QuickHandover : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    void Load(std::int16_t preferred) {
        t.app.settings.QuickDefaultItem = preferred;
        t.LoadQuick();
    }
    void ClickShow() { t.bar().PictureShowQuick.Press(); }
};

TEST_F(QuickHandover, TheFirstShowOpensOnThePreferredGroup) {
    t.AddItems(2, 3);
    t.AddItems(4, 1);
    Load(2);
    ClickShow();
    EXPECT_TRUE(t.app.QuickOpen);
    EXPECT_TRUE(q().Visible());
    EXPECT_EQ(q().QuickGroup, 2);
    EXPECT_EQ(t.ShownItems().size(), 3u);
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-3");
    EXPECT_EQ(q().QuickPendingGroup, -1);
    EXPECT_TRUE(t.bar().QuickListShown);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickOpen);
}

TEST_F(QuickHandover, LaterShowsKeepTheGroupTheUserChose) {
    t.AddItems(2, 3);
    t.AddItems(4, 1);
    Load(2);
    ClickShow();
    q().ImageQuickChoice(4).Press();
    ClickShow();
    EXPECT_FALSE(q().Visible());
    ClickShow();
    EXPECT_EQ(q().QuickGroup, 4);
    EXPECT_EQ(t.ShownItems().size(), 1u);
}

TEST_F(QuickHandover, ThePreferredGroupNoneShowsNoGroupAndKeepsSelectItemType) {
    t.AddItems(2, 3);
    Load(5);
    ClickShow();
    EXPECT_TRUE(q().Visible());
    EXPECT_EQ(q().QuickGroup, 5);
    EXPECT_TRUE(t.ShownItems().empty());
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Select Item Type");
    EXPECT_FALSE(t.bar().QuickListShown);
    EXPECT_TRUE(q().ImageQuickChoice(2).Visible());
}

TEST_F(QuickHandover, APreferredGroupWithNoItemsShowsNothingAndIsNotAskedAgain) {
    t.AddItems(2, 3);
    Load(0);
    ClickShow();
    EXPECT_TRUE(t.ShownItems().empty());
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Select Item Type");
    EXPECT_EQ(q().QuickPendingGroup, -1);
    EXPECT_TRUE(t.bar().QuickListShown);
}

TEST_F(QuickHandover, TheWindowShowsBelowTheBarAtItsLeft) {
    t.AddItems(2, 1);
    Load(2);
    t.bar().Move(3000, 3000, 6360, 348);
    ClickShow();
    EXPECT_EQ(q().Top(), 3348);
    EXPECT_EQ(q().Left(), 3000);
    EXPECT_EQ(q().QuickTop, 3348);
}

TEST_F(QuickHandover, ABarNearTheBottomShowsTheWindowAboveIt) {
    t.AddItems(2, 1);
    Load(2);
    t.bar().Move(3000, 15000, 6360, 348);
    ClickShow();
    EXPECT_EQ(q().Top(), 15000 - 744);
    EXPECT_EQ(q().QuickTop, 15000 - 744);
}

TEST_F(QuickHandover, ABarNearTheRightEdgeShowsTheWindowPushedIn) {
    t.AddItems(2, 1);
    Load(2);
    t.bar().Move(20000, 3000, 6360, 348);
    ClickShow();
    EXPECT_EQ(q().Left(), 15 * 1920 - 10332);
}

TEST_F(QuickHandover, TheHalfHeightAndCutWidthCountInThePlace) {
    t.AddItems(2, 1);
    Load(2);
    q().ImageQuickHeight.Press();
    q().ImageQuickZero.Press();
    t.bar().Move(28400, 15000, 6360, 348);
    ClickShow();
    EXPECT_EQ(q().Top(), 15000 - 372);
    EXPECT_EQ(q().Left(), 15 * 1920 - 588);
}

TEST_F(QuickHandover, APlaceTheUserGaveIsKeptForEveryShow) {
    t.AddItems(2, 1);
    Load(2);
    q().QuickPosKnown = true;
    q().QuickTop = 900;
    q().QuickLeft = 1200;
    t.bar().Move(3000, 3000, 6360, 348);
    ClickShow();
    EXPECT_EQ(q().Top(), 900);
    EXPECT_EQ(q().Left(), 1200);
}

TEST_F(QuickHandover, ShowingTheWindowClosesTheOpenPane) {
    t.AddItems(2, 1);
    Load(2);
    t.ClickMenu(0);
    ClickShow();
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.frmBrowse.Visible());
}

TEST_F(QuickHandover, ASecondClickHidesTheWindow) {
    t.AddItems(2, 1);
    Load(2);
    ClickShow();
    ClickShow();
    EXPECT_FALSE(t.app.QuickOpen);
    EXPECT_FALSE(q().Visible());
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickClosed);
}

TEST_F(QuickHandover, TheWindowsHideButtonHidesItThroughTheBar) {
    t.AddItems(2, 1);
    Load(2);
    ClickShow();
    q().ImageHideQuick.Press();
    EXPECT_FALSE(t.app.QuickOpen);
    EXPECT_FALSE(q().Visible());
    EXPECT_EQ(t.app.PendingClick, -1);
    EXPECT_EQ(t.bar().PictureShowQuick.Picture(), t.app.theme.ImageQuickClosed);
    // The bar's button then shows it again.
    ClickShow();
    EXPECT_TRUE(q().Visible());
}

TEST_F(QuickHandover, EnterOnTheHideButtonHidesTheWindowToo) {
    t.AddItems(2, 1);
    Load(2);
    ClickShow();
    q().ImageHideQuick.UserKeyPress(L'\r');
    EXPECT_FALSE(q().Visible());
    EXPECT_FALSE(t.app.QuickOpen);
}

TEST_F(QuickHandover, TheWindowShowsWithoutTakingTheKeyboardFromTheCommandBox) {
    EXPECT_FALSE(q().TakesFocusWhenShown());
}

TEST_F(QuickHandover, ShowingTheWindowTakesTheFocusFromNothing) {
    t.AddItems(2, 1);
    Load(2);
    std::vector<std::unique_ptr<FocusPeer>> peers;
    for (qs::ui::Control* control : q().Controls()) {
        peers.push_back(std::make_unique<FocusPeer>());
        control->AttachPeer(peers.back().get());
    }
    ClickShow();
    ASSERT_TRUE(q().Visible());
    for (const auto& peer : peers) EXPECT_EQ(peer->focusRequests, 0);
    for (qs::ui::Control* control : q().Controls()) control->AttachPeer(nullptr);
}

}  // namespace
