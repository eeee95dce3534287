#include "picture_box_window.h"

#include <windows.h>
#include <commctrl.h>
#include <windowsx.h>


#include "dpi.h"
#include "form_window.h"
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

// Shift, Ctrl and Alt as the mouse events report them: 1, 2 and 4.
std::int16_t ShiftState(WPARAM keys) {
    std::int16_t shift = 0;
    if ((keys & MK_SHIFT) != 0) shift |= 1;
    if ((keys & MK_CONTROL) != 0) shift |= 2;
    if ((::GetKeyState(VK_MENU) & 0x8000) != 0) shift |= 4;
    return shift;
}

}  // namespace

PictureBoxWindow::PictureBoxWindow(FormWindow& form, ui::PictureBox& picture, int id)
    : ControlWindow(form, picture, id), picture_(picture) {}

void PictureBoxWindow::Create() {
    CreateChild(PictureClass(), 0);
    if (Handle() == nullptr) return;
    ::SetWindowSubclass(Handle(), PictureProc, 1, reinterpret_cast<DWORD_PTR>(this));
}

void PictureBoxWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Picture || what == ui::Property::Geometry || what == ui::Property::Enabled) {
        ::InvalidateRect(Handle(), nullptr, FALSE);
    }
}

ButtonLook PictureBoxWindow::ShownLook() const {
    const ButtonLook look = LookOfPicture(picture_.Picture());
    return look == ButtonLook::Up && hover_ && picture_.Enabled() ? ButtonLook::Hover : look;
}

HBITMAP PictureBoxWindow::ButtonBitmap(int width, int height, ButtonLook look) {
    const UINT dpi = Form().Dpi();
    if (bitmap_ && bitmapWidth_ == width && bitmapHeight_ == height && bitmapDpi_ == dpi && bitmapLook_ == look) {
        return bitmap_.Get();
    }
    const PixelImage image =
        RenderRoundButton(width, height, static_cast<double>(dpi) / USER_DEFAULT_SCREEN_DPI, look);
    bitmap_ = BitmapOf(image);
    if (!bitmap_) return nullptr;
    bitmapWidth_ = width;
    bitmapHeight_ = height;
    bitmapDpi_ = dpi;
    bitmapLook_ = look;
    return bitmap_.Get();
}

void PictureBoxWindow::Paint() {
    const HWND window = Handle();
    PaintScope paint(window);
    RECT client{};
    ::GetClientRect(window, &client);
    const int width = client.right;
    const int height = client.bottom;
    if (width <= 0 || height <= 0) return;
    // Drawn off screen first, so the button never flickers: the form's own
    // background for this place, then the button over it.
    MemoryDc canvasDc(paint.Get());
    BitmapHandle canvas(::CreateCompatibleBitmap(paint.Get(), width, height));
    SelectScope selectCanvas(canvasDc.Get(), canvas.Get());
    auto background = reinterpret_cast<HBRUSH>(::SendMessageW(
        ::GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(canvasDc.Get()), reinterpret_cast<LPARAM>(window)));
    ::FillRect(canvasDc.Get(), &client, background != nullptr ? background : ::GetSysColorBrush(COLOR_BTNFACE));
    const ButtonLook look = ShownLook();
    if (look != ButtonLook::None) {
        if (const HBITMAP button = ButtonBitmap(width, height, look)) {
            MemoryDc buttonDc(paint.Get());
            SelectScope selectButton(buttonDc.Get(), button);
            const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
            ::AlphaBlend(canvasDc.Get(), 0, 0, width, height, buttonDc.Get(), 0, 0, width, height, blend);
        }
    }
    ::BitBlt(paint.Get(), 0, 0, width, height, canvasDc.Get(), 0, 0, SRCCOPY);
}

void PictureBoxWindow::TrackLeave() {
    TRACKMOUSEEVENT track{};
    track.cbSize = sizeof(track);
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = Handle();
    ::TrackMouseEvent(&track);
}

void PictureBoxWindow::Pressed(std::int16_t button, WPARAM keys, LPARAM at) {
    if (!picture_.Visible() || !picture_.Enabled()) return;
    held_ = button;
    ::SetCapture(Handle());
    const UINT dpi = Form().Dpi();
    picture_.UserMouseDown(button, ShiftState(keys), PixelsToTwips(GET_X_LPARAM(at), dpi),
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
    picture_.UserMouseUp(button, ShiftState(keys), PixelsToTwips(point.x, dpi), PixelsToTwips(point.y, dpi));
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
            return 0;
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
        case WM_MOUSEMOVE:
            if (!hover_) {
                hover_ = true;
                TrackLeave();
                ::InvalidateRect(window, nullptr, FALSE);
            }
            return 0;
        case WM_MOUSELEAVE:
            hover_ = false;
            ::InvalidateRect(window, nullptr, FALSE);
            return 0;
        default:
            return ::DefSubclassProc(window, message, wParam, lParam);
    }
}

LRESULT CALLBACK PictureBoxWindow::PictureProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                               DWORD_PTR self) {
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, PictureProc, 1);
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    auto* picture = reinterpret_cast<PictureBoxWindow*>(self);
    if (picture == nullptr || picture->Detached()) return ::DefSubclassProc(window, message, wParam, lParam);
    try {
        return picture->HandlePicture(message, wParam, lParam);
    } catch (...) {
        // A failure of the program's handler must not take the window down.
        return 0;
    }
}

}  // namespace qs::win
