#pragma once
// What the window tests do with real windows of this thread: run the queued
// messages and read a window's text.
#include <windows.h>

#include <string>

namespace qs::test {

inline void Pump() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

// Runs the messages, timers' too, until the condition holds or two seconds
// have gone; whether it held.
template <typename Condition>
bool PumpUntil(Condition condition) {
    const DWORD until = ::GetTickCount() + 2000;
    while (!condition()) {
        if (::GetTickCount() > until) return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        Pump();
    }
    return true;
}

inline std::wstring TextOf(HWND window) {
    wchar_t buffer[512] = {};
    ::GetWindowTextW(window, buffer, 512);
    return buffer;
}

}  // namespace qs::test
