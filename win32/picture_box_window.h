#pragma once
// A picture button as an owner-painted child: it draws the picture its slot
// names, lights up under the mouse, and reports presses as MouseDown,
// MouseUp and, when released over it, Click.
#include <windows.h>

#include "control_window.h"
#include "handles.h"
#include "round_button_art.h"
#include "ui/picture_box.h"

namespace qs::win {

class PictureBoxWindow : public ControlWindow {
public:
    PictureBoxWindow(FormWindow& form, ui::PictureBox& picture, int id);

    void Create() override;

protected:
    void OnChanged(ui::Property what) override;

private:
    static LRESULT CALLBACK PictureProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                        DWORD_PTR self);
    LRESULT HandlePicture(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();
    // The drawn button for the present size, DPI and look; drawn again only
    // when one of them changed.
    HBITMAP ButtonBitmap(int width, int height, ButtonLook look);
    ButtonLook ShownLook() const;
    void Pressed(std::int16_t button, WPARAM keys, LPARAM at);
    void Released(std::int16_t button, WPARAM keys, LPARAM at);
    void TrackLeave();

    ui::PictureBox& picture_;
    BitmapHandle bitmap_;
    int bitmapWidth_ = 0;
    int bitmapHeight_ = 0;
    UINT bitmapDpi_ = 0;
    ButtonLook bitmapLook_ = ButtonLook::None;
    bool hover_ = false;
    // The mouse button held down over the picture; 0 when none.
    std::int16_t held_ = 0;
};

}  // namespace qs::win
