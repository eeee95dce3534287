#include "window_hook.h"

namespace qs::win {

namespace {

struct Hook {
    WNDPROC own;
    WindowHookProc proc;
    void* data;
};

// A child control's user data belongs to the program that made it: it holds
// the hook, which a window of this thread reads without a system call.
Hook* HookOf(HWND window) { return reinterpret_cast<Hook*>(::GetWindowLongPtrW(window, GWLP_USERDATA)); }

LRESULT CALLBACK RouteMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Hook* hook = HookOf(window);
    if (hook == nullptr) return ::DefWindowProcW(window, message, wParam, lParam);
    if (message != WM_NCDESTROY) {
        return AtEventBoundary([&] { return hook->proc(window, message, wParam, lParam, hook->data); });
    }
    // The window's last message: nothing reaches the hook after it.
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    const WNDPROC own = hook->own;
    delete hook;
    return ::CallWindowProcW(own, window, message, wParam, lParam);
}

}  // namespace

void HookWindow(HWND window, WindowHookProc proc, void* data) {
    auto* hook = new Hook{nullptr, proc, data};
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(hook));
    hook->own =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&RouteMessage)));
}

LRESULT CallOwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Hook* hook = HookOf(window);
    if (hook == nullptr) return ::DefWindowProcW(window, message, wParam, lParam);
    return ::CallWindowProcW(hook->own, window, message, wParam, lParam);
}

}  // namespace qs::win
