#include "control_window.h"

#include <optional>
#include <string>

#include "color_ref.h"
#include "common/startup_marks.h"
#include "dialog_look.h"
#include "dpi.h"
#include "form_window.h"
#include "styled_controls.h"

namespace qs::win {

ControlWindow::ControlWindow(FormWindow& form, ui::Control& control, int id) : form_(form), control_(control), id_(id) {
    control_.AttachPeer(this);
}

ControlWindow::~ControlWindow() { Detach(); }

void ControlWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    if (control_.Peer() == this) control_.AttachPeer(nullptr);
    // The form's window is destroyed next, and the child with it.
    window_.Release();
}

bool ControlWindow::OnForm() const {
    return control_.Shown() && control_.Left() < form_.Model().Width();
}

void ControlWindow::CreateWhenOnForm() {
    // A window nobody can see yet costs the start its making: a hidden
    // control, or one beyond the form's width, gets it when it shows.
    if (MakesWindow() && !OnForm()) {
        waitsToShow_ = true;
        return;
    }
    CreateOrStandOnFace();
}

void ControlWindow::CreateIfNowOnForm() {
    if (!waitsToShow_ || detached_ || !OnForm()) return;
    waitsToShow_ = false;
    CreateOrStandOnFace();
}

void ControlWindow::CreateOrStandOnFace() {
    // On a form made as it shows, the first paint draws such a control on
    // the face, and the window comes at the form's first-shown moment,
    // after that paint and the first keys: a dozen picture buttons'
    // windows are not made before the bar shows and takes its first key.
    if (StandsOnFaceAtFirst() && form_.PicturesOnFace()) {
        onFace_ = true;
        return;
    }
    Create();
}

void ControlWindow::LeaveFace() {
    if (!onFace_ || detached_) return;
    onFace_ = false;
    Create();
}

void ControlWindow::CreateChild(const wchar_t* windowClass, DWORD style, DWORD exStyle) {
    style |= WS_CHILD | WS_CLIPSIBLINGS;
    // On a form already on screen a window made visible is erased before
    // CreateWindowEx returns, a round trip to the server under Wine: it is
    // shown after, without that, and its first paint erases it.
    const bool showAfter = control_.Shown() && ::IsWindowVisible(form_.Handle()) != FALSE;
    if (control_.Shown() && !showAfter) style |= WS_VISIBLE;
    if (!control_.Enabled()) style |= WS_DISABLED;
    const RECT r = PixelRect();
    std::optional<StyledControlsScope> styled;
    if (HasStyledLook(windowClass)) styled.emplace();
    const auto menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_));
    window_.Reset(::CreateWindowExW(exStyle, windowClass, L"", style, r.left, r.top, r.right - r.left,
                                    r.bottom - r.top, form_.Handle(), menu, ::GetModuleHandleW(nullptr), nullptr));
    styled.reset();
    if (!window_) return;
    marks::Mark("child", control_.Name());
    ::SendMessageW(window_.Get(), WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), FALSE);
    if (!control_.ToolTipText().empty()) form_.SetToolTip(window_.Get(), control_.ToolTipText());
    WriteName();
    if (showAfter) {
        ::SetWindowPos(window_.Get(), nullptr, 0, 0, 0, 0,
                       SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_DEFERERASE);
    }
    form_.ChildCreated();
}

void ControlWindow::WriteName() {
    if (!window_ || !TextIsName()) return;
    const std::wstring& tip = control_.ToolTipText();
    ::SetWindowTextW(window_.Get(), (tip.empty() ? control_.AccessibleName() : tip).c_str());
}

void ControlWindow::DestroyChild() {
    window_.Reset();
}

