// Saving the Preferences: the Run key, the edit copies made the saved
// values, the bar's QuickLauncher button, and the pane closing.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"

namespace qs::test {
namespace {

TEST(ChooseToolSave, SaveMakesTheEditCopiesTheSavedValuesAndClosesThePane) {
    PrefsApp t;
    t.OpenPane();
    t.ChooseFontSize(2);
    t.ChooseQuick(4);
    t.Click(5);
    t.Save();
    const Settings& s = t.settings();
    EXPECT_EQ(s.OptionWord, 25);
    EXPECT_EQ(s.FontSizeSetting, 12);
    EXPECT_EQ(s.QuickDefaultItem, 4);
    EXPECT_EQ(s.OptionBaseSaved, 37);
    EXPECT_EQ(s.OptionTotalSaved, 41);
    EXPECT_EQ(s.OptionTotalEdit, 41);
    EXPECT_FALSE(t.choose().Visible());
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.SaveShown());
    EXPECT_FALSE(t.CallShown());
    EXPECT_FALSE(t.NoteShown());
    EXPECT_EQ(t.pane().ImageOptionSave.Picture(), t.app.theme.ImageZeroBlank);
    // Always on top was cleared: the timer stays off after the close.
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(ChooseToolSave, TheNextOpeningAfterASaveIsClean) {
    PrefsApp t;
    t.OpenPane();
    t.Click(2);
    t.Save();
    t.OpenPane();
    EXPECT_FALSE(t.SaveShown());
    EXPECT_FALSE(t.CallShown());
    EXPECT_FALSE(t.NoteShown());
    t.Click(2);
    EXPECT_TRUE(t.SaveShown());
}

TEST(ChooseToolSave, SaveWithAlwaysOnTopSetStartsTheTimer) {
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    t.Save();
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(ChooseToolSave, SaveTakesTheBarBackToItsTopBeforeThePanePushedIt) {
    PrefsApp t;
    t.OpenPane();
    t.app.SavedMainTop = 4200;
    t.Click(1);
    t.Save();
    EXPECT_EQ(t.app.frmMain.Top(), 4200);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST(ChooseToolSave, StartWithWindowsClearedDeletesTheRunValue) {
    PrefsApp t;
    t.sys.registry[AutostartValueName] = t.app.ProgramFile;
    t.OpenPane();
    t.Click(0);
    t.Save();
    EXPECT_EQ(t.sys.registry.count(AutostartValueName), 0u);
    EXPECT_EQ(t.settings().OptionWord, 56);
}

TEST(ChooseToolSave, StartWithWindowsSetWritesTheProgramFile) {
    PrefsApp t({.word = 56});
    t.OpenPane();
    t.Click(0);
    t.Save();
    EXPECT_EQ(t.Autostart(), t.app.ProgramFile);
    EXPECT_EQ(t.settings().OptionWord, 57);
}

TEST(ChooseToolSave, WithoutAClickOnStartWithWindowsTheRunValueIsLeftAlone) {
    PrefsApp t;
    t.sys.registry[AutostartValueName] = L"D:\\Old\\Quillstart.exe";
    t.OpenPane();
    t.Click(1);
    t.Save();
    EXPECT_EQ(t.Autostart(), L"D:\\Old\\Quillstart.exe");
}

TEST(ChooseToolSave, SaveWithAllListsEmptyDisablesPictureShowQuick) {
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    t.Save();
    EXPECT_FALSE(t.app.frmMain.PictureShowQuick.Enabled());
    EXPECT_EQ(t.app.frmMain.PictureShowQuick.Picture(), t.app.theme.ImageSmallBlank);
}

TEST(ChooseToolSave, SaveWithItemsEnablesPictureShowQuickWithThePictureOfTheQuickLaunchersState) {
    for (const bool open : {false, true}) {
        PrefsApp t;
        t.AddItem(3, L"anna", L"anna@example.com");
        t.app.frmMain.PictureShowQuick.SetEnabled(false);
        t.app.QuickOpen = open;
        t.OpenPane();
        t.Click(1);
        t.Save();
        EXPECT_TRUE(t.app.frmMain.PictureShowQuick.Enabled()) << open;
        EXPECT_EQ(t.app.frmMain.PictureShowQuick.Picture(),
                  open ? t.app.theme.ImageQuickOpen : t.app.theme.ImageQuickClosed)
            << open;
    }
}

TEST(ChooseToolSave, EnterOrSpaceOnSavePressesItAndEscClosesThePaneWithoutSaving) {
    for (const std::int16_t pressKey : {std::int16_t{13}, std::int16_t{32}}) {
        PrefsApp t;
        t.OpenPane();
        t.Click(1);
        std::int16_t key = pressKey;
        t.pane().ImageOptionSave.KeyPress(key);
        EXPECT_EQ(key, 0);
        EXPECT_EQ(t.settings().OptionWord, 59) << pressKey;
        EXPECT_FALSE(t.choose().Visible());
    }
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    std::int16_t esc = 27;
    t.pane().ImageOptionSave.KeyPress(esc);
    EXPECT_FALSE(t.choose().Visible());
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_EQ(t.settings().OptionWord, 57);
}

TEST(ChooseToolSave, ThePressAndReleasePicturesOfSave) {
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    ui::PictureBox& save = t.pane().ImageOptionSave;
    save.UserMouseDown(1, 0, 0, 0);
    EXPECT_EQ(save.Picture(), t.app.theme.ImageZeroOver);
    save.UserMouseUp(1, 0, 0, 0);
    EXPECT_EQ(save.Picture(), t.app.theme.ImageZeroSet[0]);
}

}  // namespace
}  // namespace qs::test
