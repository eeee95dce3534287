// One peer class per control kind; no window needs code of its own.
#include "browse_kinds.h"
#include "control_kinds.h"
#include "picture_box_window.h"
#include "text_box_window.h"

namespace qs::win {

std::unique_ptr<ControlWindow> MakeControlWindow(FormWindow& form, ui::Control& control, int id) {
    switch (control.Kind()) {
        case ui::ControlKind::TextBox:
            return std::make_unique<TextBoxWindow>(form, static_cast<ui::TextBox&>(control), id);
        case ui::ControlKind::Label:
            return std::make_unique<LabelWindow>(form, static_cast<ui::Label&>(control), id);
        case ui::ControlKind::CommandButton:
            return std::make_unique<ButtonWindow>(form, static_cast<ui::CommandButton&>(control), id);
        case ui::ControlKind::Timer:
            return std::make_unique<TimerPeer>(form, static_cast<ui::Timer&>(control), id);
        case ui::ControlKind::ListBox:
            return std::make_unique<ListBoxWindow>(form, static_cast<ui::ListBox&>(control), id);
        case ui::ControlKind::ComboBox:
            return std::make_unique<ComboBoxWindow>(form, static_cast<ui::ComboBox&>(control), id);
        case ui::ControlKind::PictureBox:
            return std::make_unique<PictureBoxWindow>(form, static_cast<ui::PictureBox&>(control), id);
        case ui::ControlKind::CheckBox:
            return std::make_unique<CheckBoxWindow>(form, static_cast<ui::CheckBox&>(control), id);
        case ui::ControlKind::OptionButton:
            return std::make_unique<OptionButtonWindow>(form, static_cast<ui::OptionButton&>(control), id);
        case ui::ControlKind::Frame:
            return std::make_unique<FrameWindow>(form, static_cast<ui::Frame&>(control), id);
        case ui::ControlKind::DriveListBox:
            return std::make_unique<DriveBoxWindow>(form, static_cast<ui::DriveListBox&>(control), id);
        case ui::ControlKind::DirListBox:
            return std::make_unique<DirBoxWindow>(form, static_cast<ui::DirListBox&>(control), id);
        case ui::ControlKind::FileListBox:
            return std::make_unique<ListBoxWindow>(form, static_cast<ui::ListBox&>(control), id);
    }
    return std::make_unique<PlainWindow>(form, control, id);
}

}  // namespace qs::win
