#include "browse_kinds.h"

#include <windowsx.h>

#include "dpi.h"
#include "form_window.h"
#include "mouse_state.h"
#include "window_hook.h"

namespace qs::win {

void OptionButtonWindow::Create() {
    CreateChild(L"BUTTON", BS_RADIOBUTTON | WS_TABSTOP);
    if (Handle() == nullptr) return;
    OnChanged(ui::Property::Text);
    OnChanged(ui::Property::Value);
}

void OptionButtonWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Text) ::SetWindowTextW(Handle(), option_.Caption().c_str());
    if (what == ui::Property::Value) {
        ::SendMessageW(Handle(), BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
    }
}

void OptionButtonWindow::OnCommand(WORD code) {
    if (code == BN_CLICKED) option_.UserClicked();
}

void FrameWindow::Create() {
    if (frame_.Bordered()) {
        CreateChild(L"BUTTON", BS_GROUPBOX);
        if (Handle() == nullptr) return;
        ::SetWindowTextW(Handle(), frame_.Caption().c_str());
    } else {
        CreateChild(L"STATIC", SS_NOTIFY);
        if (Handle() == nullptr) return;
    }
    HookWindow(Handle(), AreaProc, this);
}

void FrameWindow::OnChanged(ui::Property what) {
    if (Handle() != nullptr && what == ui::Property::Text && frame_.Bordered()) {
        ::SetWindowTextW(Handle(), frame_.Caption().c_str());
    }
}

LRESULT FrameWindow::AreaProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self) {
    auto* frame = static_cast<FrameWindow*>(self);
    if (message == WM_ERASEBKGND) {
        // A group box paints only its line and caption: the inside takes
        // the face the form gives its controls.
        const auto dc = reinterpret_cast<HDC>(wParam);
        const auto brush = reinterpret_cast<HBRUSH>(
            ::SendMessageW(::GetParent(window), WM_CTLCOLORSTATIC, wParam, reinterpret_cast<LPARAM>(window)));
        RECT client{};
        ::GetClientRect(window, &client);
        if (brush != nullptr) ::FillRect(dc, &client, brush);
        return 1;
    }
    if (message == WM_MOUSEMOVE && !frame->Detached()) {
        const UINT dpi = frame->Form().Dpi();
        frame->frame_.UserMouseMove(MouseButtonOf(wParam), ShiftStateOf(wParam),
                                    PixelsToTwips(GET_X_LPARAM(lParam), dpi), PixelsToTwips(GET_Y_LPARAM(lParam), dpi));
    }
    return CallOwnProcedure(window, message, wParam, lParam);
}

void DirBoxWindow::ItemText(std::int32_t index, std::wstring& text) const {
    text.assign(static_cast<std::size_t>(dirs_.DepthAt(index)) * 3, L' ').append(dirs_.List(index));
}

void DirBoxWindow::OnCommand(WORD code) {
    if (code != LBN_DBLCLK) {
        ListBoxWindow::OnCommand(code);
        return;
    }
    if (Handle() == nullptr) return;
    const LRESULT index = ::SendMessageW(Handle(), LB_GETCURSEL, 0, 0);
    if (index != LB_ERR) dirs_.UserOpened(static_cast<std::int32_t>(index));
}

}  // namespace qs::win
