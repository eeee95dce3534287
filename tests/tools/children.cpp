// Reads a dialog of a running Quillstart from outside: finds the visible
// top-level window of the given class (default "QuillstartDialog") and
// prints, one a line,
//   window=<left>,<top>,<right>,<bottom>      (screen pixels)
//   title=<title>
//   owner=<title of the owner window, or empty>
//   child=<class>\t<visible 0|1>\t<left>,<top>,<right>,<bottom>\t<text>
// for every child window, and after a list box's line
//   first=<index of the item shown at its top>
//   item=<index>\t<text>
// for each of its items, the text read with WM_GETTEXT (LB_GETTEXT for an
// item) and its carriage
// returns and line feeds written as \r and \n. After a drop-down list's line
//   combo=<count>\t<index of the chosen item, -1 for none>
//   item=<index>\t<text>
// for its first 50 items (CB_GETLBTEXT).
// With --state, every child's line is followed by
//   state=<enabled 0|1>\t<BM_GETCHECK of a button, -1 for other classes>
// Options: --title TITLE takes only a window of that title (the bar and the
// borderless panes share a class); --centre TEXT prints only
//   centre=<x>,<y>
// the screen place of the middle of the first shown child whose window text
// is TEXT (a picture button's text is its tooltip or its name), exit code 3
// when none shows; with --class CLASS only a child of that class counts.
// --bare prints only
//   bare=<x>,<y>
// the screen place in the middle of the widest run of columns of the window
// that show its bare face from top to bottom (the colour of its top-left
// pixel, read from the screen, with no child window on them): a place to
// drag the window by; exit code 3 when there is none.
// Exit code 0 when found, 2 when no such window is shown.
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "utf8.h"

namespace {

struct Search {
    std::wstring cls;
    std::wstring title;
    HWND found = nullptr;
};

std::wstring WindowText(HWND window);

BOOL CALLBACK VisitTopLevel(HWND top, LPARAM param) {
    auto* search = reinterpret_cast<Search*>(param);
    wchar_t cls[128] = {};
    GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
    if (search->cls != cls || !IsWindowVisible(top)) return TRUE;
    if (!search->title.empty() && WindowText(top) != search->title) return TRUE;
    search->found = top;
    return FALSE;
}

std::wstring WindowText(HWND window) {
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

std::wstring OneLine(const std::wstring& text) {
    std::wstring line;
    for (const wchar_t c : text) {
        if (c == L'\r') {
            line += L"\\r";
        } else if (c == L'\n') {
            line += L"\\n";
        } else if (c == L'\t') {
            line += L"\\t";
        } else {
            line += c;
        }
    }
    return line;
}

void PrintRect(const char* prefix, HWND window) {
    RECT r = {};
    GetWindowRect(window, &r);
    std::printf("%s%ld,%ld,%ld,%ld", prefix, r.left, r.top, r.right, r.bottom);
}

void PrintItems(HWND list) {
    DWORD_PTR first = 0;
    if (!SendMessageTimeoutW(list, LB_GETTOPINDEX, 0, 0, SMTO_ABORTIFHUNG, 2000, &first)) return;
    std::printf("first=%u\n", static_cast<unsigned>(first));
    DWORD_PTR count = 0;
    if (!SendMessageTimeoutW(list, LB_GETCOUNT, 0, 0, SMTO_ABORTIFHUNG, 2000, &count)) return;
    for (DWORD_PTR i = 0; i < count && i < 1000; ++i) {
        DWORD_PTR length = 0;
        if (!SendMessageTimeoutW(list, LB_GETTEXTLEN, i, 0, SMTO_ABORTIFHUNG, 2000, &length) || length > 4096) return;
        std::wstring text(length + 1, L'\0');
        DWORD_PTR copied = 0;
        if (!SendMessageTimeoutW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG, 2000,
                                 &copied)) {
            return;
        }
        text.resize(copied);
        std::printf("item=%u\t%s\n", static_cast<unsigned>(i), qs::tools::ToUtf8(OneLine(text)).c_str());
    }
}

std::wstring ComboItem(HWND combo, DWORD_PTR index) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(combo, CB_GETLBTEXTLEN, index, 0, SMTO_ABORTIFHUNG, 2000, &length) || length > 4096) {
        return {};
    }
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    if (!SendMessageTimeoutW(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                             2000, &copied)) {
        return {};
    }
    text.resize(copied);
    return text;
}

void PrintComboItems(HWND combo) {
    DWORD_PTR count = 0;
    DWORD_PTR chosen = 0;
    if (!SendMessageTimeoutW(combo, CB_GETCOUNT, 0, 0, SMTO_ABORTIFHUNG, 2000, &count)) return;
    if (!SendMessageTimeoutW(combo, CB_GETCURSEL, 0, 0, SMTO_ABORTIFHUNG, 2000, &chosen)) return;
    std::printf("combo=%u\t%d\n", static_cast<unsigned>(count), static_cast<int>(static_cast<LRESULT>(chosen)));
    for (DWORD_PTR i = 0; i < count && i < 50; ++i) {
        std::printf("item=%u\t%s\n", static_cast<unsigned>(i), qs::tools::ToUtf8(OneLine(ComboItem(combo, i))).c_str());
    }
}

struct Find {
    std::wstring text;
    std::wstring cls;
    HWND found = nullptr;
};

