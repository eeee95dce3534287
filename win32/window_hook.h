#pragma once
// A procedure of ours put in front of a child window's own, as the common
// controls' subclassing does, but without that library: the bar's windows
// are made before it has loaded, so that the bar shows sooner.
#include <windows.h>

namespace qs::win {

// The one boundary between the window system and the program's event
// handlers: a failure that escapes a handler stops here, the message is
// answered as handled, and the program goes on to the next one.
template <typename Handling>
LRESULT AtEventBoundary(Handling&& handling) noexcept {
    try {
        return handling();
    } catch (...) {
        return 0;
    }
}

using WindowHookProc = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);

// Puts the procedure in front of the window's own until the window is
// destroyed; the procedure gets every message but the last, WM_NCDESTROY,
// with the data given here, inside the event boundary. One hook per window.
void HookWindow(HWND window, WindowHookProc proc, void* data);

// Passes a message on to the procedure the hooked window had before.
LRESULT CallOwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace qs::win
