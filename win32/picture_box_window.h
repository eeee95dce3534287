#pragma once
// A picture button as a painted child: it shows the picture its control
// names, drawn by the catalogue, over the form's face beneath it, and reports
// presses as MouseDown, MouseUp and, when released over it, Click; keys typed
// while it has the focus as KeyPress. Its window text is its name for screen
// readers and automation. A picture box showing a strip has no window: the
// strip is part of the form's face; until its form's first-shown moment,
// neither has any other picture, which the face shows as well.
#include <windows.h>

#include "control_window.h"
#include "ui/picture_box.h"

namespace qs::win {

class PictureBoxWindow : public ControlWindow {
public:
    PictureBoxWindow(FormWindow& form, ui::PictureBox& picture, int id);

    void Create() override;

protected:
    void OnChanged(ui::Property what) override;
    bool TextIsName() const override { return true; }
    bool StandsOnFaceAtFirst() const override;

private:
    static LRESULT PictureProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self);
    void MakeWindow();
    LRESULT HandlePicture(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();
    void Pressed(std::int16_t button, WPARAM keys, LPARAM at);
    void Released(std::int16_t button, WPARAM keys, LPARAM at);

    ui::PictureBox& picture_;
    // The mouse button held down over the picture; 0 when none.
    std::int16_t held_ = 0;
};

}  // namespace qs::win
