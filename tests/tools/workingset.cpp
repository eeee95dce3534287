// Prints the memory and handles a running program holds, for the soak test
// that watches Quillstart over thousands of Commands:
//   pid=<id>
//   working_set_kb=<GetProcessMemoryInfo WorkingSetSize / 1024>
//   peak_working_set_kb=<PeakWorkingSetSize / 1024>
//   private_kb=<PagefileUsage / 1024, the memory the process has committed>
//   handles=<GetProcessHandleCount>
//   gdi=<GetGuiResources GR_GDIOBJECTS>  user=<GR_USEROBJECTS>
// Usage: workingset [program file name]   (default Quillstart.exe)
// Exit status 1 when no such process runs, 2 when it cannot be read.
#include <windows.h>
#include <psapi.h>
#include <tlhelp32.h>

#include <cstdio>

#include "unique_handle.h"

namespace {

DWORD FindProcess(const wchar_t* image) {
    const qs::tools::UniqueHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot.Valid()) return 0;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        if (lstrcmpiW(entry.szExeFile, image) == 0) return entry.th32ProcessID;
    }
    return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const wchar_t* image = argc > 1 ? argv[1] : L"Quillstart.exe";
    const DWORD pid = FindProcess(image);
    if (pid == 0) {
        std::printf("no process %ls\n", image);
        return 1;
    }
    const qs::tools::UniqueHandle process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, pid));
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    if (!process.Valid() || !GetProcessMemoryInfo(process.Get(), &counters, sizeof(counters))) {
        std::printf("cannot read process %lu\n", static_cast<unsigned long>(pid));
        return 2;
    }
    DWORD handles = 0;
    GetProcessHandleCount(process.Get(), &handles);
    std::printf("pid=%lu\n", static_cast<unsigned long>(pid));
    std::printf("working_set_kb=%llu\n", static_cast<unsigned long long>(counters.WorkingSetSize / 1024));
    std::printf("peak_working_set_kb=%llu\n", static_cast<unsigned long long>(counters.PeakWorkingSetSize / 1024));
    std::printf("private_kb=%llu\n", static_cast<unsigned long long>(counters.PagefileUsage / 1024));
    std::printf("handles=%lu\n", static_cast<unsigned long>(handles));
    std::printf("gdi=%lu\n", static_cast<unsigned long>(GetGuiResources(process.Get(), GR_GDIOBJECTS)));
    std::printf("user=%lu\n", static_cast<unsigned long>(GetGuiResources(process.Get(), GR_USEROBJECTS)));
    return 0;
}
