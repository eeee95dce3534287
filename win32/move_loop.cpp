#include "move_loop.h"

namespace qs::win {

namespace {

struct Press {
    HWND window = nullptr;
    POINT at{};
};

Press lastPress;

}  // namespace

void NotePress(HWND window, POINT screen) { lastPress = {window, screen}; }

void MoveWithPointer(HWND window) {
    POINT start{};
    RECT from{};
    if (!::GetCursorPos(&start) || !::GetWindowRect(window, &from)) return;
    if (lastPress.window == window) start = lastPress.at;
    lastPress = {};
    const auto moveTo = [window](int left, int top) {
        ::SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    ::SetCapture(window);
    MSG message{};
    while (::GetCapture() == window) {
        const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
        if (got == 0) {
            // Quitting: the message goes back for the program's own loop.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (got < 0) break;
        if (message.message == WM_MOUSEMOVE) {
            POINT now{};
            ::GetCursorPos(&now);
            moveTo(from.left + now.x - start.x, from.top + now.y - start.y);
            continue;
        }
        if (message.message == WM_LBUTTONUP) break;
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
            moveTo(from.left, from.top);
            break;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    if (::GetCapture() == window) ::ReleaseCapture();
}

}  // namespace qs::win
