// The Windows-side stopwatch of the start-up benchmark. Starts a program
// several times and measures, each time, from the moment it asks Windows to
// create the process until a visible top-level window of that process with
// the given title exists; then reads the process's working set at that
// moment, ends the process and waits for it to exit.
// With "ready" after the title it then types one character into the
// window's first visible text box and waits until the box shows it: the time
// until the program takes its first keystroke, and the working set then.
// With the environment variable QUILL_MARKS_FILE set (a build with start-up
// marks), the file it names is removed before each start and waited for
// before the process is ended, so the program's marks are always written.
// Usage: startwait <runs> <program file> <window title> [ready]
// Prints "run <i>: <ms> ms, working set <MB> MB" for each run (with
// "ready <ms> ms" when asked), then "median: <ms> ms", "ready: <ms> ms" and
// "working set: <MB> MB" (the medians of the runs).
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
    HWND window = nullptr;
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
    wanted->window = top;
    return FALSE;
}

BOOL CALLBACK FindTextBox(HWND child, LPARAM param) {
    wchar_t kind[32] = {};
    GetClassNameW(child, kind, static_cast<int>(std::size(kind)));
    if (_wcsicmp(kind, L"Edit") != 0 || !IsWindowVisible(child)) return TRUE;
    *reinterpret_cast<HWND*>(param) = child;
    return FALSE;
}

// The text of a window of another process, asked through its own thread,
// which answers only between two of its messages; false when it did not
// answer, so that no failed call is ever taken for a change of text.
bool ReadText(HWND window, std::wstring& text) {
    wchar_t buffer[512] = {};
    DWORD_PTR copied = 0;
    if (SendMessageTimeoutW(window, WM_GETTEXT, std::size(buffer), reinterpret_cast<LPARAM>(buffer), SMTO_BLOCK,
                            30000, &copied) == 0) {
        return false;
    }
    text = buffer;
    return true;
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
    double readyMs = -1;  // to the first keystroke taken; negative when not asked or not taken
    double workingSetMB = -1;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

// Types one character, a small "q", into the window's text box and waits
// until the box shows it: the program may change the box's text itself while
// it starts, so only the typed letter counts. The time then, or a negative
// number.
double TimeToFirstKeystroke(HWND window, LARGE_INTEGER start, LARGE_INTEGER frequency) {
    HWND box = nullptr;
    EnumChildWindows(window, FindTextBox, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr) return -1;
    std::wstring text;
    if (!ReadText(box, text) || text.find(L'q') != std::wstring::npos) return -1;
    PostMessageW(box, WM_CHAR, L'q', 1);
    for (;;) {
        // A read waits while the program is busy: the clock is read after it.
        const bool read = ReadText(box, text);
        LARGE_INTEGER now;
        QueryPerformanceCounter(&now);
        if (read && text.find(L'q') != std::wstring::npos) return Seconds(start, now, frequency) * 1000.0;
        if (Seconds(start, now, frequency) > 30.0) return -1;
        Sleep(1);
    }
}

// The marks file of a build with start-up marks, or "".
std::wstring MarksFile() {
    wchar_t path[MAX_PATH] = {};
    const DWORD n = GetEnvironmentVariableW(L"QUILL_MARKS_FILE", path, MAX_PATH);
    return n > 0 && n < MAX_PATH ? std::wstring(path, n) : std::wstring();
}

// Waits up to ten seconds for the program to write its marks.
void WaitForMarks(const std::wstring& marks) {
    if (marks.empty()) return;
    for (int i = 0; i < 10000 && GetFileAttributesW(marks.c_str()) == INVALID_FILE_ATTRIBUTES; ++i) Sleep(1);
}

Measured MeasureOnce(const std::wstring& program, const std::wstring& folder, const wchar_t* title, bool ready) {
    const std::wstring marks = MarksFile();
    if (!marks.empty()) DeleteFileW(marks.c_str());
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
        if (wanted.found && !ready) {
            const Measured measured{Seconds(start, now, frequency) * 1000.0, -1, process.WorkingSetMB()};
            WaitForMarks(marks);
            return measured;
        }
        if (wanted.found) {
            const double visible = Seconds(start, now, frequency) * 1000.0;
            const double taken = TimeToFirstKeystroke(wanted.window, start, frequency);
            const Measured measured{visible, taken, process.WorkingSetMB()};
            WaitForMarks(marks);
            return measured;
        }
        if (Seconds(start, now, frequency) > 30.0) return {};
        Sleep(1);
    }
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    const bool ready = argc == 5 && std::wcscmp(argv[4], L"ready") == 0;
    if (argc != 4 && !ready) {
        std::fputs("usage: startwait <runs> <program file> <window title> [ready]\n", stderr);
        return 2;
    }
    const int runs = std::max(1, _wtoi(argv[1]));
    const std::wstring program = argv[2];
    const size_t slash = program.find_last_of(L"\\/");
    const std::wstring folder = slash == std::wstring::npos ? L"." : program.substr(0, slash);

    std::vector<double> times;
    std::vector<double> readyTimes;
    std::vector<double> workingSets;
    for (int i = 1; i <= runs; ++i) {
        const Measured run = MeasureOnce(program, folder, argv[3], ready);
        if (run.ms < 0) {
            std::printf("run %d: no window\n", i);
            return 1;
        }
        if (ready && run.readyMs < 0) {
            std::printf("run %d: the keystroke was not taken\n", i);
            return 1;
        }
        std::printf("run %d: %.1f ms", i, run.ms);
        if (ready) std::printf(", ready %.1f ms", run.readyMs);
        std::printf(", working set %.1f MB\n", run.workingSetMB);
        std::fflush(stdout);
        times.push_back(run.ms);
        readyTimes.push_back(run.readyMs);
        workingSets.push_back(run.workingSetMB);
        Sleep(300);
    }
    std::printf("median: %.1f ms\n", Median(times));
    if (ready) std::printf("ready: %.1f ms\n", Median(readyTimes));
    std::printf("working set: %.1f MB\n", Median(workingSets));
    return 0;
}
