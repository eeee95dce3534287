#include "picture_box_window.h"

#include <windows.h>
#include <windowsx.h>

#include "art/catalogue.h"
#include "dpi.h"
#include "form_window.h"
#include "mouse_state.h"
#include "picture_cache.h"
#include "window_hook.h"
#include "window_names.h"

namespace qs::win {

namespace {

// The class of picture windows: no painting or input of its own; the
// subclass procedure of each picture does both.
const wchar_t* PictureClass() {
    static const bool registered = [] {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof(windowClass);
        windowClass.style = CS_DBLCLKS;
        windowClass.lpfnWndProc = ::DefWindowProcW;
        windowClass.hInstance = ::GetModuleHandleW(nullptr);
        windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        windowClass.lpszClassName = kPictureClass;
        return ::RegisterClassExW(&windowClass) != 0;
    }();
    return registered ? kPictureClass : L"STATIC";
}

}  // namespace

PictureBoxWindow::PictureBoxWindow(FormWindow& form, ui::PictureBox& picture, int id)
    : ControlWindow(form, picture, id), picture_(picture) {}

void PictureBoxWindow::Create() {
    if (!IsStripPicture(picture_.Picture())) MakeWindow();
}

bool PictureBoxWindow::StandsOnFaceAtFirst() const { return !IsStripPicture(picture_.Picture()); }

void PictureBoxWindow::MakeWindow() {
    // A picture that answers keys is reached by Tab like any other control.
    CreateChild(PictureClass(), picture_.KeyPress ? WS_TABSTOP : 0);
    if (Handle() == nullptr) return;
    HookWindow(Handle(), PictureProc, this);
}

void PictureBoxWindow::OnChanged(ui::Property what) {
    if (what != ui::Property::Picture) {
        if (Handle() != nullptr && (what == ui::Property::Geometry || what == ui::Property::Enabled)) {
            ::InvalidateRect(Handle(), nullptr, FALSE);
        }
        return;
    }
    // A picture box that comes to show a strip gives up its window and
    // becomes part of the face; one that stops showing a strip gets one.
    const bool strip = IsStripPicture(picture_.Picture());
    if (strip && Handle() != nullptr) DestroyChild();
    if (!strip && Handle() == nullptr && !WaitsToShow() && !OnFace()) MakeWindow();
    if (Handle() != nullptr) ::InvalidateRect(Handle(), nullptr, FALSE);
    Form().FieldsMoved();
}

void PictureBoxWindow::Paint() {
    const HWND window = Handle();
    PaintScope paint(window);
    RECT client{};
    ::GetClientRect(window, &client);
    const int width = client.right;
    const int height = client.bottom;
    if (width <= 0 || height <= 0) return;
    // The form's face where the picture lies, then the picture over it,
    // put together off screen and shown in one piece, so it never flickers.
    POINT origin{0, 0};
    ::MapWindowPoints(window, Form().Handle(), &origin, 1);
    const PixelImage& face = Form().Face();
    PixelImage canvas;
    canvas.width = width;
    canvas.height = height;
    canvas.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0xFF000000u);
    BlendInto(canvas, face, -origin.x, -origin.y);
    BlendInto(canvas, PictureCache::Shared().Get(picture_.Picture(), width, height, Form().Dpi()), 0, 0);
    const BITMAPINFO info = TopDownInfo(width, height);
    ::SetDIBitsToDevice(paint.Get(), 0, 0, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                        static_cast<UINT>(height), canvas.pixels.data(), &info, DIB_RGB_COLORS);
    // A picture that holds the keyboard shows it as buttons do.
    if (::GetFocus() == window) ::DrawFocusRect(paint.Get(), &client);
}

void PictureBoxWindow::Pressed(std::int16_t button, WPARAM keys, LPARAM at) {
    if (!picture_.Visible() || !picture_.Enabled()) return;
    held_ = button;
    ::SetCapture(Handle());
    const UINT dpi = Form().Dpi();
    picture_.UserMouseDown(button, ShiftStateOf(keys), PixelsToTwips(GET_X_LPARAM(at), dpi),
                           PixelsToTwips(GET_Y_LPARAM(at), dpi));
}

void PictureBoxWindow::Released(std::int16_t button, WPARAM keys, LPARAM at) {
    if (held_ != button) return;
    held_ = 0;
    const HWND window = Handle();
    ::ReleaseCapture();
    RECT client{};
    ::GetClientRect(window, &client);
    const POINT point{GET_X_LPARAM(at), GET_Y_LPARAM(at)};
    const bool over = ::PtInRect(&client, point) != FALSE;
    const UINT dpi = Form().Dpi();
    picture_.UserMouseUp(button, ShiftStateOf(keys), PixelsToTwips(point.x, dpi), PixelsToTwips(point.y, dpi));
    // MouseUp may already have closed the form.
    if (Detached() || button != ui::LeftButton || !over) return;
    picture_.UserClick();
}

LRESULT PictureBoxWindow::HandlePicture(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = Handle();
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            Pressed(ui::LeftButton, wParam, lParam);
            // The tooltip listens further down the chain: it hides on a press.
            return CallOwnProcedure(window, message, wParam, lParam);
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            Pressed(ui::RightButton, wParam, lParam);
            return 0;
        case WM_LBUTTONUP:
            Released(ui::LeftButton, wParam, lParam);
            return 0;
        case WM_RBUTTONUP:
            Released(ui::RightButton, wParam, lParam);
            return 0;
        case WM_CAPTURECHANGED:
            held_ = 0;
            return 0;
        case WM_GETDLGCODE:
            // Enter and Space on a picture that holds the focus are its keys.
            return DLGC_WANTCHARS;
        case WM_CHAR:
            // The key is the picture's alone: nothing below it has a use for it.
            if (picture_.Visible() && picture_.Enabled()) picture_.UserKeyPress(static_cast<wchar_t>(wParam));
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            ::InvalidateRect(window, nullptr, FALSE);
            return CallOwnProcedure(window, message, wParam, lParam);
        case WM_MOUSEMOVE: {
            const UINT dpi = Form().Dpi();
            picture_.UserMouseMove(MouseButtonOf(wParam), ShiftStateOf(wParam),
                                   PixelsToTwips(GET_X_LPARAM(lParam), dpi), PixelsToTwips(GET_Y_LPARAM(lParam), dpi));
            // The tooltip listens further down the chain for the pointer.
            return CallOwnProcedure(window, message, wParam, lParam);
        }
        default:
            return CallOwnProcedure(window, message, wParam, lParam);
    }
}

LRESULT PictureBoxWindow::PictureProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self) {
    auto* picture = static_cast<PictureBoxWindow*>(self);
    if (picture == nullptr || picture->Detached()) return CallOwnProcedure(window, message, wParam, lParam);
    return picture->HandlePicture(message, wParam, lParam);
}

}  // namespace qs::win
