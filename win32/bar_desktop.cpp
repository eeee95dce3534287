// The bar on the desktop: the pointer's place, the notification-area icon
// and the drag of a form's window by its surface.
#include <windows.h>
#include <shellapi.h>

#include "move_loop.h"
#include "win32_system.h"

namespace qs::win {

namespace {

// The Windows record of the icon, from the program's record and the form's
// window and small icon. The tip is the program's 8-bit text, ASCII only.
NOTIFYICONDATAW NativeTrayData(HWND window, const TrayIconData& data) {
    NOTIFYICONDATAW native{};
    // The first version of the record: the one with a 64-character tip.
    native.cbSize = NOTIFYICONDATAW_V1_SIZE;
    native.hWnd = window;
    native.uID = static_cast<UINT>(data.uID);
    native.uFlags = static_cast<UINT>(data.uFlags);
    native.uCallbackMessage = static_cast<UINT>(data.uCallbackMessage);
    native.hIcon = reinterpret_cast<HICON>(::GetClassLongPtrW(window, GCLP_HICONSM));
    for (std::size_t i = 0; i < data.szTip.size() && data.szTip[i] != '\0'; ++i) {
        native.szTip[i] = static_cast<wchar_t>(static_cast<unsigned char>(data.szTip[i]));
    }
    return native;
}

}  // namespace

void Win32System::SetWindowLookup(std::function<HWND(const ui::Form&)> lookup) { windowOf_ = std::move(lookup); }

HWND Win32System::WindowOf(const ui::Form& form) const { return windowOf_ ? windowOf_(form) : nullptr; }

PixelPoint Win32System::CursorPosition() {
    POINT at{};
    if (!::GetCursorPos(&at)) return {-1, -1};
    return {at.x, at.y};
}

void Win32System::TrayIconAdd(const ui::Form& form, const TrayIconData& data) {
    const HWND window = WindowOf(form);
    if (window == nullptr) return;
    NOTIFYICONDATAW native = NativeTrayData(window, data);
    ::Shell_NotifyIconW(NIM_ADD, &native);
}

void Win32System::TrayIconDelete(const ui::Form& form, const TrayIconData& data) {
    const HWND window = WindowOf(form);
    if (window == nullptr) return;
    NOTIFYICONDATAW native = NativeTrayData(window, data);
    ::Shell_NotifyIconW(NIM_DELETE, &native);
}

void Win32System::DragBySurface(const ui::Form& form) {
    const HWND window = WindowOf(form);
    if (window == nullptr) return;
    // The window follows the pointer until the button is released, and only
    // then does the call return.
    MoveWithPointer(window);
}

}  // namespace qs::win
