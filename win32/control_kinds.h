#pragma once
// The peers of the simpler control kinds.
#include "control_window.h"
#include "handles.h"
#include "items_window.h"
#include "ui/check_box.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/list_box.h"
#include "ui/timer.h"

namespace qs::win {

// A caption as a STATIC control over the form's face; a click on it is the
// label's Click, the pointer moving over it its MouseMove.
class LabelWindow : public ControlWindow {
public:
    LabelWindow(FormWindow& form, ui::Label& label, int id) : ControlWindow(form, label, id), label_(label) {}
    void Create() override;
    void OnCommand(WORD code) override;

protected:
    void OnChanged(ui::Property what) override;

private:
    static LRESULT LabelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self);

    ui::Label& label_;
};

// A push button; a click is the button's Click.
class ButtonWindow : public ControlWindow {
public:
    ButtonWindow(FormWindow& form, ui::CommandButton& button, int id) : ControlWindow(form, button, id), button_(button) {}
    void Create() override;
    void OnCommand(WORD code) override;
    bool TakesFocus() const override { return Model().Shown() && Model().Enabled(); }

private:
    ui::CommandButton& button_;
};

// A check box as a BUTTON that the program ticks itself: the user's click
// goes to the control, whose Value comes back to the box.
class CheckBoxWindow : public ControlWindow {
public:
    CheckBoxWindow(FormWindow& form, ui::CheckBox& box, int id) : ControlWindow(form, box, id), box_(box) {}
    void Create() override;
    void OnCommand(WORD code) override;
    bool TakesFocus() const override { return Model().Shown() && Model().Enabled(); }

protected:
    void OnChanged(ui::Property what) override;

private:
    void WriteCaption();
    void WriteValue();

    ui::CheckBox& box_;
};

// A timer has no window: it ticks through the form's window.
class TimerPeer : public ControlWindow {
public:
    TimerPeer(FormWindow& form, ui::Timer& timer, int id) : ControlWindow(form, timer, id), timer_(timer) {}
    ~TimerPeer() override;
    void Create() override { Arm(); }
    bool MakesWindow() const override { return false; }
    void OnTimer() override { timer_.Fire(); }

protected:
    void OnChanged(ui::Property what) override;

private:
    void Arm();

    ui::Timer& timer_;
};

// A list box gets a LISTBOX window only once it is shown; a hidden list
// (the program keeps many) costs no window at all.
class ListBoxWindow : public ItemsWindow {
public:
    ListBoxWindow(FormWindow& form, ui::ListBox& list, int id) : ItemsWindow(form, list, id, kListBoxMessages) {}
    void Create() override;
    bool TakesFocus() const override { return Handle() != nullptr && Model().Shown(); }

protected:
    bool TextIsName() const override { return true; }
};

// A control kind with no behaviour of its own here: a plain child window
// that keeps the control's place, visibility and state.
class PlainWindow : public ControlWindow {
public:
    PlainWindow(FormWindow& form, ui::Control& control, int id) : ControlWindow(form, control, id) {}
    void Create() override { CreateChild(L"STATIC", SS_NOTIFY); }
};

}  // namespace qs::win
