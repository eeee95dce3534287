// The program's place, the single-instance rule, the screen, the date, the
// end of the process.
#include <vector>

#include "dpi.h"
#include "system_error.h"
#include "win32_system.h"
#include "window_names.h"

namespace qs::win {

std::wstring Win32System::WindowsDirectory() {
    std::vector<wchar_t> buffer(MAX_PATH);
    UINT length = ::GetWindowsDirectoryW(buffer.data(), static_cast<UINT>(buffer.size()));
    if (length >= buffer.size()) {
        buffer.resize(length + 1);
        length = ::GetWindowsDirectoryW(buffer.data(), static_cast<UINT>(buffer.size()));
    }
    if (length == 0) ThrowLastError("GetWindowsDirectoryW");
    return std::wstring(buffer.data(), length);
}

std::wstring Win32System::Environment(const std::wstring& name) {
    const DWORD size = ::GetEnvironmentVariableW(name.c_str(), nullptr, 0);
    if (size == 0) return L"";
    std::vector<wchar_t> buffer(size);
    const DWORD length = ::GetEnvironmentVariableW(name.c_str(), buffer.data(), size);
    return std::wstring(buffer.data(), length < size ? length : 0);
}

std::wstring Win32System::ApplicationFolder() {
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) ThrowLastError("GetModuleFileNameW");
        if (length < buffer.size()) {
            std::wstring path(buffer.data(), length);
            return path.substr(0, path.rfind(L'\\') + 1);
        }
        buffer.resize(buffer.size() * 2);
    }
}

bool Win32System::AnotherCopyRunning() {
    if (runningMutex_) return anotherCopy_;
    runningMutex_.Reset(::CreateMutexW(nullptr, FALSE, kRunningMutex));
    anotherCopy_ = runningMutex_ && ::GetLastError() == ERROR_ALREADY_EXISTS;
    return anotherCopy_;
}

bool Win32System::SurfaceRunningCopy() {
    const HWND bar = ::FindWindowW(kBorderlessClass, kBarCaption);
    if (bar == nullptr) return false;
    DWORD processId = 0;
    ::GetWindowThreadProcessId(bar, &processId);
    // This copy was just started by the user, so it may hand the foreground on.
    ::AllowSetForegroundWindow(processId);
    DWORD_PTR answer = 0;
    ::SendMessageTimeoutW(bar, ::RegisterWindowMessageW(kSurfaceMessage), 0, 0, SMTO_ABORTIFHUNG, 2000, &answer);
    ::SetForegroundWindow(bar);
    return true;
}

std::int32_t Win32System::ScreenWidthTwips() { return ::GetSystemMetrics(SM_CXSCREEN) * TwipsPerPixelX(); }

std::int32_t Win32System::ScreenHeightTwips() { return ::GetSystemMetrics(SM_CYSCREEN) * TwipsPerPixelY(); }

std::int32_t Win32System::TwipsPerPixelX() { return TwipsPerPixelAt(SystemDpi()); }

std::int32_t Win32System::TwipsPerPixelY() { return TwipsPerPixelAt(SystemDpi()); }

PixelRect Win32System::WorkArea() {
    RECT area{};
    if (!::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0)) ThrowLastError("SystemParametersInfoW");
    return {area.left, area.top, area.right, area.bottom};
}

CalendarDate Win32System::Today() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}

void Win32System::EndProgram() { ::ExitProcess(0); }

}  // namespace qs::win
