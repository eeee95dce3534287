// The theme of the window of three panes, in each of the seven themes.
#include <gtest/gtest.h>

#include "choose_setup.h"
#include "theme/active_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs::test {
namespace {

TEST(ChooseTheme, EachThemeColoursTheControlsByKindThenTheNamedOnes) {
    ChooseApp t;
    FrmChoose& f = t.choose();
    LaunchListPane& p = t.pane();
    for (std::int16_t theme = 0; theme < 7; ++theme) {
        std::int16_t chosen = theme;
        ThemeCreate(t.app, chosen);
        const ThemeState& s = t.app.theme;
        EXPECT_EQ(f.Picture(), OneOfTheme(ui::PictureSlot::ImageBack, theme));
        for (const ui::Control* c : std::initializer_list<const ui::Control*>{
                 &p.FrameGroupMenu, &p.FrameConfirmClearListB, &f.ComboListItemName(2), &f.ComboListItemPath(4),
                 &p.TextListRename(1)}) {
            EXPECT_EQ(c->BackColor(), s.CurrentFormColor) << theme;
            EXPECT_EQ(c->ForeColor(), s.CurrentTextColor) << theme;
        }
        EXPECT_EQ(p.FrameConfirmClearListA.BackColor(), s.CurrentFormColor) << theme;
        // The panes' pictures show the window's face.
        EXPECT_EQ(f.PictureList.BackColor(), ui::DefaultColor) << theme;
        EXPECT_EQ(p.PictureGroupList(2).BackColor(), ui::DefaultColor) << theme;
        EXPECT_EQ(p.LabelListCap.ForeColor(), s.CurrentAccentColor) << theme;
        EXPECT_EQ(p.LabelItemName(3).ForeColor(), s.CurrentAccentColor) << theme;
        EXPECT_EQ(p.LabelListTotalB(0).ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(p.LabelNoList(7).ForeColor(), s.CurrentTextColor) << theme;
        EXPECT_EQ(p.LabelConfirmClearListA.ForeColor(), s.CurrentTextColor) << theme;
        // Set twice, the second colour stands.
        EXPECT_EQ(p.LabelConfirmClearListB.ForeColor(), theme > 1 ? ColorGrey : ColorRose) << theme;

        const ui::PictureRef cross = OneOfTheme(ui::PictureSlot::ImageMX, theme);
        EXPECT_EQ(f.PictureHideList.Picture(), cross);
        EXPECT_EQ(f.PictureHideCode.Picture(), cross);
        EXPECT_EQ(f.PictureHideTool.Picture(), cross);
        EXPECT_EQ(p.ImageCancelClearList.Picture(), cross);
        for (std::int16_t i = 0; i < 5; ++i) {
            for (const ui::PictureBox* b : {&p.ImageShowList(i), &p.ImageListOpen(i), &p.ImageListRename(i),
                                            &p.ImageListRemove(i), &p.ImageListOKRename(i),
                                            &p.ImageListCancelRename(i)}) {
                EXPECT_EQ(b->Picture(), s.ImageZeroSet[0]) << theme;
            }
            EXPECT_EQ(p.ImageListClear(i).Picture(), s.ImageZeroSet[3]) << theme;
        }
        EXPECT_EQ(p.ImageConfirmClearList.Picture(), s.ImageZeroSet[3]);
    }
}

TEST(ChooseTheme, TheDarkThemesGiveLightTextAndLimeHeadings) {
    ChooseApp t;
    std::int16_t dark = 4;
    ThemeCreate(t.app, dark);
    EXPECT_EQ(t.pane().LabelListTotalA(2).ForeColor(), ColorLight);
    EXPECT_EQ(t.pane().LabelListCap.ForeColor(), ColorLime);
    std::int16_t light = 1;
    ThemeCreate(t.app, light);
    EXPECT_EQ(t.pane().LabelListTotalA(2).ForeColor(), ColorDark);
    EXPECT_EQ(t.pane().LabelListCap.ForeColor(), ColorBlue);
}

}  // namespace
}  // namespace qs::test
