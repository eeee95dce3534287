// Saving the Preferences: the Run key brought in step when Start With
// Windows was clicked, the edit copies made the saved values, the bar's
// QuickLauncher button set by the lists, and the pane closed.
#include "common/application.h"
#include "startup/desktop.h"
#include "windows/choose_tool_pane.h"
#include "windows/frm_choose.h"

namespace qs {

void PreferencesPane::ImageOptionSaveClick() {
    Settings& s = app_.settings;
    if (AutostartChanged) AutostartFollowOption(app_);
    s.OptionTotalSaved = s.OptionTotalEdit;
    s.OptionWord = s.OptionWordEdit;
    s.FontSizeSetting = s.FontSizeEdit;
    s.OptionBaseSaved = s.OptionBaseEdit;
    s.QuickDefaultItem = s.QuickDefaultEdit;

    bool any = false;
    for (const auto& names : form_.ComboListItemName) any = any || names->ListCount() > 0;
    const ThemeState& theme = app_.theme;
    ui::PictureBox& quick = app_.frmMain.PictureShowQuick;
    quick.SetEnabled(any);
    if (!any) {
        quick.SetPicture(theme.ImageSmallBlank);
    } else {
        quick.SetPicture(app_.QuickOpen ? theme.ImageQuickOpen : theme.ImageQuickClosed);
    }

    ImageOptionSave.SetVisible(false);
    ImageOptionSave.SetPicture(theme.ImageZeroBlank);
    FrameOptionSave(1).SetVisible(false);
    FrameOptionSave(0).SetVisible(false);
    AutostartChanged = false;
    form_.ClosePane();
}

}  // namespace qs
