// Tells which window holds the keyboard focus of a running Quillstart: finds
// the bar (the borderless top-level window titled "Quillstart"), asks its
// thread's focus and active window (GetGUIThreadInfo), and prints
//   focus=<class of the focus window, or empty when none>
//   edit=<1-based place of the focus among its top-level window's EDIT
//        children, in their order, or 0 when it is no EDIT>
//   text=<its window text>
//   top=<title of its top-level window>
//   topclass=<class of its top-level window>
//   active=<title of the thread's active window, or empty>
// The bar's Command box is edit 1 of the window of class
// QuillstartBorderless. Exit code 0 when the bar was found, 2 otherwise.
#include <windows.h>

#include <cstdio>
#include <iterator>
#include <string>

#include "utf8.h"

namespace {

constexpr wchar_t kBarClass[] = L"QuillstartBorderless";

std::wstring ClassOf(HWND window) {
    wchar_t cls[128] = {};
    if (window != nullptr) GetClassNameW(window, cls, static_cast<int>(std::size(cls)));
    return cls;
}

std::wstring TextOf(HWND window) {
    if (window == nullptr) return {};
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) return {};
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                             SMTO_ABORTIFHUNG, 2000, &copied)) {
        return {};
    }
    text.resize(copied);
    return text;
}

struct EditSearch {
    HWND target = nullptr;
    int seen = 0;
    int place = 0;
};

BOOL CALLBACK CountEdits(HWND child, LPARAM param) {
    auto* search = reinterpret_cast<EditSearch*>(param);
    if (lstrcmpiW(ClassOf(child).c_str(), L"Edit") != 0) return TRUE;
    ++search->seen;
    if (child != search->target) return TRUE;
    search->place = search->seen;
    return FALSE;
}

BOOL CALLBACK FindBar(HWND top, LPARAM param) {
    if (ClassOf(top) != kBarClass) return TRUE;
    wchar_t title[64] = {};
    GetWindowTextW(top, title, static_cast<int>(std::size(title)));
    if (lstrcmpW(title, L"Quillstart") != 0) return TRUE;
    *reinterpret_cast<HWND*>(param) = top;
    return FALSE;
}

void PrintLine(const char* key, const std::wstring& value) {
    std::printf("%s=%s\n", key, qs::tools::ToUtf8(value).c_str());
}

}  // namespace

int wmain() {
    HWND bar = nullptr;
    EnumWindows(FindBar, reinterpret_cast<LPARAM>(&bar));
    if (bar == nullptr) {
        std::fputs("no bar\n", stderr);
        return 2;
    }
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(bar, nullptr), &info)) {
        std::fputs("no thread information\n", stderr);
        return 2;
    }
    const HWND focus = info.hwndFocus;
    const HWND top = focus != nullptr ? GetAncestor(focus, GA_ROOT) : nullptr;
    EditSearch search;
    search.target = focus;
    if (top != nullptr && top != focus) EnumChildWindows(top, CountEdits, reinterpret_cast<LPARAM>(&search));
    PrintLine("focus", ClassOf(focus));
    std::printf("edit=%d\n", search.place);
    PrintLine("text", TextOf(focus));
    PrintLine("top", TextOf(top));
    PrintLine("topclass", ClassOf(top));
    PrintLine("active", TextOf(info.hwndActive));
    return 0;
}
