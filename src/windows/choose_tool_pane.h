#pragma once
// The Preferences pane of frmChoose: the six option boxes, the Command box's
// font size, the QuickLauncher's first group and the seven themes. Most
// choices act at once; the edit copies they change become the saved values
// only through the Save button, and reach the Set record at exit. Its
// controls live on frmChoose, in PictureTool. Handlers:
// choose_tool_setup.cpp (the set-up at load), choose_tool_options.cpp (the
// boxes and options, and the test whether Save is needed),
// choose_tool_save.cpp (Save and the pane's closing).
#include <cstdint>

#include "ui/check_box.h"
#include "ui/control_array.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"

namespace qs {

struct Application;
class FrmChoose;

class PreferencesPane {
public:
    PreferencesPane(Application& app, FrmChoose& form);

    ui::Label LabelPref;
    // Indexed by the option's bit, not by the order on screen.
    ui::ControlArray<ui::CheckBox> CheckOptionMain;
    ui::Frame FrameFont;
    ui::ControlArray<ui::OptionButton> RadioOptionFontSize;
    ui::Frame FrameQuick;
    // Indexed by the group, 5 for none.
    ui::ControlArray<ui::OptionButton> OptionQuickItem;
    ui::Frame FrameTheme;
    ui::ControlArray<ui::OptionButton> OptionTheme;
    // A swatch of each theme's colour beside its option.
    ui::ControlArray<ui::Label> LabelColor;
    // 0: the note that the settings are kept; 1: the call to press Save,
    // which holds the Save button.
    ui::ControlArray<ui::Frame> FrameOptionSave;
    ui::ControlArray<ui::Label> LabelOptionSave;
    ui::PictureBox ImageOptionSave;
    ui::Label LabelSavePref;

    // Lays the pane out inside PictureTool and fills it from the saved
    // values; part of frmChoose's set-up, while the program starts.
    void SetUp();
    // The load's last word on the edit copies: the saved values again.
    void SetEditCopies();

    // Event handlers.
    void CheckOptionMainClick(std::int16_t index);
    void OptionQuickItemClick(std::int16_t index);
    void RadioOptionFontSizeClick(std::int16_t index);
    void OptionThemeClick(std::int16_t index);
    void ImageOptionSaveClick();

    // The Start With Windows box was clicked since the last Save.
    bool IsAutostartChanged() const { return AutostartChanged; }

private:
    void Layout();
    void SetTabOrder();
    void WireEvents();
    // Shows Save and its call when the edit copies differ, the note
    // otherwise.
    void ShowDirty(bool dirty);

    Application& app_;
    FrmChoose& form_;
    bool AutostartChanged = false;
};

}  // namespace qs
