// Where the Preferences pane meets the QuickLauncher: the group's edit copy
// set again by the QuickLauncher's load, and a theme click recolouring it.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"
#include "theme/theme_colors.h"

namespace qs::test {
namespace {

TEST(ChooseToolQuick, TheQuickLaunchersLoadStartsTheEditCopyFromTheSavedGroup) {
    PrefsApp t({.quick = 4});
    t.settings().QuickDefaultEdit = 0;
    t.app.frmQuick.Load();
    EXPECT_EQ(t.settings().QuickDefaultEdit, 4);
    EXPECT_EQ(t.app.frmQuick.QuickGroup, 4);
}

TEST(ChooseToolQuick, AThemeClickRecoloursTheQuickLauncherAtOnce) {
    PrefsApp t;
    t.app.frmQuick.Load();
    t.OpenPane();
    t.ChooseTheme(4);
    EXPECT_EQ(t.app.frmQuick.LabelQuickTotal.ForeColor(), ColorLight);
    t.ChooseTheme(1);
    EXPECT_EQ(t.app.frmQuick.LabelQuickTotal.ForeColor(), ColorDark);
}

}  // namespace
}  // namespace qs::test
