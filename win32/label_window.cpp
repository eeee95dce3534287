#include <windowsx.h>

#include "control_kinds.h"
#include "dpi.h"
#include "form_window.h"
#include "mouse_state.h"
#include "window_hook.h"

namespace qs::win {

void LabelWindow::Create() {
    CreateChild(L"STATIC", SS_LEFT | SS_NOTIFY | (label_.UseMnemonic() ? 0 : SS_NOPREFIX) |
                               (label_.BorderStyle() == 1 ? WS_BORDER : 0));
    if (Handle() == nullptr) return;
    ::SetWindowTextW(Handle(), label_.Caption().c_str());
    HookWindow(Handle(), LabelProc, this);
}

void LabelWindow::OnCommand(WORD code) {
    if (code == STN_CLICKED) label_.UserClick();
}

void LabelWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Text) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

LRESULT LabelWindow::LabelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self) {
    auto* label = static_cast<LabelWindow*>(self);
    if (message == WM_MOUSEMOVE && label != nullptr && !label->Detached()) {
        const UINT dpi = label->Form().Dpi();
        label->label_.UserMouseMove(MouseButtonOf(wParam), ShiftStateOf(wParam),
                                    PixelsToTwips(GET_X_LPARAM(lParam), dpi), PixelsToTwips(GET_Y_LPARAM(lParam), dpi));
    }
    // The tooltip listens further down the chain for the pointer.
    return CallOwnProcedure(window, message, wParam, lParam);
}

}  // namespace qs::win