BOOL CALLBACK FindChild(HWND child, LPARAM param) {
    auto* find = reinterpret_cast<Find*>(param);
    if (!IsWindowVisible(child) || WindowText(child) != find->text) return TRUE;
    wchar_t cls[128] = {};
    GetClassNameW(child, cls, static_cast<int>(std::size(cls)));
    if (!find->cls.empty() && _wcsicmp(cls, find->cls.c_str()) != 0) return TRUE;
    find->found = child;
    return FALSE;
}

BOOL CALLBACK PrintChild(HWND child, LPARAM withState) {
    wchar_t cls[128] = {};
    GetClassNameW(child, cls, static_cast<int>(std::size(cls)));
    std::printf("child=%s\t%d\t", qs::tools::ToUtf8(cls).c_str(), IsWindowVisible(child) ? 1 : 0);
    PrintRect("", child);
    std::printf("\t%s\n", qs::tools::ToUtf8(OneLine(WindowText(child))).c_str());
    if (withState != 0) {
        DWORD_PTR checked = static_cast<DWORD_PTR>(-1);
        if (_wcsicmp(cls, L"Button") == 0 &&
            !SendMessageTimeoutW(child, BM_GETCHECK, 0, 0, SMTO_ABORTIFHUNG, 2000, &checked)) {
            checked = static_cast<DWORD_PTR>(-1);
        }
        std::printf("state=%d\t%d\n", IsWindowEnabled(child) ? 1 : 0, static_cast<int>(static_cast<LRESULT>(checked)));
    }
    if (_wcsicmp(cls, L"ListBox") == 0) PrintItems(child);
    if (_wcsicmp(cls, L"ComboBox") == 0) PrintComboItems(child);
    return TRUE;
}

// The window's pixels as the screen shows them, row by row.
std::vector<COLORREF> ScreenPixels(const RECT& r) {
    const int width = r.right - r.left;
    const int height = r.bottom - r.top;
    std::vector<COLORREF> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap != nullptr) {
        HGDIOBJ old = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, height, screen, r.left, r.top, SRCCOPY);
        SelectObject(memory, old);
        const auto* rows = static_cast<const std::uint32_t*>(bits);
        for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = rows[i] & 0xFFFFFFu;
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

bool ChildAt(HWND top, POINT screen) {
    POINT client = screen;
    ScreenToClient(top, &client);
    const HWND at = ChildWindowFromPointEx(top, client, CWP_SKIPINVISIBLE);
    return at != nullptr && at != top;
}

int PrintBare(HWND top) {
    RECT r = {};
    GetWindowRect(top, &r);
    const int width = r.right - r.left;
    const int height = r.bottom - r.top;
    if (width <= 0 || height <= 0) return 3;
    const std::vector<COLORREF> pixels = ScreenPixels(r);
    const COLORREF face = pixels[0];
    const auto bareColumn = [&](int x) {
        for (int y = 0; y < height; ++y) {
            if (pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] != face) {
                return false;
            }
            if (ChildAt(top, {r.left + x, r.top + y})) return false;
        }
        return true;
    };
    int bestStart = -1;
    int bestLength = 0;
    // The window's own edges do not count: a run must have face on both sides.
    for (int x = 1, start = -1; x < width - 1; ++x) {
        if (bareColumn(x)) {
            if (start < 0) start = x;
            if (x - start + 1 > bestLength) {
                bestStart = start;
                bestLength = x - start + 1;
            }
        } else {
            start = -1;
        }
    }
    if (bestStart < 0) {
        std::fputs("no bare face\n", stderr);
        return 3;
    }
    std::printf("bare=%ld,%ld\n", r.left + bestStart + bestLength / 2, r.top + height / 2);
    return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    Search search;
    search.cls = L"QuillstartDialog";
    std::wstring centreOf;
    std::wstring childClass;
    bool centre = false;
    bool bare = false;
    bool withState = false;
    for (int i = 1; i < argc; ++i) {
        const std::wstring arg = argv[i];
        if (arg == L"--title" && i + 1 < argc) {
            search.title = argv[++i];
        } else if (arg == L"--bare") {
            bare = true;
        } else if (arg == L"--state") {
            withState = true;
        } else if (arg == L"--class" && i + 1 < argc) {
            childClass = argv[++i];
        } else if (arg == L"--centre" && i + 1 < argc) {
            centre = true;
            centreOf = argv[++i];
        } else {
            search.cls = arg;
        }
    }
    EnumWindows(VisitTopLevel, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) {
        std::fputs("no window\n", stderr);
        return 2;
    }
    if (bare) return PrintBare(search.found);
    if (centre) {
        Find find;
        find.text = centreOf;
        find.cls = childClass;
        EnumChildWindows(search.found, FindChild, reinterpret_cast<LPARAM>(&find));
        if (find.found == nullptr) {
            std::fputs("no such child\n", stderr);
            return 3;
        }
        RECT r = {};
        GetWindowRect(find.found, &r);
        std::printf("centre=%ld,%ld\n", (r.left + r.right) / 2, (r.top + r.bottom) / 2);
        return 0;
    }
    PrintRect("window=", search.found);
    std::printf("\ntitle=%s\n", qs::tools::ToUtf8(WindowText(search.found)).c_str());
    const HWND owner = GetWindow(search.found, GW_OWNER);
    std::printf("owner=%s\n", owner != nullptr ? qs::tools::ToUtf8(WindowText(owner)).c_str() : "");
    EnumChildWindows(search.found, PrintChild, withState ? 1 : 0);
    return 0;
}
