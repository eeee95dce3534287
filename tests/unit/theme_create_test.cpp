// The theme engine: colours of the seven themes, the picture sets taken from
// the holders by their indexing rules, and what a theme change touches.
#include <gtest/gtest.h>

#include "common/failure.h"
#include "shown_messages.h"
#include "test_app.h"
#include "theme/active_theme.h"
#include "theme/theme_colors.h"

namespace {

using qs::test::ShownMessages;
using qs::test::TestApp;
using qs::ui::PictureRef;
using qs::ui::PictureSlot;
using qs::ui::Rgb;

void Create(TestApp& t, std::int16_t theme) { qs::ThemeCreate(t.app, theme); }

TEST(ThemeCreate, LightThemesGiveDarkTextAndDarkThemesLightTextWithLimeHeadingsAndYellowAlerts) {
    TestApp t;
    for (std::int16_t theme = 0; theme < 7; ++theme) {
        Create(t, theme);
        const auto& s = t.app.theme;
        if (theme < 2) {
            EXPECT_EQ(s.CurrentTextColor, qs::ColorDark) << theme;
            EXPECT_EQ(s.CurrentAccentColor, qs::ColorBlue) << theme;
            EXPECT_EQ(s.CurrentAlertColor, Rgb(192, 0, 0)) << theme;
        } else {
            EXPECT_EQ(s.CurrentTextColor, qs::ColorLight) << theme;
            EXPECT_EQ(s.CurrentAccentColor, qs::ColorLime) << theme;
            EXPECT_EQ(s.CurrentAlertColor, Rgb(255, 255, 0)) << theme;
        }
    }
}

TEST(ThemeCreate, FormAndBoxColoursComeFromTheTableOfTheTheme) {
    TestApp t;
    Create(t, 5);
    EXPECT_EQ(t.app.theme.CurrentFormColor, Rgb(91, 132, 148));
    EXPECT_EQ(t.app.theme.CurrentBoxColor, Rgb(115, 155, 170));
    EXPECT_EQ(t.app.frmMain.BackColor(), Rgb(91, 132, 148));
    EXPECT_EQ(t.app.frmMain.TextMain.BackColor(), Rgb(115, 155, 170));
    EXPECT_EQ(t.app.frmMain.TextMain.ForeColor(), qs::ColorLight);
    Create(t, 2);
    EXPECT_EQ(t.app.theme.CurrentFormColor, qs::ColorRose);
    EXPECT_EQ(t.app.theme.CurrentBoxColor, Rgb(170, 85, 105));
}

TEST(ThemeCreate, ButtonPicturesChangeWithTheThemeButTheActiveSetDoesNot) {
    TestApp t;
    Create(t, 0);
    const auto active0 = t.app.theme.ButtonActive;
    EXPECT_EQ(t.app.theme.ButtonNormal[8], (PictureRef{PictureSlot::ImageMenu, 8}));
    Create(t, 6);
    EXPECT_EQ(t.app.theme.ButtonNormal[8], (PictureRef{PictureSlot::ImageMenu, 128}));
    EXPECT_EQ(t.app.theme.ButtonOver[3], (PictureRef{PictureSlot::ImageDown, 123}));
    EXPECT_EQ(t.app.theme.ButtonActive, active0);
    EXPECT_EQ(t.app.theme.ButtonActive[5], (PictureRef{PictureSlot::ImageActive, 5}));
}

TEST(ThemeCreate, FiveEntrySetsStepByFiveAndTwoWayImagesByTheDarkRule) {
    TestApp t;
    Create(t, 4);
    EXPECT_EQ(t.app.theme.ImageZeroSet[2], (PictureRef{PictureSlot::ImageMU, 22}));
    EXPECT_EQ(t.app.theme.ImageChoiceSet[4], (PictureRef{PictureSlot::ImageMQChoice, 24}));
    EXPECT_EQ(t.app.theme.ImageZeroOver, (PictureRef{PictureSlot::ImageMD, 9}));
    Create(t, 1);
    EXPECT_EQ(t.app.theme.ImageZeroOver, (PictureRef{PictureSlot::ImageMD, 2}));
    EXPECT_EQ(t.app.theme.ImageZeroBlank, (PictureRef{PictureSlot::ImageMZ, 1}));
}

TEST(ThemeCreate, ThemeTwoSwapsTheColoursOfTheSmallSpecialButton) {
    TestApp t;
    Create(t, 2);
    EXPECT_EQ(t.app.theme.ImageQuickClosed, (PictureRef{PictureSlot::ImageSSpUR, 2}));
    EXPECT_EQ(t.app.theme.ImageQuickOpen, (PictureRef{PictureSlot::ImageSSpUG, 2}));
    Create(t, 3);
    EXPECT_EQ(t.app.theme.ImageQuickClosed, (PictureRef{PictureSlot::ImageSSpUG, 3}));
    EXPECT_EQ(t.app.theme.ImageQuickOpen, (PictureRef{PictureSlot::ImageSSpAG, 3}));
}

TEST(ThemeCreate, TheNumberIsStoredAsTheThemeIndex) {
    TestApp t;
    Create(t, 4);
    EXPECT_EQ(t.app.settings.ThemeIndex, 4);
}

TEST(ThemeCreate, AnIndexOutsideTheSevenThemesReportsItsOwnTagAndChangesNothing) {
    TestApp t;
    Create(t, 3);
    Create(t, 7);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"Quillstart:Bug:ThemeCreate");
    EXPECT_EQ(t.app.settings.ThemeIndex, 3);
    EXPECT_EQ(t.app.theme.CurrentFormColor, qs::ColorDark);
}

TEST(ThemeCreate, HelpIsMarkedClosedWhileStartingUp) {
    TestApp t;
    t.app.HelpOpen = true;
    t.app.place.StartingUp = true;
    Create(t, 0);
    EXPECT_FALSE(t.app.HelpOpen);
}

TEST(ThemeApplyOnMessage, TheDialogTakesTheBackgroundAndColoursOfTheTheme) {
    TestApp t;
    Create(t, 2);
    t.app.frmMessage.Load();
    qs::ThemeApplyOnMessage(t.app, 2);
    const auto& f = t.app.frmMessage;
    EXPECT_EQ(f.Picture(), (PictureRef{PictureSlot::ImageBack, 2}));
    EXPECT_EQ(f.LabelMsgFormCaption.ForeColor(), qs::ColorLime);
    EXPECT_EQ(f.TextMessage.BackColor(), qs::ColorRose);
    EXPECT_EQ(f.LabelOK.ForeColor(), qs::ColorLight);
}

}  // namespace
