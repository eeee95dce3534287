#pragma once
// A text box as an EDIT control in the box's own colours and font. The
// user's keys go to the control's KeyPress first, which may swallow them;
// edits and selection moves are reported back; text and selection written by
// code are mirrored without echoing a change back.
#include <memory>

#include "control_window.h"
#include "drop_target.h"
#include "ui/text_box.h"

namespace qs::win {

class TextBoxWindow : public ControlWindow {
public:
    TextBoxWindow(FormWindow& form, ui::TextBox& box, int id);

    void Create() override;
    void OnCommand(WORD code) override;
    bool TakesFocus() const override { return true; }
    void FormShown() override;

protected:
    void OnChanged(ui::Property what) override;
    RECT PixelRect() const override;
    HBRUSH DefaultBackground(HDC dc) override;

private:
    static LRESULT EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self);
    LRESULT HandleEdit(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleChar(WPARAM wParam, LPARAM lParam);
    // Takes text dropped from other programs, when the box accepts it.
    void AcceptDrops();
    void WriteText();
    void WriteSelection();
    // Tells the control where the selection now is, if the window moved it.
    void ReportSelection();

    ui::TextBox& box_;
    // True while code writes the window's text, so its EN_CHANGE is no edit.
    bool writing_ = false;
    // Present while the box takes text dropped from other programs.
    std::unique_ptr<TextDropRegistration> drop_;
};

}  // namespace qs::win
