// The stopwatch of the panes benchmark, run under Wine beside a running
// Quillstart. Each command prints one figure:
//   click TITLE TEXT [SHOWN_TITLE]
//       clicks the shown child whose window text is TEXT in the shown
//       top-level window titled TITLE (mouse down and up posted to it, as
//       the pointer would), then waits until Quillstart's window thread has
//       done all the click asked of it (a window titled SHOWN_TITLE shows,
//       when given, and a message sent to the thread is answered); prints
//       "ms=<milliseconds>"
//   paint-click TITLE TEXT
//       as click, and then until every shown window of Quillstart has
//       painted what the click left to paint (each one's pending paints are
//       asked for at once, and a paint asked of another program's window is
//       answered when it is done)
//   memory
//       prints "working_set_kb=<Quillstart's working set>"
//   text TITLE
//       prints "text=<text>" for each shown child of the window TITLE
// Exit code 0 on success, 2 when a window or child was not found or the
// wait ran past 60 s.
#include <windows.h>
#include <psapi.h>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

std::wstring TextOf(HWND window) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 5000, &length)) return {};
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                             SMTO_ABORTIFHUNG, 5000, &copied)) {
        return {};
    }
    text.resize(copied);
    return text;
}

struct Search {
    std::wstring text;
    HWND found = nullptr;
};

BOOL CALLBACK FindTop(HWND top, LPARAM param) {
    auto* search = reinterpret_cast<Search*>(param);
    if (!IsWindowVisible(top) || TextOf(top) != search->text) return TRUE;
    search->found = top;
    return FALSE;
}

// A picture button carries the caption of the label beside it as its name:
// the button is taken before a label of the same text.
BOOL CALLBACK FindChild(HWND child, LPARAM param) {
    auto* search = reinterpret_cast<Search*>(param);
    if (!IsWindowVisible(child) || TextOf(child) != search->text) return TRUE;
    wchar_t cls[64] = {};
    GetClassNameW(child, cls, 64);
    if (search->found == nullptr || lstrcmpW(cls, L"QuillstartPicture") == 0) search->found = child;
    return lstrcmpW(cls, L"QuillstartPicture") != 0;
}

HWND ShownTop(const std::wstring& title) {
    Search search{title};
    EnumWindows(FindTop, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// The bar: a borderless window titled "Quillstart" (a message has the same
// title but another class).
HWND Bar() { return FindWindowExW(nullptr, nullptr, L"QuillstartBorderless", L"Quillstart"); }

struct Painting {
    DWORD process = 0;
    bool ok = true;
};

BOOL CALLBACK PaintTop(HWND top, LPARAM param) {
    auto* painting = reinterpret_cast<Painting*>(param);
    DWORD process = 0;
    GetWindowThreadProcessId(top, &process);
    if (process != painting->process || !IsWindowVisible(top)) return TRUE;
    if (!RedrawWindow(top, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN)) painting->ok = false;
    return TRUE;
}

enum class After { Done, Painted };

int Click(const std::wstring& title, const std::wstring& text, const wchar_t* shownTitle, After after = After::Done) {
    const HWND top = ShownTop(title);
    if (top == nullptr) {
        std::fprintf(stderr, "no window %ls\n", title.c_str());
        return 2;
    }
    Search search{text};
    EnumChildWindows(top, FindChild, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) {
        std::fprintf(stderr, "no child %ls\n", text.c_str());
        return 2;
    }
    RECT r{};
    GetClientRect(search.found, &r);
    const LPARAM middle = MAKELPARAM(r.right / 2, r.bottom / 2);
    const auto start = Clock::now();
    PostMessageW(search.found, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    PostMessageW(search.found, WM_LBUTTONUP, 0, middle);
    const auto deadline = start + std::chrono::seconds(60);
    if (shownTitle != nullptr) {
        while (ShownTop(shownTitle) == nullptr) {
            if (Clock::now() > deadline) return 2;
            Sleep(1);
        }
    }
    // A sent message is answered only between the thread's other messages:
    // once it is, the posted click has been taken and done. Two in a row, so
    // the first cannot slip in between the posted button messages.
    DWORD_PTR answer = 0;
    for (int i = 0; i < 2; ++i) {
        Sleep(1);
        if (!SendMessageTimeoutW(top, WM_NULL, 0, 0, SMTO_NORMAL, 60000, &answer)) return 2;
    }
    if (after == After::Painted) {
        Painting painting;
        GetWindowThreadProcessId(top, &painting.process);
        EnumWindows(PaintTop, reinterpret_cast<LPARAM>(&painting));
        if (!painting.ok) return 2;
    }
    const double ms = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    std::printf("ms=%.1f\n", ms);
    return 0;
}

int Memory() {
    const HWND bar = Bar();
    if (bar == nullptr) return 2;
    DWORD pid = 0;
    GetWindowThreadProcessId(bar, &pid);
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, pid);
    if (process == nullptr) return 2;
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    const BOOL ok = GetProcessMemoryInfo(process, &counters, sizeof(counters));
    CloseHandle(process);
    if (!ok) return 2;
    std::printf("working_set_kb=%llu\n", static_cast<unsigned long long>(counters.WorkingSetSize / 1024));
    return 0;
}

BOOL CALLBACK PrintText(HWND child, LPARAM) {
    if (IsWindowVisible(child)) std::printf("text=%ls\n", TextOf(child).c_str());
    return TRUE;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring command = argc > 1 ? argv[1] : L"";
    if (command == L"click" && argc >= 4) return Click(argv[2], argv[3], argc >= 5 ? argv[4] : nullptr);
    if (command == L"paint-click" && argc >= 4) return Click(argv[2], argv[3], nullptr, After::Painted);
    if (command == L"memory") return Memory();
    if (command == L"text" && argc >= 3) {
        const HWND top = ShownTop(argv[2]);
        if (top == nullptr) return 2;
        EnumChildWindows(top, PrintText, 0);
        return 0;
    }
    std::fputs("usage: panetool click TITLE TEXT [SHOWN_TITLE] | paint-click TITLE TEXT | memory | text TITLE\n", stderr);
    return 2;
}
