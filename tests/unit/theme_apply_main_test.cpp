// The bar's colours and pictures in each theme.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "theme/active_theme.h"
#include "theme/theme_colors.h"

namespace {

using qs::test::BarApp;
using qs::ui::PictureName;

TEST(ThemeApplyOnMain, TheBoxesTakeTheBoxColourAndTheThemesText) {
    BarApp t;
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    auto& f = t.bar();
    EXPECT_EQ(f.BackColor(), qs::ColorDark);
    for (const qs::ui::TextBox* box : {&f.TextMain, &f.TextWebUrl, &f.TextWebName}) {
        EXPECT_EQ(box->BackColor(), qs::ui::Rgb(110, 110, 110));
        EXPECT_EQ(box->ForeColor(), qs::ColorLight);
    }
    EXPECT_EQ(f.LabelWebURL.ForeColor(), qs::ColorLight);
    EXPECT_EQ(f.LabelWebName.ForeColor(), qs::ColorLight);
}

TEST(ThemeApplyOnMain, TheStripsTakeTheThemesPicturesOfTheHiddenHolder) {
    BarApp t;
    std::int16_t theme = 5;
    qs::ThemeCreate(t.app, theme);
    EXPECT_EQ(PictureName(t.bar().PictureBackZero.Picture()), L"ImageBackZero(5)");
    EXPECT_EQ(PictureName(t.bar().PictureBackMain.Picture()), L"ImageBackMain(5)");
    EXPECT_EQ(PictureName(t.bar().PictureBackWeb.Picture()), L"ImageBackWeb(5)");
}

TEST(ThemeApplyOnMain, TheQuickButtonShowsWhetherTheQuickLauncherIsOpen) {
    BarApp t;
    std::int16_t theme = 2;
    qs::ThemeCreate(t.app, theme);
    EXPECT_EQ(PictureName(t.bar().PictureShowQuick.Picture()), L"ImageSSpUR(2)");
    t.app.QuickOpen = true;
    qs::ThemeCreate(t.app, theme);
    EXPECT_EQ(PictureName(t.bar().PictureShowQuick.Picture()), L"ImageSSpUG(2)");
}

TEST(ThemeApplyOnMain, LightThemesGiveDarkText) {
    BarApp t;
    std::int16_t theme = 1;
    qs::ThemeCreate(t.app, theme);
    EXPECT_EQ(t.bar().TextMain.ForeColor(), qs::ColorDark);
    EXPECT_EQ(t.bar().TextMain.BackColor(), qs::ui::Rgb(250, 250, 250));
}

}  // namespace