HFONT ControlWindow::ControlFont() const {
    if (control_.FontSize() == 0 && !control_.FontBold() && !control_.FontUnderline()) return form_.Font();
    const UINT dpi = form_.Dpi();
    if (!font_ || fontDpi_ != dpi || fontSize_ != control_.FontSize() || fontBold_ != control_.FontBold() ||
        fontUnderline_ != control_.FontUnderline()) {
        LOGFONTW font = MessageFontAt(dpi);
        if (control_.FontSize() > 0) font.lfHeight = -::MulDiv(control_.FontSize(), static_cast<int>(dpi), 72);
        font.lfWeight = control_.FontBold() ? FW_BOLD : FW_NORMAL;
        font.lfUnderline = control_.FontUnderline() ? TRUE : FALSE;
        font.lfQuality = CLEARTYPE_QUALITY;
        font_.Reset(::CreateFontIndirectW(&font));
        fontDpi_ = dpi;
        fontSize_ = control_.FontSize();
        fontBold_ = control_.FontBold();
        fontUnderline_ = control_.FontUnderline();
        WindowDc dc(form_.Handle());
        SelectScope select(dc.Get(), font_.Get());
        TEXTMETRICW metrics{};
        ::GetTextMetricsW(dc.Get(), &metrics);
        fontLineHeight_ = metrics.tmHeight + ::MulDiv(2, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
    }
    return font_ ? font_.Get() : form_.Font();
}

LONG ControlWindow::LineHeight() const {
    if (ControlFont() != form_.Font()) return fontLineHeight_;
    return form_.LineHeight();
}

COLORREF ControlWindow::DefaultTextColor() const {
    return form_.Model().Style() == ui::FormStyle::Dialog ? ColorRefOf(kDialogTextColor) : ::GetSysColor(COLOR_BTNTEXT);
}

HBRUSH ControlWindow::DefaultBackground(HDC dc) {
    // A frame paints its inside in its own colour: what lies in it without
    // a colour of its own shows that colour, not the form's face.
    for (const ui::Control* container = control_.Container(); container != nullptr;
         container = container->Container()) {
        if (container->BackColor() != ui::DefaultColor) return SolidBackground(dc, container->BackColor());
    }
    return form_.FaceBrushFor(window_.Get(), dc);
}

HBRUSH ControlWindow::ControlColor(HDC dc) {
    const ui::Color fore = control_.ForeColor();
    ::SetTextColor(dc, fore == ui::DefaultColor ? DefaultTextColor() : ColorRefOf(fore));
    const ui::Color back = control_.BackColor();
    if (back == ui::DefaultColor) return DefaultBackground(dc);
    return SolidBackground(dc, back);
}

HBRUSH ControlWindow::SolidBackground(HDC dc, ui::Color back) {
    const COLORREF color = ColorRefOf(back);
    if (!brush_ || brushColor_ != color) {
        brush_.Reset(::CreateSolidBrush(color));
        brushColor_ = color;
    }
    ::SetBkColor(dc, color);
    ::SetBkMode(dc, OPAQUE);
    return brush_.Get();
}

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
    if (!window_) return;
    const RECT r = PixelRect();
    ::SetWindowPos(window_.Get(), nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    form_.FieldsMoved();
}

void ControlWindow::ApplyDpi() {
    if (!window_) return;
    ::SendMessageW(window_.Get(), WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), TRUE);
    ApplyGeometry();
}

void ControlWindow::Changed(ui::Property what) {
    if (detached_) return;
    if (what == ui::Property::Visible || what == ui::Property::Geometry) CreateIfNowOnForm();
    if (what == ui::Property::Focus && (waitsToShow_ || onFace_) && control_.Shown()) {
        // A box given the focus takes the keys even while the form's width
        // leaves it out of sight, as it always has, or before the form's
        // first-shown moment.
        waitsToShow_ = false;
        onFace_ = false;
        Create();
    }
    switch (what) {
        case ui::Property::Geometry:
            ApplyGeometry();
            break;
        case ui::Property::Visible:
            if (window_) {
                const HWND focus = ::GetFocus();
                const bool heldFocus =
                    focus != nullptr && (focus == window_.Get() || ::IsChild(window_.Get(), focus));
                ::ShowWindow(window_.Get(), control_.Shown() ? SW_SHOWNA : SW_HIDE);
                // A hidden control takes no keys: the focus it held goes on
                // to the form's first control that can take it.
                if (heldFocus && !control_.Shown()) form_.FocusFirstControl();
            }
            break;
        case ui::Property::Enabled:
            if (window_) ::EnableWindow(window_.Get(), control_.Enabled() ? TRUE : FALSE);
            break;
        case ui::Property::Focus:
            if (window_) {
                form_.ControlFocused(window_.Get());
                ::SetFocus(window_.Get());
            }
            break;
        case ui::Property::ToolTip:
            form_.SetToolTip(window_.Get(), control_.ToolTipText());
            WriteName();
            break;
        case ui::Property::AccessibleName:
            WriteName();
            break;
        case ui::Property::TabIndex:
            form_.TabIndexChanged(*this);
            break;
        case ui::Property::Font:
            if (window_) {
                ::SendMessageW(window_.Get(), WM_SETFONT, reinterpret_cast<WPARAM>(ControlFont()), TRUE);
                ApplyGeometry();
            }
            break;
        case ui::Property::Colors:
            // The window asks for its colours again as it repaints.
            if (window_) ::InvalidateRect(window_.Get(), nullptr, TRUE);
            break;
        default:
            break;
    }
    // A control without a window may still be part of the face (a strip).
    if (what == ui::Property::Geometry || what == ui::Property::Visible || what == ui::Property::Colors ||
        what == ui::Property::Picture) {
        form_.FieldsMoved();
    }
    OnChanged(what);
}

}  // namespace qs::win
