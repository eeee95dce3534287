#pragma once
// The peers of the option button, the frame and the drive and folder boxes.
// The file box is a plain list box (ListBoxWindow).
#include "combo_box_window.h"
#include "control_kinds.h"
#include "ui/dir_list_box.h"
#include "ui/drive_list_box.h"
#include "ui/frame.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"

namespace qs::win {

// An option button as a BUTTON that the program turns on itself: the
// user's click goes to the control, whose Value comes back to the button.
class OptionButtonWindow : public ControlWindow {
public:
    OptionButtonWindow(FormWindow& form, ui::OptionButton& option, int id)
        : ControlWindow(form, option, id), option_(option) {}
    void Create() override;
    void OnCommand(WORD code) override;
    bool TakesFocus() const override { return Model().Shown() && Model().Enabled(); }

protected:
    void OnChanged(ui::Property what) override;

private:
    ui::OptionButton& option_;
};

// A frame as a group box beneath its contents; a frame without a border as
// a bare area that reports the mouse moving over it.
class FrameWindow : public ControlWindow {
public:
    FrameWindow(FormWindow& form, ui::Frame& frame, int id) : ControlWindow(form, frame, id), frame_(frame) {}
    void Create() override;

protected:
    void OnChanged(ui::Property what) override;

private:
    static LRESULT AreaProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self);

    ui::Frame& frame_;
};

// The drive box: a drop-down list with room for ten drives.
class DriveBoxWindow : public ComboBoxWindow {
public:
    DriveBoxWindow(FormWindow& form, ui::DriveListBox& drives, int id) : ComboBoxWindow(form, drives, id) {}

protected:
    int DroppedRows() const override { return 10; }
};

// The folder box: a list box whose folders are indented by their depth; a
// double click opens a folder.
class DirBoxWindow : public ListBoxWindow {
public:
    DirBoxWindow(FormWindow& form, ui::DirListBox& dirs, int id) : ListBoxWindow(form, dirs, id), dirs_(dirs) {}
    void OnCommand(WORD code) override;

protected:
    void ItemText(std::int32_t index, std::wstring& text) const override;

private:
    ui::DirListBox& dirs_;
};

}  // namespace qs::win
