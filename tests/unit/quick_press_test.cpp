// The QuickLauncher's press and release pictures, and the keys that click
// its buttons.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/failure.h"
#include "quick_app.h"
#include "theme/active_theme.h"
#include "theme/checked_set.h"

namespace {

using qs::test::QuickApp;
using qs::ui::PictureRef;
using qs::ui::PictureSlot;

struct QuickPress : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    void SetUp() override {
        for (int g = 0; g < 5; ++g) t.AddItems(g, 25);
        t.LoadQuick();
    }
    void UseTheme(std::int16_t theme) {
        std::int16_t index = theme;
        qs::ThemeCreate(t.app, index);
    }
};

TEST_F(QuickPress, TheArrowsShowThePressedPictureAndTheirOwnArrowOnRelease) {
    UseTheme(3);
    q().ImageQuickBack.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickBack.Picture(), t.app.theme.ImageZeroOver);
    q().ImageQuickBack.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickBack.Picture(), (PictureRef{PictureSlot::ImageMBackward, 3}));
    q().ImageQuickForward.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickForward.Picture(), t.app.theme.ImageZeroOver);
    q().ImageQuickForward.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickForward.Picture(), (PictureRef{PictureSlot::ImageMForward, 3}));
}

TEST_F(QuickPress, AGroupButtonIsReleasedOnTheChoicePictureOfTheThemeNumberNotOfItsGroup) {
    UseTheme(1);
    q().ImageQuickChoice(3).UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickChoice(3).Picture(), (PictureRef{PictureSlot::ImageMQChoiceDown, 3}));
    q().ImageQuickChoice(3).UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(q().ImageQuickChoice(3).Picture(), t.app.theme.ImageChoiceSet[1]);
}

TEST_F(QuickPress, ReleasingAGroupButtonInThemesFiveAndSixRaisesTheSubscriptFailure) {
    for (std::int16_t theme : {5, 6}) {
        UseTheme(theme);
        EXPECT_THROW(q().ImageQuickChoice(0).UserMouseUp(1, 0, 0, 0), qs::SubscriptOutOfRange) << theme;
    }
}

TEST_F(QuickPress, ReleasingAGroupButtonInThemesZeroToFourDoesNotFail) {
    for (std::int16_t theme = 0; theme <= 4; ++theme) {
        UseTheme(theme);
        EXPECT_NO_THROW(q().ImageQuickChoice(2).UserMouseUp(1, 0, 0, 0)) << theme;
        EXPECT_EQ(q().ImageQuickChoice(2).Picture(), t.app.theme.ImageChoiceSet[static_cast<std::size_t>(theme)]);
    }
}

TEST(QuickCheckedSet, AFiveEntrySetReadOutsideItsBoundsRaisesTheSubscriptFailure) {
    const std::array<PictureRef, 5> set{{{PictureSlot::ImageMU, 0},
                                         {PictureSlot::ImageMU, 1},
                                         {PictureSlot::ImageMU, 2},
                                         {PictureSlot::ImageMU, 3},
                                         {PictureSlot::ImageMU, 4}}};
    EXPECT_EQ(qs::FiveSetEntry(set, 4), (PictureRef{PictureSlot::ImageMU, 4}));
    EXPECT_THROW(qs::FiveSetEntry(set, 5), qs::SubscriptOutOfRange);
    EXPECT_THROW(qs::FiveSetEntry(set, 6), qs::SubscriptOutOfRange);
    EXPECT_THROW(qs::FiveSetEntry(set, -1), qs::SubscriptOutOfRange);
}

TEST_F(QuickPress, EnterOrSpaceOnAGroupButtonShowsItsGroup) {
    q().ImageQuickChoice(1).UserKeyPress(L'\r');
    EXPECT_EQ(q().QuickGroup, 1);
    q().ImageQuickChoice(4).UserKeyPress(L' ');
    EXPECT_EQ(q().QuickGroup, 4);
    q().ImageQuickChoice(0).UserKeyPress(L'a');
    EXPECT_EQ(q().QuickGroup, 4);
}

TEST_F(QuickPress, EnterOrSpaceOnAnItemButtonLaunchesIt) {
    q().ImageQuickChoice(2).UserKeyPress(L'\r');
    q().ImageQuick(0).UserKeyPress(L'x');
    EXPECT_TRUE(t.sys.launches.empty());
    q().ImageQuick(0).UserKeyPress(L'\r');
    q().ImageQuick(1).UserKeyPress(L' ');
    ASSERT_EQ(t.sys.launches.size(), 2u);
    EXPECT_EQ(t.sys.launches[0].target, QuickApp::ItemPath(2, 1));
    EXPECT_EQ(t.sys.launches[1].target, QuickApp::ItemPath(2, 2));
}

TEST_F(QuickPress, EnterOrSpaceTurnsThePagesAndTogglesTheSizes) {
    q().ImageQuickChoice(0).UserKeyPress(L'\r');
    q().ImageQuickForward.UserKeyPress(L' ');
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 21-25");
    q().ImageQuickBack.UserKeyPress(L'\r');
    EXPECT_EQ(q().LabelQuickShowing.Caption(), L"Showing: 1-20");
    q().ImageQuickZero.UserKeyPress(L'\r');
    EXPECT_EQ(q().Width(), 588);
    q().ImageQuickHeight.UserKeyPress(L' ');
    EXPECT_EQ(q().Height(), 372);
    q().ImageQuickHeightA.UserKeyPress(L'\r');
    EXPECT_EQ(q().Height(), 744);
}

TEST_F(QuickPress, EveryPictureButtonIsNamedByItsTooltip) {
    q().ImageQuickChoice(2).Press();
    q().ImageQuickForward.Press();
    for (const qs::ui::Control* control : q().Controls()) {
        const auto* button = dynamic_cast<const qs::ui::PictureBox*>(control);
        if (button == nullptr || !button->Click) continue;
        EXPECT_FALSE(button->ToolTipText().empty()) << std::string(button->Name().begin(), button->Name().end());
        EXPECT_TRUE(button->KeyPress) << std::string(button->Name().begin(), button->Name().end());
    }
    EXPECT_EQ(q().ImageQuickChoice(2).ToolTipText(), L"Show Buttons Of Program List");
    for (std::int16_t i = 0; i < 5; ++i) EXPECT_EQ(q().ImageQuick(i).ToolTipText(), QuickApp::ItemName(21 + i));
}

TEST_F(QuickPress, EveryButtonHasItsOwnPlaceInTheTabOrder) {
    std::vector<std::int16_t> tabs;
    for (const auto& b : q().ImageQuickChoice) tabs.push_back(b->TabIndex());
    for (const auto& b : q().ImageQuick) tabs.push_back(b->TabIndex());
    for (const qs::ui::PictureBox* b : {&q().ImageQuickBack, &q().ImageQuickForward, &q().ImageQuickZero,
                                        &q().ImageQuickHeight, &q().ImageQuickHeightA, &q().ImageHideQuick}) {
        tabs.push_back(b->TabIndex());
    }
    std::sort(tabs.begin(), tabs.end());
    EXPECT_EQ(std::adjacent_find(tabs.begin(), tabs.end()), tabs.end());
    EXPECT_EQ(q().ImageQuickChoice(1).TabIndex(), 0);
    EXPECT_EQ(q().ImageQuickChoice(0).TabIndex(), 1);
    EXPECT_LT(q().ImageQuickChoice(4).TabIndex(), q().ImageQuick(0).TabIndex());
    EXPECT_LT(q().ImageQuick(19).TabIndex(), q().ImageHideQuick.TabIndex());
}

}  // namespace
