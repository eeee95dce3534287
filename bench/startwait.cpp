// The Windows-side stopwatch of the start-up benchmark. Starts a program
// several times and measures, each time, from the moment it asks Windows to
// create the process until a visible top-level window of that process with
// the given title exists; then ends the process and waits for it to exit.
// Usage: startwait <runs> <program file> <window title>
// Prints "run <i>: <ms> ms" for each run and "median: <ms> ms".
#include <windows.h>

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

private:
    PROCESS_INFORMATION info_ = {};
    bool started_ = false;
};

double Seconds(LARGE_INTEGER from, LARGE_INTEGER to, LARGE_INTEGER frequency) {
    return static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// One start: milliseconds to the visible window, or a negative value when it
// did not appear within 30 seconds.
double MeasureOnce(const std::wstring& program, const std::wstring& folder, const wchar_t* title) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    const Process process(program, folder);
    if (!process.Started()) return -1;
    Wanted wanted{process.Id(), title};
    for (;;) {
        EnumWindows(Visit, reinterpret_cast<LPARAM>(&wanted));
        LARGE_INTEGER now;
        QueryPerformanceCounter(&now);
        if (wanted.found) return Seconds(start, now, frequency) * 1000.0;
        if (Seconds(start, now, frequency) > 30.0) return -1;
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
    for (int i = 1; i <= runs; ++i) {
        const double ms = MeasureOnce(program, folder, argv[3]);
        if (ms < 0) {
            std::printf("run %d: no window\n", i);
            return 1;
        }
        std::printf("run %d: %.1f ms\n", i, ms);
        std::fflush(stdout);
        times.push_back(ms);
        Sleep(300);
    }
    std::sort(times.begin(), times.end());
    const size_t n = times.size();
    const double median = n % 2 == 1 ? times[n / 2] : (times[n / 2 - 1] + times[n / 2]) / 2.0;
    std::printf("median: %.1f ms\n", median);
    return 0;
}
