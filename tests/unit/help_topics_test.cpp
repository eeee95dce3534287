// Choosing a topic of Help, by click and by the arrow keys, and the
// underline of the link under the pointer.
#include <gtest/gtest.h>

#include "help_app.h"
#include "theme/theme_colors.h"
#include "windows/help_texts.h"

namespace {

using qs::test::HelpApp;

struct HelpTopics : ::testing::Test {
    HelpApp t;
    qs::FrmHelp& h() { return t.help(); }
    void SetUp() override { t.OpenHelp(); }
};

TEST_F(HelpTopics, EachLoadStartsAtTheStartPanelWithNoTopic) {
    EXPECT_EQ(h().HelpTopic(), -1);
    EXPECT_TRUE(h().PictureHelpMe.Visible());
    EXPECT_FALSE(h().TextHelp.Visible());
    EXPECT_FALSE(h().FrameHelpAbout.Visible());
    EXPECT_EQ(h().LabelHelpHeading.Caption(), L"Quillstart    4.2019");
    h().LabelHelpTopic(3).UserClick();
    h().LabelHelpExit.UserClick();
    t.ClickHelpButton();
    EXPECT_EQ(h().HelpTopic(), -1);
    EXPECT_TRUE(h().PictureHelpMe.Visible());
    EXPECT_FALSE(h().TextHelp.Visible());
    EXPECT_EQ(h().TextHelp.Text(), L"");
}

TEST_F(HelpTopics, TheTopicsStandInTheirOrderWithTheirCaptions) {
    const wchar_t* const captions[] = {
        L"Introduction", L"Install,  Upgrade && Uninstall", L"Interface", L"Web URL", L"Program",
        L"All Item", L"View List", L"Type A Command", L"Code And Command", L"More Commands For URL",
        L"Quick Launcher", L"Things To Remember", L"About"};
    ASSERT_EQ(h().LabelHelpTopic.Count(), 13);
    for (std::int16_t i = 0; i < 13; ++i) EXPECT_EQ(h().LabelHelpTopic(i).Caption(), captions[i]) << i;
    EXPECT_EQ(h().LabelHelpExit.Caption(), L"Exit Help");
}

TEST_F(HelpTopics, ATextTopicShowsItsCaptionAsHeadingAndItsTextInTheBox) {
    h().LabelHelpTopic(1).UserClick();
    EXPECT_EQ(h().HelpTopic(), 1);
    EXPECT_FALSE(h().PictureHelpMe.Visible());
    EXPECT_TRUE(h().TextHelp.Visible());
    EXPECT_FALSE(h().FrameHelpAbout.Visible());
    EXPECT_EQ(h().LabelHelpHeading.Caption(), L"Install,  Upgrade && Uninstall");
    EXPECT_EQ(h().TextHelp.Text(), qs::HelpTopicText(1));
}

TEST_F(HelpTopics, AboutLeavesTheHeadingEmptyHidesTheTextAndShowsItsPanel) {
    h().LabelHelpTopic(4).UserClick();
    h().LabelHelpTopic(12).UserClick();
    EXPECT_EQ(h().LabelHelpHeading.Caption(), L"");
    EXPECT_FALSE(h().TextHelp.Visible());
    EXPECT_TRUE(h().FrameHelpAbout.Visible());
    EXPECT_FALSE(h().PictureHelpMe.Visible());
    h().LabelHelpTopic(0).UserClick();
    EXPECT_FALSE(h().FrameHelpAbout.Visible());
    EXPECT_TRUE(h().TextHelp.Visible());
}

TEST_F(HelpTopics, OnALightThemeTheChosenTopicTurnsSlateAndTheOthersTakeTheirThemeColours) {
    h().LabelHelpTopic(5).UserClick();
    const auto& s = t.app.theme;
    for (std::int16_t i = 0; i < 13; ++i) {
        qs::ui::Color expected = i == 12 ? s.CurrentAlertColor : s.CurrentAccentColor;
        if (i == 5) expected = qs::ui::Rgb(91, 132, 148);
        EXPECT_EQ(h().LabelHelpTopic(i).ForeColor(), expected) << i;
    }
    h().LabelHelpTopic(12).UserClick();
    EXPECT_EQ(h().LabelHelpTopic(12).ForeColor(), qs::ui::Rgb(91, 132, 148));
    EXPECT_EQ(h().LabelHelpTopic(5).ForeColor(), s.CurrentAccentColor);
}

TEST_F(HelpTopics, OnADarkThemeTheChosenTopicTurnsWhite) {
    t.SwitchTheme(4);
    h().LabelHelpTopic(2).UserClick();
    EXPECT_EQ(h().LabelHelpTopic(2).ForeColor(), qs::ColorWhite);
    EXPECT_EQ(h().LabelHelpTopic(3).ForeColor(), qs::ColorLime);
    EXPECT_EQ(h().LabelHelpTopic(12).ForeColor(), qs::ui::Rgb(255, 255, 0));
}

TEST_F(HelpTopics, HoveringATopicUnderlinesOnlyThatOne) {
    h().LabelHelpTopic(7).UserMouseMove(0, 0, 10, 10);
    EXPECT_EQ(t.UnderlinedTopics(), L"0000000100000");
    h().LabelHelpTopic(2).UserMouseMove(0, 0, 10, 10);
    EXPECT_EQ(t.UnderlinedTopics(), L"0010000000000");
}

TEST_F(HelpTopics, HoveringTheChosenTopicUnderlinesNothing) {
    h().LabelHelpTopic(7).UserMouseMove(0, 0, 10, 10);
    h().LabelHelpTopic(7).UserClick();
    h().LabelHelpTopic(7).UserMouseMove(0, 0, 12, 10);
    EXPECT_EQ(t.UnderlinedTopics(), L"0000000000000");
}

TEST_F(HelpTopics, ThePanelAroundTheTopicsClearsTheirUnderlinesAndExitHelps) {
    h().LabelHelpExit.UserMouseMove(0, 0, 10, 10);
    h().LabelHelpTopic(9).UserMouseMove(0, 0, 10, 10);
    EXPECT_TRUE(h().LabelHelpExit.FontUnderline());
    h().PictureTopic.UserMouseMove(0, 0, 5, 5);
    EXPECT_FALSE(h().LabelHelpExit.FontUnderline());
    EXPECT_EQ(t.UnderlinedTopics(), L"0000000000000");
}

TEST_F(HelpTopics, TheSiteLinkIsUnderlinedUntilThePointerReachesTheAboutPanel) {
    h().LabelHelpTopic(12).UserClick();
    h().LabelHelpExtraD.UserMouseMove(0, 0, 10, 10);
    EXPECT_TRUE(h().LabelHelpExtraD.FontUnderline());
    h().FrameHelpAbout.UserMouseMove(0, 0, 5, 5);
    EXPECT_FALSE(h().LabelHelpExtraD.FontUnderline());
}

TEST_F(HelpTopics, TheOnlineLinkChangesColourUnderThePointerAndBackOverItsPanel) {
    EXPECT_EQ(h().LabelHelpOnline.ForeColor(), qs::ColorGreen);
    h().LabelHelpOnline.UserMouseMove(0, 0, 10, 10);
    EXPECT_EQ(h().LabelHelpOnline.ForeColor(), qs::ColorBlue);
    h().PictureHelpMe.UserMouseMove(0, 0, 5, 5);
    EXPECT_EQ(h().LabelHelpOnline.ForeColor(), qs::ColorGreen);
}

TEST_F(HelpTopics, TheOnlineLinksHoverColourByTheme) {
    const struct {
        std::int16_t theme;
        qs::ui::Color hover;
        qs::ui::Color rest;
    } rows[] = {{1, qs::ColorBlue, qs::ColorGreen}, {2, qs::ColorLight, qs::ColorLime}, {3, qs::ColorRose, qs::ColorGrey},
                {6, qs::ColorRose, qs::ColorGrey}};
    for (const auto& row : rows) {
        t.SwitchTheme(row.theme);
        EXPECT_EQ(h().LabelHelpOnline.ForeColor(), row.rest) << row.theme;
        h().LabelHelpOnline.UserMouseMove(0, 0, 10, 10);
        EXPECT_EQ(h().LabelHelpOnline.ForeColor(), row.hover) << row.theme;
        h().PictureHelpMe.UserMouseMove(0, 0, 5, 5);
        EXPECT_EQ(h().LabelHelpOnline.ForeColor(), row.rest) << row.theme;
    }
}

TEST_F(HelpTopics, DownStartsAtTheFirstTopicAndStepsToTheLastAndStopsThere) {
    EXPECT_EQ(h().UserKeyDown(40, 0), 0);
    EXPECT_EQ(h().HelpTopic(), 0);
    EXPECT_EQ(h().TextHelp.Text(), qs::HelpTopicText(0));
    for (int i = 0; i < 15; ++i) h().UserKeyDown(40, 0);
    EXPECT_EQ(h().HelpTopic(), 12);
    EXPECT_TRUE(h().FrameHelpAbout.Visible());
}

TEST_F(HelpTopics, UpStartsAtAboutAndStepsToTheFirstAndStopsThere) {
    EXPECT_EQ(h().UserKeyDown(38, 0), 0);
    EXPECT_EQ(h().HelpTopic(), 12);
    h().UserKeyDown(38, 0);
    EXPECT_EQ(h().HelpTopic(), 11);
    EXPECT_EQ(h().LabelHelpHeading.Caption(), L"Things To Remember");
    for (int i = 0; i < 15; ++i) h().UserKeyDown(38, 0);
    EXPECT_EQ(h().HelpTopic(), 0);
}

TEST_F(HelpTopics, OtherKeysPassToTheControlWithTheFocus) {
    EXPECT_EQ(h().UserKeyDown(33, 0), 33);
    EXPECT_EQ(h().UserKeyDown(65, 0), 65);
    EXPECT_EQ(h().HelpTopic(), -1);
    EXPECT_TRUE(t.app.HelpOpen);
}

TEST_F(HelpTopics, TheTextBoxIsReadOnly) {
    h().LabelHelpTopic(0).UserClick();
    EXPECT_TRUE(h().TextHelp.Locked());
    h().TextHelp.TypeText(L"xyz");
    EXPECT_EQ(h().TextHelp.Text(), qs::HelpTopicText(0));
}

}  // namespace
