// The Preferences pane's boxes and options. Each choice changes its edit
// copy, acts at once where it can, and then asks whether the edit copies
// differ from the saved values by comparing sums: changes that cancel out
// in a sum count as none.
#include "common/application.h"
#include "common/failure.h"
#include "startup/saved_options.h"
#include "theme/active_theme.h"
#include "windows/choose_tool_pane.h"
#include "windows/frm_choose.h"

namespace qs {

void PreferencesPane::ShowDirty(bool dirty) {
    ImageOptionSave.SetVisible(dirty);
    ImageOptionSave.SetPicture(dirty ? app_.theme.ImageZeroSet[0] : app_.theme.ImageZeroBlank);
    FrameOptionSave(1).SetVisible(dirty);
    FrameOptionSave(0).SetVisible(!dirty);
}

void PreferencesPane::CheckOptionMainClick(std::int16_t index) {
    if (app_.TextMainBusy || app_.place.StartingUp) return;
    Settings& s = app_.settings;
    const std::size_t at = static_cast<std::size_t>(index);
    const bool ticked = CheckOptionMain(index).Value() != 0;
    s.OptionBits.at(at) = ticked ? static_cast<std::int16_t>(1 << index) : std::int16_t{0};
    std::int16_t& flag = OptionFlag(s, at);
    // Any click that moves the box away from the option as it stands marks
    // the Run key for Save; clicking back leaves the mark.
    if (index == 0 && ((ticked && flag == 0) || (!ticked && flag == 1))) AutostartChanged = true;
    flag = s.OptionBits[at] != 0 ? 1 : 0;

    FrmMain& bar = app_.frmMain;
    if (index == 3) {
        bar.TextWebUrl.SetFont(bar.TextWebUrl.FontSize(), flag != 0);
        bar.TextWebName.SetFont(bar.TextWebName.FontSize(), flag != 0);
    } else if (index == 4) {
        bar.TextMain.SetFont(bar.TextMain.FontSize(), flag != 0);
    }

    std::int16_t word = 0;
    for (const std::int16_t bit : s.OptionBits) word = ToInt16(word + bit);
    s.OptionWordEdit = word;
    s.OptionBaseEdit = ToInt16(s.FontSizeEdit + s.OptionWordEdit);
    s.OptionTotalEdit = ToInt16(s.OptionBaseEdit + s.QuickDefaultEdit);
    ShowDirty(!(s.OptionTotalEdit == s.OptionTotalSaved && s.OptionWordEdit == s.OptionWord));
}

void PreferencesPane::OptionQuickItemClick(std::int16_t index) {
    if (app_.place.StartingUp) return;
    Settings& s = app_.settings;
    s.QuickDefaultEdit = index;
    s.OptionTotalEdit = ToInt16(ToInt16(s.FontSizeEdit + s.OptionWordEdit) + index);
    ShowDirty(s.OptionTotalEdit != s.OptionTotalSaved);
}

void PreferencesPane::RadioOptionFontSizeClick(std::int16_t index) {
    Settings& s = app_.settings;
    s.FontSizeEdit = ToInt16(8 + 2 * index);
    ui::TextBox& box = app_.frmMain.TextMain;
    box.SetFont(s.FontSizeEdit, box.FontBold());
    s.OptionBaseEdit = ToInt16(s.FontSizeEdit + s.OptionWordEdit);
    s.OptionTotalEdit = ToInt16(s.OptionBaseEdit + s.QuickDefaultEdit);
    ShowDirty(s.OptionTotalEdit != s.OptionTotalSaved);
}

void PreferencesPane::OptionThemeClick(std::int16_t index) {
    if (app_.place.StartingUp) return;
    // A theme needs no Save: the exit keeps it, as the note says.
    if (!FrameOptionSave(0).Visible() && !FrameOptionSave(1).Visible()) FrameOptionSave(0).SetVisible(true);
    app_.settings.ThemeIndex = index;
    ThemeCreate(app_, app_.settings.ThemeIndex);
}

}  // namespace qs
