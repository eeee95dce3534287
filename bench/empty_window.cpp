// The yardsticks of the start-up benchmark: the smallest Win32 programs that
// show a window, built with the same toolchain and flags as Quillstart.exe.
// Each registers a class, shows one empty window and runs a message loop
// until the window is closed. Built as empty_window, the window is an
// ordinary decorated one titled "Empty Window", which the window manager
// frames and places; built as empty_popup (QS_EMPTY_POPUP), it is made as the
// bar is: a borderless topmost popup of the bar's size (6360 x 348 twips,
// 424 x 23 pixels at 96 DPI), titled "Empty Popup".
#include <windows.h>

#ifdef QUILL_STARTUP_MARKS
#include "common/startup_marks.h"
#endif

namespace {

#ifdef QS_EMPTY_POPUP
constexpr const wchar_t* kTitle = L"Empty Popup";
constexpr DWORD kExStyle = WS_EX_TOPMOST;
constexpr DWORD kStyle = WS_POPUP | WS_CLIPCHILDREN;
constexpr int kLeft = 100;
constexpr int kTop = 100;
constexpr int kWidth = 424;
constexpr int kHeight = 23;
#else
constexpr const wchar_t* kTitle = L"Empty Window";
constexpr DWORD kExStyle = 0;
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW;
constexpr int kLeft = CW_USEDEFAULT;
constexpr int kTop = CW_USEDEFAULT;
constexpr int kWidth = 420;
constexpr int kHeight = 60;
#endif

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
#ifdef QUILL_STARTUP_MARKS
    // The first paint ends the start-up measured: the marks are written then.
    static bool painted = false;
    if (message == WM_PAINT && !painted) {
        painted = true;
        const LRESULT result = DefWindowProcW(window, message, wParam, lParam);
        qs::marks::Mark("painted");
        qs::marks::Write();
        return result;
    }
#endif
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
#ifdef QUILL_STARTUP_MARKS
    qs::marks::Mark("entry");
#endif
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = L"QuillstartBenchEmptyWindow";
    if (RegisterClassExW(&windowClass) == 0) return 1;
    HWND window = CreateWindowExW(kExStyle, windowClass.lpszClassName, kTitle, kStyle, kLeft, kTop, kWidth, kHeight,
                                  nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return 1;
    ShowWindow(window, show);
#ifdef QUILL_STARTUP_MARKS
    qs::marks::Mark("shown");
#endif
    UpdateWindow(window);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
