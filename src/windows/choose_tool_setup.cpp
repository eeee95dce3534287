// The Preferences pane filled from the saved values when frmChoose loads.
// The program is still starting, so the boxes' and options' handlers stay
// quiet while they are set; only the font size's runs, which is why the Save
// button is hidden and the edit copies set after it.
#include "common/application.h"
#include "common/failure.h"
#include "startup/saved_options.h"
#include "windows/choose_tool_pane.h"
#include "windows/frm_choose.h"

namespace qs {

namespace {

// The font size's button: (size - 8) / 2 rounded half to even, as a whole
// number takes a fraction, and 0 for a size of 8 or less.
std::int16_t FontSizeButton(std::int16_t size) {
    const int over = size - 8;
    if (over <= 0) return 0;
    const int half = over / 2;
    const bool roundsUp = over % 2 != 0 && half % 2 != 0;
    return static_cast<std::int16_t>(roundsUp ? half + 1 : half);
}

}  // namespace

void PreferencesPane::SetUp() {
    Layout();
    SetTabOrder();
    Settings& s = app_.settings;
    // The Run key names a fixed path: a flash drive can't start with Windows.
    CheckOptionMain(0).SetEnabled(!app_.place.OnRemovable);
    OptionTheme(s.ThemeIndex).SetValue(true);
    for (std::int16_t i = 0; i < CheckOptionMain.Count(); ++i) {
        CheckOptionMain(i).SetValue(OptionFlag(s, static_cast<std::size_t>(i)) != 0 ? 1 : 0);
    }
    OptionQuickItem(s.QuickDefaultItem).SetValue(true);
    s.QuickDefaultEdit = s.QuickDefaultItem;
    s.OptionBaseSaved = ToInt16(s.FontSizeSetting + s.OptionWord);
    s.OptionBaseEdit = s.OptionBaseSaved;
    s.OptionTotalSaved = ToInt16(s.OptionBaseSaved + s.QuickDefaultItem);
    s.OptionTotalEdit = s.OptionTotalSaved;
    RadioOptionFontSize(FontSizeButton(s.FontSizeSetting)).SetValue(true);
    ImageOptionSave.SetPicture(app_.theme.ImageZeroBlank);
    ImageOptionSave.SetVisible(false);
    FrameOptionSave(1).SetVisible(false);
}

void PreferencesPane::SetEditCopies() {
    Settings& s = app_.settings;
    s.FontSizeEdit = s.FontSizeSetting;
    s.OptionWordEdit = s.OptionWord;
    s.QuickDefaultEdit = s.QuickDefaultItem;
    s.OptionTotalSaved = ToInt16(ToInt16(s.FontSizeSetting + s.OptionWord) + s.QuickDefaultItem);
    s.OptionTotalEdit = s.OptionTotalSaved;
}

}  // namespace qs
