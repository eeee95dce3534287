#pragma once
// The Preferences pane as a person meets it: the saved settings read, the
// options decoded, frmChoose loaded while the program starts, the theme
// made, and the pane opened from the bar's fifth button.
#include <cstdint>
#include <map>
#include <string>

#include "command/default_values.h"
#include "data/registry_value.h"
#include "data_setup.h"
#include "startup/saved_options.h"
#include "test_app.h"
#include "theme/active_theme.h"

namespace qs::test {

// Counts the registry's writes and deletes.
struct RegistryCounter {
    int writes = 0;
    int deletes = 0;
};

struct SavedPreferences {
    std::int16_t word = 57;
    std::int16_t fontSize = 8;
    std::int16_t quick = 2;
    std::int16_t theme = 0;
};

struct PrefsApp : TestApp {
    explicit PrefsApp(SavedPreferences saved = {}, wchar_t flashLetter = 0) {
        app.place.WorkAreaLeft = 0;
        app.place.WorkAreaTop = 0;
        app.place.WorkAreaRight = 1920;
        app.place.WorkAreaBottom = 1040;
        if (flashLetter != 0) {
            SetUpFlashRun(*this, flashLetter);
        } else {
            SetUpFixedDiskRun(*this);
        }
        Settings& s = app.settings;
        s.OptionWord = saved.word;
        s.FontSizeSetting = saved.fontSize;
        s.QuickDefaultItem = saved.quick;
        s.ThemeIndex = saved.theme;
        app.place.StartingUp = true;
        AtStartsavedOptions(app, s.OptionWord);
        AtStartDefaultValue(app);
        app.frmMain.FormLoad();
        app.frmChoose.Load();
        ThemeCreate(app, s.ThemeIndex);
        app.place.StartingUp = false;
        app.frmMain.Show();
    }
    FrmChoose& choose() { return app.frmChoose; }
    PreferencesPane& pane() { return app.frmChoose.Preferences; }
    Settings& settings() { return app.settings; }
    void OpenPane() { app.frmMain.PictureMenu(4).Press(); }
    // A person's click on a box or an option.
    void Click(std::int16_t box) { pane().CheckOptionMain(box).UserClicked(); }
    void ChooseFontSize(std::int16_t index) { pane().RadioOptionFontSize(index).UserClicked(); }
    void ChooseQuick(std::int16_t index) { pane().OptionQuickItem(index).UserClicked(); }
    void ChooseTheme(std::int16_t index) { pane().OptionTheme(index).UserClicked(); }
    void Save() { pane().ImageOptionSave.Press(); }
    bool SaveShown() { return pane().ImageOptionSave.Visible(); }
    bool NoteShown() { return pane().FrameOptionSave(0).Visible(); }
    bool CallShown() { return pane().FrameOptionSave(1).Visible(); }
    std::wstring Autostart() {
        const auto found = sys.registry.find(AutostartValueName);
        return found == sys.registry.end() ? L"" : found->second;
    }
};

}  // namespace qs::test
