// Reads the Command box of a running Quillstart from outside, the way a
// person would see it: finds the top-level window with the given title
// (default "Quillstart") that holds an EDIT control, the bar's borderless
// window before a dialog of the same title, and prints
//   text=<text of the box>
//   sel=<start>,<end>
//   rect=<left>,<top>,<right>,<bottom>   (the box, screen pixels)
//   bar=<1 when the box is the shown bar's, 0 when it is a dialog's>
//   places=<x of each character of the box, up to 64, in its client area>
// The places tell the box's font from outside, where WM_GETFONT answers 0:
// a wider font or a bold one spreads the same characters further.
// Exit code 0 when found, 2 when no such window or box exists.
#include <windows.h>

#include <cstdio>
#include <iterator>
#include <string>

#include "utf8.h"

namespace {

struct Search {
    std::wstring title;
    HWND edit = nullptr;
    HWND top = nullptr;
    int rank = 0;
};

// The bar is a borderless window; a message dialog over it has the same
// title and a text box of its own.
constexpr wchar_t kBarClass[] = L"QuillstartBorderless";

BOOL CALLBACK FindEdit(HWND child, LPARAM param) {
    auto* found = reinterpret_cast<HWND*>(param);
    wchar_t cls[64] = {};
    GetClassNameW(child, cls, static_cast<int>(std::size(cls)));
    if (lstrcmpiW(cls, L"Edit") == 0) {
        *found = child;
        return FALSE;
    }
    return TRUE;
}

// Several windows may carry the title (a hidden owner window, a dialog):
// take the one with an edit control, the bar before any other window, and a
// visible one before a hidden one.
BOOL CALLBACK VisitTopLevel(HWND top, LPARAM param) {
    auto* search = reinterpret_cast<Search*>(param);
    wchar_t title[256] = {};
    GetWindowTextW(top, title, static_cast<int>(std::size(title)));
    if (search->title != title) return TRUE;
    HWND edit = nullptr;
    EnumChildWindows(top, FindEdit, reinterpret_cast<LPARAM>(&edit));
    if (edit == nullptr) return TRUE;
    wchar_t cls[64] = {};
    GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
    const int rank = 1 + (lstrcmpW(cls, kBarClass) == 0 ? 2 : 0) + (IsWindowVisible(top) ? 1 : 0);
    if (rank > search->rank) {
        search->edit = edit;
        search->top = top;
        search->rank = rank;
    }
    return TRUE;
}

std::wstring EditText(HWND edit) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(edit, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 2000, &length)) return {};
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(edit, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                             2000, &copied)) {
        return {};
    }
    text.resize(copied);
    return text;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    Search search;
    search.title = argc > 1 ? argv[1] : L"Quillstart";
    EnumWindows(VisitTopLevel, reinterpret_cast<LPARAM>(&search));
    if (search.edit == nullptr) {
        std::fputs("no window\n", stderr);
        return 2;
    }
    const std::wstring text = EditText(search.edit);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(search.edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    RECT rect = {};
    GetWindowRect(search.edit, &rect);
    std::printf("text=%s\n", qs::tools::ToUtf8(text).c_str());
    std::printf("sel=%lu,%lu\n", static_cast<unsigned long>(start), static_cast<unsigned long>(end));
    std::printf("rect=%ld,%ld,%ld,%ld\n", rect.left, rect.top, rect.right, rect.bottom);
    wchar_t cls[64] = {};
    GetClassNameW(search.top, cls, static_cast<int>(std::size(cls)));
    const bool bar = lstrcmpW(cls, kBarClass) == 0 && IsWindowVisible(search.top);
    std::printf("bar=%d\n", bar ? 1 : 0);
    std::printf("places=");
    for (std::size_t i = 0; i < text.size() && i < 64; ++i) {
        DWORD_PTR place = 0;
        if (!SendMessageTimeoutW(search.edit, EM_POSFROMCHAR, i, 0, SMTO_ABORTIFHUNG, 2000, &place)) break;
        std::printf("%s%d", i == 0 ? "" : ",", static_cast<int>(static_cast<short>(LOWORD(place))));
    }
    std::printf("\n");
    return 0;
}
