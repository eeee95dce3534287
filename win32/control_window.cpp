#include "control_window.h"

#include "dpi.h"
#include "form_window.h"

namespace qs::win {

ControlWindow::ControlWindow(FormWindow& form, ui::Control& control, int id)
    : form_(form), control_(control), id_(id) {
    control_.AttachPeer(this);
}

ControlWindow::~ControlWindow() { Detach(); }

void ControlWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    if (control_.Peer() == this) control_.AttachPeer(nullptr);
    window_ = nullptr;
}

void ControlWindow::CreateChild(const wchar_t* windowClass, DWORD style, DWORD exStyle) {
    style |= WS_CHILD | WS_CLIPSIBLINGS;
    if (control_.Shown()) style |= WS_VISIBLE;
    if (!control_.Enabled()) style |= WS_DISABLED;
    const RECT r = PixelRect();
    window_ = ::CreateWindowExW(exStyle, windowClass, L"", style, r.left, r.top, r.right - r.left, r.bottom - r.top,
                                form_.Handle(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)),
                                ::GetModuleHandleW(nullptr), nullptr);
    if (window_ == nullptr) return;
    ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), FALSE);
    if (!control_.ToolTipText().empty()) form_.SetToolTip(window_, control_.ToolTipText());
    form_.ChildCreated();
}

HFONT ControlWindow::ControlFont() { return form_.Font(); }

RECT ControlWindow::PixelRect() const {
    const UINT dpi = form_.Dpi();
    RECT r;
    r.left = TwipsToPixels(control_.Left(), dpi);
    r.top = TwipsToPixels(control_.Top(), dpi);
    r.right = r.left + TwipsToPixels(control_.Width(), dpi);
    r.bottom = r.top + TwipsToPixels(control_.Height(), dpi);
    return r;
}

void ControlWindow::ApplyGeometry() {
    if (window_ == nullptr) return;
    const RECT r = PixelRect();
    ::SetWindowPos(window_, nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top, SWP_NOZORDER | SWP_NOACTIVATE);
    form_.FieldsMoved();
}

void ControlWindow::ApplyDpi() {
    if (window_ == nullptr) return;
    ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), TRUE);
    ApplyGeometry();
}

void ControlWindow::Changed(ui::Property what) {
    if (detached_) return;
    switch (what) {
        case ui::Property::Geometry:
            ApplyGeometry();
            break;
        case ui::Property::Visible:
            if (window_ != nullptr) {
                ::ShowWindow(window_, control_.Shown() ? SW_SHOWNA : SW_HIDE);
                form_.FieldsMoved();
            }
            break;
        case ui::Property::Enabled:
            if (window_ != nullptr) ::EnableWindow(window_, control_.Enabled() ? TRUE : FALSE);
            break;
        case ui::Property::Focus:
            if (window_ != nullptr) ::SetFocus(window_);
            break;
        case ui::Property::ToolTip:
            form_.SetToolTip(window_, control_.ToolTipText());
            break;
        case ui::Property::TabIndex:
            form_.TabIndexChanged(*this);
            break;
        default:
            break;
    }
    OnChanged(what);
}

}  // namespace qs::win
