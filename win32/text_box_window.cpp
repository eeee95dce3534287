#include "text_box_window.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "form_window.h"
#include "window_hook.h"

namespace qs::win {

namespace {

std::wstring WindowText(HWND window) {
    const int length = ::GetWindowTextLengthW(window);
    std::vector<wchar_t> buffer(static_cast<std::size_t>(length) + 1);
    const int copied = ::GetWindowTextW(window, buffer.data(), length + 1);
    return std::wstring(buffer.data(), static_cast<std::size_t>(std::max(copied, 0)));
}

}  // namespace

TextBoxWindow::TextBoxWindow(FormWindow& form, ui::TextBox& box, int id) : ControlWindow(form, box, id), box_(box) {}

void TextBoxWindow::Create() {
    DWORD style = WS_TABSTOP;
    if (box_.MultiLine()) {
        style |= ES_MULTILINE | ES_AUTOVSCROLL;
        if (box_.VerticalScrollBar()) style |= WS_VSCROLL;
    } else {
        style |= ES_AUTOHSCROLL;
    }
    if (box_.Locked()) style |= ES_READONLY;
    CreateChild(L"EDIT", style);
    if (Handle() == nullptr) return;
    if (Form().HasShown()) AcceptDrops();
    // On a dialog the form draws a thin line round the box, so the text
    // keeps a little room from it.
    if (Form().Model().Style() == ui::FormStyle::Dialog) {
        const int room = ::MulDiv(4, static_cast<int>(Form().Dpi()), USER_DEFAULT_SCREEN_DPI);
        ::SendMessageW(Handle(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(room, room));
    }
    HookWindow(Handle(), EditProc, this);
    WriteText();
}

void TextBoxWindow::FormShown() { AcceptDrops(); }

void TextBoxWindow::AcceptDrops() {
    if (Handle() != nullptr && box_.AcceptsTextDrop() && !drop_) {
        drop_ = std::make_unique<TextDropRegistration>(Handle(), box_);
    }
}

RECT TextBoxWindow::PixelRect() const {
    RECT r = ControlWindow::PixelRect();
    if (box_.MultiLine()) return r;
    // A single-line box sits flat in the middle of its room: as tall as one
    // line of its font, centred on the part of the room the form shows.
    const LONG visibleBottom = std::min<LONG>(r.bottom, Form().ClientHeight());
    const LONG room = visibleBottom - r.top;
    const LONG line = LineHeight();
    if (line <= 0 || line >= room) return r;
    r.top += (room - line) / 2;
    r.bottom = r.top + line;
    return r;
}

HBRUSH TextBoxWindow::DefaultBackground(HDC dc) {
    // The box's own look: the system's field colour.
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

void TextBoxWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    switch (what) {
        case ui::Property::Text:
            WriteText();
            break;
        case ui::Property::Selection:
            WriteSelection();
            break;
        case ui::Property::Locked:
            ::SendMessageW(Handle(), EM_SETREADONLY, box_.Locked() ? TRUE : FALSE, 0);
            break;
        default:
            break;
    }
}

void TextBoxWindow::WriteText() {
    if (WindowText(Handle()) != box_.Text()) {
        writing_ = true;
        ::SetWindowTextW(Handle(), box_.Text().c_str());
        writing_ = false;
    }
    WriteSelection();
}

void TextBoxWindow::WriteSelection() {
    const WPARAM start = static_cast<WPARAM>(box_.SelStart());
    const LPARAM end = static_cast<LPARAM>(box_.SelStart() + box_.SelLength());
    ::SendMessageW(Handle(), EM_SETSEL, start, end);
    ::SendMessageW(Handle(), EM_SCROLLCARET, 0, 0);
}

void TextBoxWindow::ReportSelection() {
    if (Detached() || Handle() == nullptr) return;
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const auto selStart = static_cast<std::int32_t>(start);
    const auto selLength = static_cast<std::int32_t>(end - start);
    if (selStart != box_.SelStart() || selLength != box_.SelLength()) box_.UserSelected(selStart, selLength);
}

void TextBoxWindow::OnCommand(WORD code) {
    if (code != EN_CHANGE || writing_ || Handle() == nullptr) return;
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    box_.UserEdited(WindowText(Handle()), static_cast<std::int32_t>(start), static_cast<std::int32_t>(end - start));
}

LRESULT TextBoxWindow::HandleChar(WPARAM wParam, LPARAM lParam) {
    const HWND window = Handle();
    const std::int16_t key = box_.UserKeyPress(static_cast<wchar_t>(wParam));
    if (key == 0 || Detached()) return 0;
    // A single-line edit control beeps at Enter and Esc; the box has no use
    // for them beyond KeyPress.
    if (!box_.MultiLine() && (key == 13 || key == 27)) return 0;
    const LRESULT result =
        CallOwnProcedure(window, WM_CHAR, static_cast<WPARAM>(static_cast<std::uint16_t>(key)), lParam);
    ReportSelection();
    return result;
}

LRESULT TextBoxWindow::HandleEdit(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = Handle();
    switch (message) {
        case WM_CHAR:
            return HandleChar(wParam, lParam);
        case WM_LBUTTONDBLCLK: {
            const LRESULT result = CallOwnProcedure(window, message, wParam, lParam);
            ReportSelection();
            if (!Detached()) box_.DoubleClick();
            return result;
        }
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
        case WM_SETFOCUS: {
            const LRESULT result = CallOwnProcedure(window, message, wParam, lParam);
            ReportSelection();
            return result;
        }
        default:
            return CallOwnProcedure(window, message, wParam, lParam);
    }
}

LRESULT TextBoxWindow::EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self) {
    auto* box = static_cast<TextBoxWindow*>(self);
    // A drop target is taken back while its window still exists.
    if (message == WM_DESTROY && box != nullptr) box->drop_.reset();
    if (box == nullptr || box->Detached()) return CallOwnProcedure(window, message, wParam, lParam);
    return box->HandleEdit(message, wParam, lParam);
}

}  // namespace qs::win
