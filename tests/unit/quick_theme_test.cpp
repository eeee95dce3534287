// The QuickLauncher in each theme: strips and labels by kind, the buttons
// by the window's state.
#include <gtest/gtest.h>

#include "quick_app.h"
#include "shown_messages.h"
#include "theme/active_theme.h"

namespace {

using qs::test::QuickApp;
using qs::ui::PictureRef;
using qs::ui::PictureSlot;

struct QuickTheme : ::testing::Test {
    QuickApp t;
    qs::FrmQuick& q() { return t.quick(); }
    void UseTheme(std::int16_t theme) {
        std::int16_t index = theme;
        qs::ThemeCreate(t.app, index);
    }
    static PictureRef Star(std::int16_t theme) { return {PictureSlot::ImageMStar, theme}; }
};

TEST_F(QuickTheme, TheStripsTakeTheThemesZeroSmallMediumAndBigPictures) {
    t.LoadQuick();
    UseTheme(3);
    EXPECT_EQ(q().PictureZeroBack.Picture(), (PictureRef{PictureSlot::ImageBackZero, 3}));
    EXPECT_EQ(q().PictureTotalBack.Picture(), (PictureRef{PictureSlot::ImageBackZero, 3}));
    EXPECT_EQ(q().PictureBrowseBack.Picture(), (PictureRef{PictureSlot::ImageQBackS, 3}));
    EXPECT_EQ(q().PictureTypeBack.Picture(), (PictureRef{PictureSlot::ImageQBackS, 3}));
    EXPECT_EQ(q().PictureChoiceBack.Picture(), (PictureRef{PictureSlot::ImageQBackM, 3}));
    EXPECT_EQ(q().PictureRangeBack.Picture(), (PictureRef{PictureSlot::ImageQBackM, 3}));
    EXPECT_EQ(q().PictureQuickBack.Picture(), (PictureRef{PictureSlot::ImageQBackB, 3}));
    EXPECT_EQ(q().PictureIndexBack.Picture(), (PictureRef{PictureSlot::ImageQBackB, 3}));
    EXPECT_EQ(q().BackColor(), t.app.theme.CurrentFormColor);
}

TEST_F(QuickTheme, TheLabelsTakeTheTextColour) {
    t.LoadQuick();
    UseTheme(0);
    EXPECT_EQ(q().LabelQuickTotal.ForeColor(), t.app.theme.CurrentTextColor);
    UseTheme(4);
    EXPECT_EQ(q().LabelQuickTotal.ForeColor(), t.app.theme.CurrentTextColor);
    EXPECT_EQ(q().LabelQuickShowing.ForeColor(), t.app.theme.CurrentTextColor);
    for (const auto& label : q().LabelQIndex) EXPECT_EQ(label->ForeColor(), t.app.theme.CurrentTextColor);
}

TEST_F(QuickTheme, TheWindowsOwnButtonsFollowItsSize) {
    t.LoadQuick();
    UseTheme(2);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_EQ(q().ImageQuickHeight.Picture(), t.app.theme.ImageQuickOpen);
    EXPECT_EQ(q().ImageHideQuick.Picture(), t.app.theme.ImageSmallSet[1]);
    EXPECT_EQ(q().ImageQuickHeightA.Picture(), t.app.theme.ImageSmallSet[1]);
    q().ImageQuickZero.Press();
    q().ImageQuickHeight.Press();
    UseTheme(5);
    EXPECT_EQ(q().ImageQuickZero.Picture(), t.app.theme.ImageZeroSet[3]);
    EXPECT_EQ(q().ImageQuickHeight.Picture(), t.app.theme.ImageQuickClosed);
}

TEST_F(QuickTheme, AChangeOfThemeWhileNoGroupIsShownLeavesTheButtonsBlank) {
    t.AddItems(2, 5);
    t.app.settings.QuickDefaultItem = 5;
    t.LoadQuick();
    UseTheme(6);
    for (const auto& button : q().ImageQuick) EXPECT_EQ(button->Picture(), Star(6));
    EXPECT_EQ(q().ImageQuickSelected.Picture(), Star(6));
    EXPECT_EQ(q().ImageQuickChoice(2).Picture(), t.app.theme.ImageChoiceSet[2]);
    EXPECT_EQ(q().ImageQuickChoice(0).Picture(), Star(6));
}

TEST_F(QuickTheme, TheShownGroupsButtonsTakeTheNewThemeButTheOneLastClickedStaysBlank) {
    t.AddItems(0, 3);
    t.AddItems(2, 5);
    t.app.settings.QuickDefaultItem = 2;
    t.LoadQuick();
    q().ImageQuickChoice(2).Press();
    q().ImageQuick(1).Press();
    UseTheme(4);
    EXPECT_EQ(q().ImageQuick(0).Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_EQ(q().ImageQuick(1).Picture(), Star(4));
    EXPECT_EQ(q().ImageQuick(2).Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_EQ(q().ImageQuickSelected.Picture(), t.app.theme.ImageChoiceSet[2]);
    EXPECT_EQ(q().ImageQuickChoice(2).Picture(), (PictureRef{PictureSlot::ImageMQSelected, 2}));
    EXPECT_EQ(q().ImageQuickChoice(0).Picture(), t.app.theme.ImageChoiceSet[0]);
    EXPECT_EQ(q().ImageQuickChoice(4).Picture(), Star(4));
    // After a height toggle no button counts as last clicked.
    q().ImageQuickHeight.Press();
    UseTheme(1);
    EXPECT_EQ(q().ImageQuick(1).Picture(), t.app.theme.ImageZeroSet[2]);
}

TEST_F(QuickTheme, ThePreferredGroupNoneKeepsTheSelectedPictureBlankEvenWithAGroupShown) {
    t.AddItems(1, 2);
    t.app.settings.QuickDefaultItem = 5;
    t.LoadQuick();
    q().ImageQuickChoice(1).Press();
    UseTheme(3);
    EXPECT_EQ(q().ImageQuickSelected.Picture(), Star(3));
    EXPECT_EQ(q().ImageQuick(0).Picture(), t.app.theme.ImageZeroSet[1]);
}

TEST_F(QuickTheme, AnEmptyShownGroupKeepsEverythingBlank) {
    t.app.settings.QuickDefaultItem = 3;
    t.LoadQuick();
    UseTheme(2);
    EXPECT_EQ(q().ImageQuickSelected.Picture(), Star(2));
    for (const auto& button : q().ImageQuick) EXPECT_EQ(button->Picture(), Star(2));
}

TEST_F(QuickTheme, AFailureIsReportedWithTheRoutinesTagAndStopsAtTheFailingControl) {
    t.AddItems(2, 2);
    t.app.settings.QuickDefaultItem = 5;
    t.LoadQuick();
    // The preferred group changed to one while none is shown: the selected
    // picture reads a group that does not exist.
    t.app.settings.QuickDefaultItem = 2;
    UseTheme(3);
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ThemeApplyOnQuick"));
    EXPECT_EQ(q().ImageQuickHeightA.Picture(), t.app.theme.ImageSmallSet[1]);
    EXPECT_NE(q().ImageQuickChoice(2).Picture(), t.app.theme.ImageChoiceSet[2]);
}

TEST_F(QuickTheme, ThemeCreateRunsTheQuickLaunchersRoutineOnlyOnceItIsLoaded) {
    UseTheme(3);
    EXPECT_TRUE(q().PictureQuickBack.Picture().Empty());
    EXPECT_FALSE(qs::test::BugShown(t, L"Quillstart:Bug:ThemeApplyOnQuick"));
    t.LoadQuick();
    UseTheme(3);
    EXPECT_EQ(q().PictureQuickBack.Picture(), (PictureRef{PictureSlot::ImageQBackB, 3}));
}

}  // namespace
