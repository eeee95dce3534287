// Lists the visible top-level windows, one a line, as
//   <process id>\t<image path of the process>\t<class>\t<title>
// so that a test can see which program opened which window.
#include <windows.h>

#include <cstdio>
#include <iterator>
#include <string>

#include "unique_handle.h"
#include "utf8.h"

namespace {

std::wstring ImagePath(DWORD pid) {
    const qs::tools::UniqueHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
    if (!process.Valid()) return L"?";
    wchar_t path[MAX_PATH * 2] = {};
    DWORD size = static_cast<DWORD>(std::size(path));
    if (!QueryFullProcessImageNameW(process.Get(), 0, path, &size)) return L"?";
    return std::wstring(path, size);
}

BOOL CALLBACK PrintWindow(HWND top, LPARAM) {
    if (!IsWindowVisible(top)) return TRUE;
    wchar_t title[256] = {};
    wchar_t cls[128] = {};
    GetWindowTextW(top, title, static_cast<int>(std::size(title)));
    GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
    DWORD pid = 0;
    GetWindowThreadProcessId(top, &pid);
    std::printf("%lu\t%s\t%s\t%s\n", static_cast<unsigned long>(pid), qs::tools::ToUtf8(ImagePath(pid)).c_str(),
                qs::tools::ToUtf8(cls).c_str(), qs::tools::ToUtf8(title).c_str());
    return TRUE;
}

}  // namespace

int wmain() {
    EnumWindows(PrintWindow, 0);
    return 0;
}
