// The Windows-side stopwatch of the start-up benchmark. Starts a program
// several times and measures, each time, from the moment it asks Windows to
// create the process until a visible top-level window of that process with
// the given title exists; then reads the process's working set at that
// moment, ends the process and waits for it to exit.
// Usage: startwait <runs> <program file> <window title>
// Prints "run <i>: <ms> ms, working set <MB> MB" for each run, then
// "median: <ms> ms" and "working set: <MB> MB" (the median of the runs).
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <iterator>
#include <string>
#include <vector>

namespace {

struct Wanted {
    DWORD pid;
    const wchar_t* title;
    bool found = false;
};

BOOL CALLBACK Visit(HWND top, LPARAM param) {
    auto* wanted = reinterpret_cast<Wanted*>(param);
    DWORD pid = 0;
    GetWindowThreadProcessId(top, &pid);
    if (pid != wanted->pid || !IsWindowVisible(top)) return TRUE;
    wchar_t title[256] = {};
    GetWindowTextW(top, title, static_cast<int>(std::size(title)));
    if (std::wcscmp(title, wanted->title) != 0) return TRUE;
    wanted->found = true;
    return FALSE;
}

class Process {
public:
    Process(const std::wstring& program, const std::wstring& folder) {
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        std::wstring commandLine = L"\"" + program + L"\"";
        started_ = CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                  folder.c_str(), &startup, &info_) != FALSE;
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        if (!started_) return;
        TerminateProcess(info_.hProcess, 0);
        WaitForSingleObject(info_.hProcess, 10000);
        CloseHandle(info_.hThread);
        CloseHandle(info_.hProcess);
    }
    bool Started() const { return started_; }
    DWORD Id() const { return info_.dwProcessId; }
    // Megabytes of the process's working set now; -1 when it cannot be read.
    double WorkingSetMB() const {
        PROCESS_MEMORY_COUNTERS counters = {};
        counters.cb = sizeof(counters);
        if (!GetProcessMemoryInfo(info_.hProcess, &counters, sizeof(counters))) return -1;
        return static_cast<double>(counters.WorkingSetSize) / (1024.0 * 1024.0);
    }

private:
    PROCESS_INFORMATION info_ = {};
    bool started_ = false;
};

double Seconds(LARGE_INTEGER from, LARGE_INTEGER to, LARGE_INTEGER frequency) {
    return static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

struct Measured {
    double ms = -1;  // to the visible window; negative when it did not appear within 30 seconds
    double workingSetMB = -1;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

Measured MeasureOnce(const std::wstring& program, const std::wstring& folder, const wchar_t* title) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    const Process process(program, folder);
    if (!process.Started()) return {};
    Wanted wanted{process.Id(), title};
    for (;;) {
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&wanted));
        LARGE_INTEGER now;
        QueryPerformanceCounter(&now);
        if (wanted.found) return {Seconds(start, now, frequency) * 1000.0, process.WorkingSetMB()};
        if (Seconds(start, now, frequency) > 30.0) return {};
        Sleep(1);
    }
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc != 4) {
        std::fputs("usage: startwait <runs> <program file> <window title>\n", stderr);
        return 2;
    }
    const int runs = std::max(1, _wtoi(argv[1]));
    const std::wstring program = argv[2];
    const size_t slash = program.find_last_of(L"\\/");
    const std::wstring folder = slash == std::wstring::npos ? L"." : program.substr(0, slash);

    std::vector<double> times;
    std::vector<double> workingSets;
    for (int i = 1; i <= runs; ++i) {
        const Measured run = MeasureOnce(program, folder, argv[3]);
        if (run.ms < 0) {
            std::printf("run %d: no window\n", i);
            return 1;
        }
        std::printf("run %d: %.1f ms, working set %.1f MB\n", i, run.ms, run.workingSetMB);
        std::fflush(stdout);
        times.push_back(run.ms);
        workingSets.push_back(run.workingSetMB);
        Sleep(300);
    }
    std::printf("median: %.1f ms\n", Median(times));
    std::printf("working set: %.1f MB\n", Median(workingSets));
    return 0;
}
