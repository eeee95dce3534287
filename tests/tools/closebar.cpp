// Asks a running Quillstart to end the way Windows would: by default the bar
// gets WM_CLOSE (what closing the window does); with "endsession" it gets
// WM_QUERYENDSESSION and then WM_ENDSESSION, as at a logoff or shutdown.
// Waits up to ten seconds for the process to exit and prints "exited" or
// "still running". Exit code 0 when it exited, 2 when no bar was found.
#include <windows.h>

#include <cstdio>
#include <cwchar>

#include "unique_handle.h"

namespace {

HWND FindBar() {
    return FindWindowW(L"QuillstartBorderless", L"Quillstart");
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const bool endSession = argc > 1 && std::wcscmp(argv[1], L"endsession") == 0;
    HWND bar = FindBar();
    if (bar == nullptr) {
        std::printf("no bar\n");
        return 2;
    }
    DWORD pid = 0;
    GetWindowThreadProcessId(bar, &pid);
    const qs::tools::UniqueHandle process(OpenProcess(SYNCHRONIZE, FALSE, pid));
    if (endSession) {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(bar, WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF, SMTO_ABORTIFHUNG, 10000, &answer);
        SendMessageTimeoutW(bar, WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF, SMTO_ABORTIFHUNG, 10000, &answer);
    } else {
        PostMessageW(bar, WM_CLOSE, 0, 0);
    }
    const bool exited = process.Valid() && WaitForSingleObject(process.Get(), 10000) == WAIT_OBJECT_0;
    std::printf(exited ? "exited\n" : "still running\n");
    return exited ? 0 : 1;
}
