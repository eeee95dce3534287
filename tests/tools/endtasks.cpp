// Ends the processes a test scenario leaves behind, so that the next one
// starts clean without restarting Wine. Each argument names what to end:
//   image:<file name>   every process whose program file has that name
//   class:<class name>  every process that owns a top-level window of that class
// Prints "ended <pid> <program file>" for each, and waits for them to exit.
#include <windows.h>
#include <tlhelp32.h>

#include <cstdio>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "unique_handle.h"
#include "utf8.h"

namespace {

struct Targets {
    std::vector<std::wstring> images;
    std::vector<std::wstring> classes;
    std::set<DWORD> pids;
};

BOOL CALLBACK CollectWindowOwners(HWND top, LPARAM param) {
    auto* targets = reinterpret_cast<Targets*>(param);
    wchar_t cls[128] = {};
    GetClassNameW(top, cls, static_cast<int>(std::size(cls)));
    for (const std::wstring& wanted : targets->classes) {
        if (lstrcmpiW(cls, wanted.c_str()) == 0) {
            DWORD pid = 0;
            GetWindowThreadProcessId(top, &pid);
            targets->pids.insert(pid);
        }
    }
    return TRUE;
}

void CollectImages(Targets& targets) {
    const qs::tools::UniqueHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot.Valid()) return;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        for (const std::wstring& wanted : targets.images) {
            if (lstrcmpiW(entry.szExeFile, wanted.c_str()) == 0) targets.pids.insert(entry.th32ProcessID);
        }
    }
}

std::wstring ImagePath(HANDLE process) {
    wchar_t path[MAX_PATH * 2] = {};
    DWORD size = static_cast<DWORD>(std::size(path));
    if (!QueryFullProcessImageNameW(process, 0, path, &size)) return L"?";
    return std::wstring(path, size);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    Targets targets;
    for (int i = 1; i < argc; ++i) {
        const std::wstring arg = argv[i];
        if (arg.rfind(L"image:", 0) == 0) targets.images.push_back(arg.substr(6));
        if (arg.rfind(L"class:", 0) == 0) targets.classes.push_back(arg.substr(6));
    }
    EnumWindows(CollectWindowOwners, reinterpret_cast<LPARAM>(&targets));
    CollectImages(targets);
    targets.pids.erase(GetCurrentProcessId());

    int failures = 0;
    for (DWORD pid : targets.pids) {
        const qs::tools::UniqueHandle process(
            OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
        if (!process.Valid()) continue;
        const std::string image = qs::tools::ToUtf8(ImagePath(process.Get()));
        if (!TerminateProcess(process.Get(), 1) || WaitForSingleObject(process.Get(), 5000) != WAIT_OBJECT_0) {
            std::printf("failed %lu %s\n", static_cast<unsigned long>(pid), image.c_str());
            ++failures;
            continue;
        }
        std::printf("ended %lu %s\n", static_cast<unsigned long>(pid), image.c_str());
    }
    return failures == 0 ? 0 : 1;
}
