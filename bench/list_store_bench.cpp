// Prints the cost of loading and saving the Launch List at its largest,
// 32,767 items in each group, through the program's own routines over the
// test system, and of one auto-fill keystroke with those lists loaded.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "command/default_values.h"
#include "common/text_case.h"
#include "data/launch_list.h"
#include "data_setup.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int Items = 32767;

double MsSince(Clock::time_point start) { return std::chrono::duration<double, std::milli>(Clock::now() - start).count(); }

// The test system, timing the target tests, which ask the real disk.
class TimedSystem : public qs::test::FakeSystem {
public:
    double testMs = 0;
    bool FileExists(const std::wstring& path) override {
        const auto start = Clock::now();
        const bool result = FakeSystem::FileExists(path);
        testMs += MsSince(start);
        return result;
    }
    bool FolderExists(const std::wstring& path) override {
        const auto start = Clock::now();
        const bool result = FakeSystem::FolderExists(path);
        testMs += MsSince(start);
        return result;
    }
};

// A program state over the timed system, with the bar loaded.
struct BenchApp {
    explicit BenchApp(bool flash) {
        if (flash) {
            qs::test::SetUpFlashRun(sys, app, L'E');
        } else {
            qs::test::SetUpFixedDiskRun(sys, app);
        }
        app.AttachBackend(&dialogs);
        qs::AtStartDefaultValue(app);
        app.frmMain.Load();
    }
    TimedSystem sys;
    qs::Application app{sys};
    qs::test::DialogBackend dialogs{app};
};

std::string RandomName(std::mt19937& rng) {
    std::uniform_int_distribution<int> letter(0, 25);
    std::uniform_int_distribution<int> length(4, 18);
    std::string name;
    for (int i = length(rng); i > 0; --i) name.push_back(static_cast<char>((name.empty() ? 'A' : 'a') + letter(rng)));
    return name;
}

// A list file of `Items` records sorted by name, as the program writes it.
std::string ListFile(std::mt19937& rng, const std::vector<std::string>& targets) {
    std::vector<std::string> names;
    for (int i = 0; i < Items; ++i) names.push_back(RandomName(rng));
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return qs::CompareNoCase(std::wstring(a.begin(), a.end()), std::wstring(b.begin(), b.end())) < 0;
    });
    std::string bytes;
    for (int i = 0; i < Items; ++i)
        bytes += "\"" + names[static_cast<std::size_t>(i)] + "\",\"" + targets[static_cast<std::size_t>(i) % targets.size()] + "\"\r\n";
    return bytes;
}

// Makes a few real targets per group; the items share them.
std::vector<std::string> Targets(qs::test::FakeSystem& sys, const std::string& drive, int group) {
    std::vector<std::string> targets;
    for (int k = 0; k < 16; ++k) {
        const std::string path = drive + ":\\Bench" + std::to_string(group) + "\\t" + std::to_string(k) + (group == 1 ? "" : ".exe");
        const std::wstring wide(path.begin(), path.end());
        if (group == 1) {
            std::filesystem::create_directories(sys.HostPath(wide));
        } else {
            sys.PutFile(wide);
        }
        targets.push_back(group == 3 ? "m" + std::to_string(k) + "@mail.example"
                          : group == 4 ? "http://site" + std::to_string(k) + ".example/"
                                       : path);
    }
    return targets;
}

void Report(const char* what, double ms, double testMs) {
    std::printf("%-58s %9.1f ms (of which target tests on disk %.1f ms)\n", what, ms, testMs);
}

double KeystrokeMicroseconds(qs::Application& app) {
    const int rounds = 4000;
    const auto start = Clock::now();
    for (int i = 0; i < rounds; ++i) {
        app.frmMain.SetTextMainQuietly(L"");
        app.frmMain.TextMain.TypeText(L"p-");
        app.frmMain.TextMain.TypeText(std::wstring(1, static_cast<wchar_t>(L'a' + i % 26)));
        app.frmMain.TextMain.TypeText(std::wstring(1, static_cast<wchar_t>(L'a' + (i / 26) % 26)));
    }
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count() / (rounds * 4.0);
}

void Run(const char* title, bool flash) {
    std::mt19937 rng(17);
    BenchApp b(flash);
    qs::ProgramPlace& p = b.app.place;
    const std::string drive = flash ? "E" : "C";
    const std::wstring* computerFiles[] = {&p.FileListFile, &p.FileListFold, &p.FileListProg, &p.FileListMail, &p.FileListWeb};
    for (int g = 0; g < 5; ++g) b.sys.PutFile(*computerFiles[g], ListFile(rng, Targets(b.sys, "C", g)));
    for (std::int16_t* counter : {&b.app.settings.HDDFileLast, &b.app.settings.HDDFolderLast,
                                  &b.app.settings.HDDProgramLast, &b.app.settings.EmailLast, &b.app.settings.WebLast})
        *counter = Items - 1;
    if (flash) {
        const std::wstring* flashFiles[] = {&p.FileListUsbFile, &p.FileListUsbFold, &p.FileListUsbProg};
        for (int g = 0; g < 3; ++g) {
            std::string bytes = ListFile(rng, Targets(b.sys, "E", g));
            for (std::size_t at = bytes.find("E:\\"); at != std::string::npos; at = bytes.find("E:\\", at)) bytes[at] = '#';
            b.sys.PutFile(*flashFiles[g], bytes);
        }
        b.app.settings.USBFileLast = b.app.settings.USBFolderLast = b.app.settings.USBProgramLast = Items - 1;
    }
    std::printf("%s\n", title);
    b.sys.testMs = 0;
    auto start = Clock::now();
    qs::LaunchListLoad(b.app);
    Report("  load (frmChoose's list load)", MsSince(start), b.sys.testMs);
    std::printf("  items in the merged lists: %d %d %d %d %d, bug reports: %zu\n",
                b.app.frmChoose.ComboListItemName[0]->ListCount(), b.app.frmChoose.ComboListItemName[1]->ListCount(),
                b.app.frmChoose.ComboListItemName[2]->ListCount(), b.app.frmChoose.ComboListItemName[3]->ListCount(),
                b.app.frmChoose.ComboListItemName[4]->ListCount(), b.dialogs.shown.size());
    std::printf("  one auto-fill keystroke in group 2: %.2f us\n", KeystrokeMicroseconds(b.app));
    b.sys.testMs = 0;
    start = Clock::now();
    qs::LaunchListSaveAtExit(b.app, {});
    Report("  save (list part of the exit)", MsSince(start), b.sys.testMs);
}

}  // namespace

int main() {
    Run("Fixed disk: 5 groups x 32,767 items", false);
    Run("Flash drive: 5 groups x 32,767 computer-side items, 3 x 32,767 flash-side items merged in", true);
    return 0;
}
