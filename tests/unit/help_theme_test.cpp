// The theme of Help: applied at each Load, and again to an open window when
// the theme changes; a closed window is left for its next Load.
#include <gtest/gtest.h>

#include "help_app.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace {

using qs::test::HelpApp;
using qs::ui::PictureSlot;

void ExpectThemed(HelpApp& t, std::int16_t theme) {
    const qs::ThemeState& s = t.app.theme;
    qs::FrmHelp& h = t.help();
    EXPECT_EQ(h.Picture(), qs::OneOfTheme(PictureSlot::ImageBack, theme));
    EXPECT_EQ(h.TextHelp.BackColor(), s.CurrentFormColor);
    EXPECT_EQ(h.TextHelp.ForeColor(), s.CurrentTextColor);
    EXPECT_EQ(h.PictureTopic.BackColor(), s.CurrentFormColor);
    EXPECT_EQ(h.PictureHelpMe.BackColor(), s.CurrentFormColor);
    EXPECT_EQ(h.FrameHelpAbout.BackColor(), s.CurrentFormColor);
    EXPECT_EQ(h.ImageMe.Picture(), qs::OneOfTheme(PictureSlot::ImageMe, theme));
    for (const qs::ui::Line* line : {&h.LineTopicA, &h.LineTopicB, &h.LineTopicC}) {
        EXPECT_EQ(line->BorderColor(), s.CurrentAccentColor);
    }
    for (const qs::ui::Label* label : {&h.LabelHelpHeading, &h.LabelHelpExit, &h.LabelHelpAppNameA, &h.LabelHelpExtraD}) {
        EXPECT_EQ(label->ForeColor(), s.CurrentAccentColor);
    }
    EXPECT_EQ(h.LabelHelpWelcome.ForeColor(), s.CurrentAlertColor);
    for (const qs::ui::Label* label : {&h.LabelHelpHello, &h.LabelHelpNickName, &h.LabelHelpAppNameB,
                                       &h.LabelHelpAppVersion, &h.LabelHelpExtraA, &h.LabelHelpExtraB,
                                       &h.LabelHelpExtraC}) {
        EXPECT_EQ(label->ForeColor(), s.CurrentTextColor);
    }
    for (const auto& label : h.LabelNoUse) EXPECT_EQ(label->ForeColor(), s.CurrentTextColor);
    for (std::int16_t i = 0; i < 13; ++i) {
        EXPECT_EQ(h.LabelHelpTopic(i).ForeColor(), i == 12 ? s.CurrentAlertColor : s.CurrentAccentColor) << i;
    }
}

TEST(HelpTheme, LoadAppliesTheCurrentTheme) {
    HelpApp t;
    t.SwitchTheme(3);
    t.OpenHelp();
    ExpectThemed(t, 3);
    EXPECT_EQ(t.help().LabelHelpOnline.ForeColor(), qs::ColorGrey);
}

TEST(HelpTheme, ASwitchRecoloursAnOpenWindowAndTheChosenTopicFollowsTheRuleUntilTheNextClick) {
    HelpApp t;
    t.OpenHelp();
    t.help().LabelHelpTopic(4).UserClick();
    ASSERT_EQ(t.help().LabelHelpTopic(4).ForeColor(), qs::ui::Rgb(91, 132, 148));
    t.SwitchTheme(5);
    ExpectThemed(t, 5);
    EXPECT_EQ(t.help().LabelHelpTopic(4).ForeColor(), qs::ColorLime);
    t.help().LabelHelpTopic(4).UserClick();
    EXPECT_EQ(t.help().LabelHelpTopic(4).ForeColor(), qs::ColorWhite);
}

TEST(HelpTheme, AClosedWindowIsThemedOnlyAtItsNextLoad) {
    HelpApp t;
    t.OpenHelp();
    t.ClickHelpButton();
    t.SwitchTheme(2);
    EXPECT_NE(t.help().Picture(), qs::OneOfTheme(PictureSlot::ImageBack, 2));
    t.OpenHelp();
    ExpectThemed(t, 2);
    EXPECT_EQ(t.help().LabelHelpOnline.ForeColor(), qs::ColorLime);
}

}  // namespace
