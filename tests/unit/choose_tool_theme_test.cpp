// The two later panes of frmChoose under each theme: by kind, then the
// headings and the swatches of the seven colours.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs::test {
namespace {

TEST(ChooseToolTheme, EachThemeColoursThePreferencesByKindAndItsHeadingByTheAccent) {
    PrefsApp t;
    PreferencesPane& p = t.pane();
    for (std::int16_t theme = 0; theme < 7; ++theme) {
        std::int16_t chosen = theme;
        ThemeCreate(t.app, chosen);
        const ThemeState& s = t.app.theme;
        for (const ui::Control* c : std::initializer_list<const ui::Control*>{
                 &p.CheckOptionMain(0), &p.CheckOptionMain(5), &p.RadioOptionFontSize(1), &p.OptionQuickItem(5),
                 &p.OptionTheme(6), &p.FrameFont, &p.FrameQuick, &p.FrameTheme, &p.FrameOptionSave(0),
                 &p.FrameOptionSave(1)}) {
            EXPECT_EQ(c->BackColor(), s.CurrentFormColor) << theme;
            EXPECT_EQ(c->ForeColor(), s.CurrentTextColor) << theme;
        }
        EXPECT_EQ(p.LabelPref.ForeColor(), s.CurrentAccentColor) << theme;
        EXPECT_EQ(p.LabelOptionSave(1).ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(p.LabelSavePref.ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(t.choose().PictureTool.BackColor(), ui::DefaultColor) << theme;
    }
}

TEST(ChooseToolTheme, EverySwatchShowsItsOwnThemesColourWhicheverThemeIsCurrent) {
    PrefsApp t({.theme = 5});
    for (std::int16_t theme : {std::int16_t{5}, std::int16_t{1}}) {
        ThemeCreate(t.app, theme);
        for (std::int16_t i = 0; i < 7; ++i) {
            EXPECT_EQ(t.pane().LabelColor(i).BackColor(), ThemeFormColors[static_cast<std::size_t>(i)]) << i;
        }
    }
    EXPECT_EQ(t.pane().LabelColor(2).BackColor(), ColorRose);
    EXPECT_EQ(t.pane().LabelColor(4).BackColor(), ColorBlue);
}

TEST(ChooseToolTheme, EverySwatchIsOutlinedSoTheCurrentThemesShowsOnAFrameOfItsOwnColour) {
    PrefsApp t({.theme = 3});
    std::int16_t dark = 3;
    ThemeCreate(t.app, dark);
    EXPECT_EQ(t.pane().LabelColor(3).BackColor(), t.pane().FrameTheme.BackColor());
    for (const auto& swatch : t.pane().LabelColor) EXPECT_EQ(swatch->BorderStyle(), 1);
}

TEST(ChooseToolTheme, EachThemeColoursTheCodePaneByKindAndItsHeadingsByTheAccent) {
    PrefsApp t;
    CodeCommandPane& c = t.choose().Code;
    for (std::int16_t theme = 0; theme < 7; ++theme) {
        std::int16_t chosen = theme;
        ThemeCreate(t.app, chosen);
        const ThemeState& s = t.app.theme;
        for (const ui::Control* box : std::initializer_list<const ui::Control*>{
                 &c.TextCommand, &c.TextCode1st, &c.TextCode2nd, &c.ComboCode1st, &c.ComboNameEmail}) {
            EXPECT_EQ(box->BackColor(), s.CurrentFormColor) << theme;
            EXPECT_EQ(box->ForeColor(), s.CurrentTextColor) << theme;
        }
        EXPECT_EQ(c.LabelCaption.ForeColor(), s.CurrentAccentColor) << theme;
        for (const auto& label : c.LabelNoCodeB) EXPECT_EQ(label->ForeColor(), s.CurrentAccentColor) << theme;
        EXPECT_EQ(c.LabelNoCode(0).ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(c.LabelCommand.ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(c.LabelCode(1).ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(t.choose().PictureCode.BackColor(), ui::DefaultColor) << theme;
    }
}

TEST(ChooseToolTheme, AThemeClickRecoloursThePaneItStandsOn) {
    PrefsApp t;
    t.OpenPane();
    t.ChooseTheme(3);
    EXPECT_EQ(t.pane().CheckOptionMain(2).ForeColor(), ColorLight);
    EXPECT_EQ(t.pane().LabelPref.ForeColor(), ColorLime);
    EXPECT_EQ(t.choose().Picture(), OneOfTheme(ui::PictureSlot::ImageBack, 3));
}

}  // namespace
}  // namespace qs::test
