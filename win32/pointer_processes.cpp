// The windows under the pointer and the processes that own them, for adding
// a running program by pointing at one of its windows.
#include <windows.h>
#include <tlhelp32.h>

#include <vector>

#include "handles.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

qs::WindowHandle Win32System::WindowFromPoint(PixelPoint point) {
    return reinterpret_cast<qs::WindowHandle>(::WindowFromPoint(POINT{point.x, point.y}));
}

std::uint32_t Win32System::WindowProcessId(qs::WindowHandle window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(reinterpret_cast<HWND>(window), &processId);
    return processId;
}

bool Win32System::LeftButtonDown() { return ::GetAsyncKeyState(VK_LBUTTON) != 0; }

std::optional<std::vector<ProcessEntry>> Win32System::ProcessSnapshot(std::uint32_t flags, std::uint32_t processId) {
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(flags, processId);
    if (snapshot == nullptr) return std::nullopt;
    // A failed snapshot is the invalid handle, which the walk's first step
    // then refuses: no processes.
    const KernelHandle owned(snapshot == INVALID_HANDLE_VALUE ? nullptr : snapshot);
    std::vector<ProcessEntry> walk;
    PROCESSENTRY32W record{};
    record.dwSize = sizeof(record);
    for (BOOL more = ::Process32FirstW(snapshot, &record); more; more = ::Process32NextW(snapshot, &record)) {
        ProcessEntry entry;
        entry.dwSize = record.dwSize;
        entry.cntUsage = record.cntUsage;
        entry.th32ProcessID = record.th32ProcessID;
        entry.th32DefaultHeapID = static_cast<std::uint64_t>(record.th32DefaultHeapID);
        entry.th32ModuleID = record.th32ModuleID;
        entry.cntThreads = record.cntThreads;
        entry.th32ParentProcessID = record.th32ParentProcessID;
        entry.pcPriClassBase = record.pcPriClassBase;
        entry.dwFlags = record.dwFlags;
        entry.szExeFile = record.szExeFile;
        walk.push_back(std::move(entry));
    }
    return walk;
}

std::wstring Win32System::ProcessExecutablePath(std::uint32_t processId) {
    if (processId == 0) return L"";
    // The management service's ExecutablePath of a process is the full
    // image name the system keeps for it; asking the process for it needs
    // only the right to query it, which other users' processes grant too.
    const KernelHandle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    if (!process) return L"";
    std::vector<wchar_t> buffer(MAX_PATH);
    for (;;) {
        DWORD length = static_cast<DWORD>(buffer.size());
        if (::QueryFullProcessImageNameW(process.Get(), 0, buffer.data(), &length)) {
            return std::wstring(buffer.data(), length);
        }
        if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER || buffer.size() >= 32768) return L"";
        buffer.resize(buffer.size() * 2);
    }
}

}  // namespace qs::win
