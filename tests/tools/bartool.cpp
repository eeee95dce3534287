// Looks at the bar of a running Quillstart from outside. Usage:
//   bartool bar            window=<l>,<t>,<r>,<b> and visible=<0|1> of the bar
//   bartool centre NAME    centre=<x>,<y>: screen pixels of a bar control's
//                          middle, from its place in twips and the bar's DPI
//                          (PictureZero, PictureMenu0..4, PictureHelp,
//                          PictureWeb, PictureShowQuick, PictureHide,
//                          PictureExit, TextMain, TextWebUrl, TextWebName,
//                          and Gap, the bare surface between the first two strips)
//   bartool tip            tip=<text> of the tooltip shown now
//   bartool tray           icon=<l>,<t>,<r>,<b> and centre=<x>,<y> of the first
//                          icon of the notification area
// Exit code 0 when the thing asked for is there, 2 when not.
#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <cwchar>
#include <iterator>
#include <string>

#include "unique_handle.h"
#include "utf8.h"

namespace {

struct Place {
    const wchar_t* name;
    int left, top, width, height;
};

// The bar's controls in twips on the form's client area.
constexpr Place kPlaces[] = {
    {L"PictureZero", 144, 72, 168, 168},       {L"TextMain", 720, 0, 1812, 372},
    {L"PictureMenu0", 2640, 30, 235, 235},     {L"PictureMenu1", 3000, 30, 235, 235},
    {L"PictureMenu2", 3360, 30, 235, 235},     {L"PictureMenu3", 3720, 30, 235, 235},
    {L"PictureMenu4", 4080, 30, 235, 235},     {L"PictureHelp", 4440, 30, 235, 235},
    {L"PictureWeb", 4800, 30, 235, 235},       {L"PictureShowQuick", 5215, 90, 120, 120},
    {L"PictureHide", 5520, 30, 235, 235},      {L"PictureExit", 5880, 30, 235, 235},
    {L"TextWebUrl", 6960, 0, 2400, 300},       {L"TextWebName", 10800, 0, 1092, 300},
    {L"Gap", 480, 0, 120, 348},
};

HWND FindBar() {
    HWND found = nullptr;
    EnumWindows(
        [](HWND top, LPARAM param) -> BOOL {
            wchar_t cls[64] = {};
            wchar_t title[64] = {};
            GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
            GetWindowTextW(top, title, static_cast<int>(std::size(title)));
            if (lstrcmpW(cls, L"QuillstartBorderless") != 0 || lstrcmpW(title, L"Quillstart") != 0) return TRUE;
            *reinterpret_cast<HWND*>(param) = top;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

// Pixels a twip at the screen's DPI: 15 at 96 dots an inch.
double PixelsPerTwip() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi / 1440.0;
}

int Bar() {
    const HWND bar = FindBar();
    if (bar == nullptr) return 2;
    RECT r{};
    GetWindowRect(bar, &r);
    std::printf("window=%ld,%ld,%ld,%ld\nvisible=%d\n", r.left, r.top, r.right, r.bottom, IsWindowVisible(bar) ? 1 : 0);
    return 0;
}

int Centre(const wchar_t* name) {
    const HWND bar = FindBar();
    if (bar == nullptr) return 2;
    for (const Place& p : kPlaces) {
        if (lstrcmpW(p.name, name) != 0) continue;
        POINT origin{0, 0};
        ClientToScreen(bar, &origin);
        const double scale = PixelsPerTwip();
        const long x = origin.x + static_cast<long>((p.left + p.width / 2.0) * scale);
        const long y = origin.y + static_cast<long>((p.top + p.height / 2.0) * scale);
        std::printf("centre=%ld,%ld\n", x, y);
        return 0;
    }
    std::fputs("unknown control\n", stderr);
    return 2;
}

BOOL CALLBACK FindTip(HWND top, LPARAM param) {
    wchar_t cls[64] = {};
    GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
    if (lstrcmpiW(cls, TOOLTIPS_CLASSW) != 0 || !IsWindowVisible(top)) return TRUE;
    *reinterpret_cast<HWND*>(param) = top;
    return FALSE;
}

// The text of the tool shown now, read in the tooltip's own process: the
// record and its text buffer are placed there, as the message wants.
std::wstring CurrentToolText(HWND tip) {
    DWORD pid = 0;
    GetWindowThreadProcessId(tip, &pid);
    qs::tools::UniqueHandle process(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, pid));
    if (!process.Valid()) return {};
    constexpr SIZE_T kChars = 512;
    const SIZE_T size = sizeof(TTTOOLINFOW) + kChars * sizeof(wchar_t);
    void* remote = VirtualAllocEx(process.Get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (remote == nullptr) return {};
    std::wstring text;
    TTTOOLINFOW info{};
    info.cbSize = sizeof(info);
    info.lpszText = reinterpret_cast<wchar_t*>(static_cast<char*>(remote) + sizeof(TTTOOLINFOW));
    wchar_t buffer[kChars] = {};
    if (WriteProcessMemory(process.Get(), remote, &info, sizeof(info), nullptr) &&
        WriteProcessMemory(process.Get(), info.lpszText, buffer, sizeof(buffer), nullptr)) {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(tip, TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(remote), SMTO_ABORTIFHUNG, 2000,
                            &answer);
        if (answer != 0 && ReadProcessMemory(process.Get(), info.lpszText, buffer, sizeof(buffer), nullptr)) {
            text.assign(buffer, wcsnlen(buffer, kChars));
        }
    }
    VirtualFreeEx(process.Get(), remote, 0, MEM_RELEASE);
    return text;
}

int Tip() {
    HWND tip = nullptr;
    EnumWindows(FindTip, reinterpret_cast<LPARAM>(&tip));
    if (tip == nullptr) return 2;
    wchar_t text[512] = {};
    DWORD_PTR copied = 0;
    SendMessageTimeoutW(tip, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 2000,
                        &copied);
    std::wstring shown(text, wcsnlen(text, std::size(text)));
    if (shown.empty()) shown = CurrentToolText(tip);
    std::printf("tip=%s\n", qs::tools::ToUtf8(shown).c_str());
    return 0;
}

int Tray() {
    const HWND tray = FindWindowW(nullptr, L"Wine System Tray");
    if (tray == nullptr) return 2;
    HWND icon = nullptr;
    EnumChildWindows(
        tray,
        [](HWND child, LPARAM param) -> BOOL {
            if (!IsWindowVisible(child)) return TRUE;
            *reinterpret_cast<HWND*>(param) = child;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&icon));
    if (icon == nullptr) return 2;
    RECT r{};
    GetWindowRect(icon, &r);
    std::printf("icon=%ld,%ld,%ld,%ld\ncentre=%ld,%ld\n", r.left, r.top, r.right, r.bottom, (r.left + r.right) / 2,
                (r.top + r.bottom) / 2);
    return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const std::wstring command = argc > 1 ? argv[1] : L"";
    if (command == L"bar") return Bar();
    if (command == L"centre" && argc > 2) return Centre(argv[2]);
    if (command == L"tip") return Tip();
    if (command == L"tray") return Tray();
    std::fputs("usage: bartool bar | centre NAME | tip | tray\n", stderr);
    return 2;
}
