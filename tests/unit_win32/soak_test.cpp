// A long session on the program's real windows: every pane and window opened
// and closed, the seven themes switched, messages shown and answered and
// Commands typed key by key into the Command box, round after round. What
// the program holds at the end (GDI objects by kind, device contexts,
// windows, heap bytes) must equal what it held after the first round.
// QS_SOAK_ROUNDS sets the rounds (default 50); each round types ten
// Commands, so QS_SOAK_ROUNDS=1000 is the long run of 10,000 Commands.
#include <gtest/gtest.h>

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "soak_counts.h"
#include "soak_program.h"
#include "startup/active_message.h"
#include "ui/timer.h"
#include "window_test_support.h"

namespace {

using qs::test::SoakProgram;

constexpr int kDefaultRounds = 50;
constexpr std::int16_t kThemes = 7;

int Rounds() {
    const char* rounds = std::getenv("QS_SOAK_ROUNDS");
    if (rounds == nullptr) return kDefaultRounds;
    const int asked = std::atoi(rounds);
    return asked > 1 ? asked : kDefaultRounds;
}

// A window or pane a person opens and closes, each by a click on its own
// button, and whether it stands on screen.
struct SoakedWindow {
    std::string name;
    const qs::ui::Control* opener;
    const qs::ui::Control* closer;
    std::function<bool()> shown;
};

bool Visible(SoakProgram& p, const qs::ui::Form& form) {
    const HWND window = p.WindowOf(form);
    return window != nullptr && ::IsWindowVisible(window);
}

// Every window and pane that opens and closes while the bar stands; the
// message dialog comes and goes with each message. A new window is added
// to the soak here.
std::vector<SoakedWindow> SoakedWindows(SoakProgram& p) {
    qs::Application& app = p.app;
    qs::FrmMain& bar = app.frmMain;
    const auto browse = [&p, &app](std::int16_t mode) {
        return [&p, &app, mode] { return Visible(p, app.frmBrowse) && app.OpenMenuIndex == mode; };
    };
    const auto choose = [&p, &app](std::int16_t pane, const qs::ui::Control& picture) {
        return [&p, &app, pane, &picture] {
            return Visible(p, app.frmChoose) && app.OpenMenuIndex == pane && picture.Visible();
        };
    };
    return {
        {"Add Item pane", &bar.PictureMenu(0), &app.frmBrowse.PictureAddCancel, browse(0)},
        {"Open pane", &bar.PictureMenu(1), &app.frmBrowse.PictureAddCancel, browse(1)},
        {"Launch List pane", &bar.PictureMenu(2), &app.frmChoose.PictureHideList, choose(2, app.frmChoose.PictureList)},
        {"Code And Command pane", &bar.PictureMenu(3), &app.frmChoose.PictureHideCode,
         choose(3, app.frmChoose.PictureCode)},
        {"Preferences pane", &bar.PictureMenu(4), &app.frmChoose.PictureHideTool,
         choose(4, app.frmChoose.PictureTool)},
        {"QuickLauncher", &bar.PictureShowQuick, &app.frmQuick.ImageHideQuick,
         [&p, &app] { return Visible(p, app.frmQuick) && app.QuickOpen; }},
        {"Help", &bar.PictureHelp, &app.frmHelp.LabelHelpExit, [&p, &app] { return Visible(p, app.frmHelp) && app.HelpOpen; }},
    };
}

// A message as the program shows it, and the key that answers it.
struct SoakedMessage {
    std::wstring key;
    bool bug;
    WPARAM answer;
};

const std::vector<SoakedMessage>& SoakedMessages() {
    static const std::vector<SoakedMessage> messages = {
        {L"MessageShortcutCreated", false, VK_RETURN},
        {L"MessageDriveNotReady", false, VK_RETURN},
        {L"MessageGetUserName", false, VK_ESCAPE},
        {L"Quillstart:Bug:SoakNo", true, VK_ESCAPE},
        {L"Quillstart:Bug:SoakYes", true, VK_RETURN},
    };
    return messages;
}

// A Command and a piece of the one target it launches; "" for a Command
// that launches nothing.
struct SoakedCommand {
    std::wstring text;
    std::wstring launched;
};

std::vector<SoakedCommand> SoakedCommands(int round) {
    const std::wstring n = std::to_wstring(round);
    return {
        {L"f-notes", L"C:\\Docs\\notes.txt"},
        {L"d-docs", L"C:\\Docs"},
        {L"p-editor", L"C:\\Apps\\editor.exe"},
        {L"e-anna", L"mailto:anna@example.com"},
        {L"w-news", L"http://news.example/"},
        {L"w;soak" + n + L".example", L"http://www.soak" + n + L".example"},
        {L"zz soak " + n, L""},
        {L"c/soak" + n, L"http://www.soak" + n + L".com"},
        {L"w:soak" + n + L".example/page", L"http://soak" + n + L".example/page"},
        {L"e=ben" + n + L"@example.com", L"mailto:ben" + n + L"@example.com"},
    };
}

std::string Narrow(const std::wstring& text) { return std::string(text.begin(), text.end()); }

// Adds the time a scope takes to a sum of seconds.
class Timed {
public:
    explicit Timed(double& seconds) : seconds_(seconds), start_(std::chrono::steady_clock::now()) {}
    Timed(const Timed&) = delete;
    Timed& operator=(const Timed&) = delete;
    ~Timed() { seconds_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

private:
    double& seconds_;
    std::chrono::steady_clock::time_point start_;
};

// Longest wait for one tick of the bar's pointer poll before it counts as
// not running.
constexpr DWORD kPollWaitMilliseconds = 2000;

class Soak : public ::testing::Test {
protected:
    void SetUp() override {
        qs::test::Pump();
        // Counts the ticks of the bar's pointer poll, which otherwise runs
        // as the program wires it.
        qs::ui::Timer& poll = p.app.frmMain.TimerMouseOver;
        poll.Tick = [this, tick = std::move(poll.Tick)] {
            ++pollTicks;
            tick();
        };
    }

    // Notes something that went wrong; the first few are kept to tell.
    void Problem(const std::string& what) {
        if (problems.size() < 20) problems.push_back(what);
        ++problemCount;
    }

    // Runs a step that is to show no message; one that shows is told and
    // answered, so the soak goes on.
    void Quietly(const std::string& what, const std::function<void()>& step) {
        const SoakProgram::Dialog dialog = p.Answering(step, VK_ESCAPE);
        if (dialog.shown) Problem(what + " showed a message: " + Narrow(dialog.text));
    }

    // Runs the program's loop until the bar's pointer poll has ticked once
    // more.
    void AwaitPoll(const std::string& what) {
        const int before = pollTicks;
        const DWORD until = ::GetTickCount() + kPollWaitMilliseconds;
        while (pollTicks == before) {
            if (::GetTickCount() >= until) return Problem(what + ": the bar's pointer poll did not tick");
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            p.ReturnToLoop();
        }
    }

    // Opens a window by its button and closes it again. Held open, it
    // stands until the bar's pointer poll has ticked, which lights the
    // button of the open window.
    void OpenAndClose(const SoakedWindow& window, bool held) {
        const Timed timed(windowSeconds);
        ++openings;
        if (!p.Click(*window.opener)) return Problem(window.name + ": no button to open it");
        p.ReturnToLoop();
        if (!window.shown()) Problem(window.name + ": did not open");
        if (held) AwaitPoll(window.name);
        if (!p.Click(*window.closer)) return Problem(window.name + ": no button to close it");
        p.ReturnToLoop();
        if (window.shown()) Problem(window.name + ": did not close");
    }

    void SwitchTheme(std::int16_t theme) {
        const Timed timed(themeSeconds);
        qs::Application& app = p.app;
        p.Click(app.frmMain.PictureMenu(4));
        p.ReturnToLoop();
        if (!p.Click(app.frmChoose.Preferences.OptionTheme(theme))) {
            Problem("no option of theme " + std::to_string(theme));
        }
        p.ReturnToLoop();
        if (app.settings.ThemeIndex != theme) Problem("theme " + std::to_string(theme) + " did not take");
        p.Click(app.frmChoose.PictureHideTool);
        p.ReturnToLoop();
        ++themeSwitches;
    }

    void Theme(std::int16_t theme) {
        Quietly("theme " + std::to_string(theme), [this, theme] { SwitchTheme(theme); });
    }

    void ShowMessage(const SoakedMessage& message) {
        const Timed timed(messageSeconds);
        qs::Application& app = p.app;
        const SoakProgram::Dialog dialog = p.Answering(
            [&app, &message] {
                app.MessageToShow = message.key;
                if (message.bug) {
                    qs::MessageBug(app);
                } else {
                    qs::MessageProcess(app);
                }
            },
            message.answer);
        if (!dialog.shown) Problem("message " + Narrow(message.key) + " did not show");
        if (dialog.forced || app.frmMessage.IsLoaded()) {
            Problem("message " + Narrow(message.key) + " was not answered by its key");
        }
        p.ReturnToLoop();
        ++messages;
    }

    void TypeCommands(int round) {
        const Timed timed(commandSeconds);
        for (const SoakedCommand& command : SoakedCommands(round)) {
            const std::size_t before = p.sys.launches.size();
            Quietly(Narrow(command.text), [this, &command] {
                p.TypeCommand(command.text);
                p.ReturnToLoop();
            });
            ++commands;
            const std::size_t launched = p.sys.launches.size() - before;
            if (command.launched.empty()) {
                if (launched != 0) Problem(Narrow(command.text) + " launched something");
            } else if (launched != 1 || p.sys.launches.back().target.find(command.launched) == std::wstring::npos) {
                Problem(Narrow(command.text) + " did not launch " + Narrow(command.launched));
            }
        }
    }

    // One round of everything. The first goes through every window, message
    // and Command in each of the seven themes, so that each picture the
    // soak shows has been drawn and kept once; it ends in the first theme.
    // Its windows are held open until the bar's pointer poll has lit their
    // buttons: later rounds open each window many times, and sooner or
    // later a tick falls while one stands and draws that button's lit
    // picture, which the picture cache then keeps for the run.
    void Round(int round, const std::vector<SoakedWindow>& windows) {
        if (round == 0) {
            for (std::int16_t step = 1; step <= kThemes; ++step) {
                Theme(static_cast<std::int16_t>(step % kThemes));
                for (const SoakedWindow& window : windows) Quietly(window.name, [&] { OpenAndClose(window, true); });
                for (const SoakedMessage& message : SoakedMessages()) ShowMessage(message);
                TypeCommands(round);
            }
        } else {
            for (const SoakedWindow& window : windows) Quietly(window.name, [&] { OpenAndClose(window, false); });
            Theme(static_cast<std::int16_t>(round % kThemes));
            ShowMessage(SoakedMessages()[static_cast<std::size_t>(round) % SoakedMessages().size()]);
            TypeCommands(round);
        }
        // The test system's record of launches is the test's, not the program's.
        std::vector<qs::test::Launch>().swap(p.sys.launches);
    }

    SoakProgram p;
    std::vector<std::string> problems;
    int problemCount = 0;
    int pollTicks = 0;
    int openings = 0;
    int themeSwitches = 0;
    int messages = 0;
    int commands = 0;
    double windowSeconds = 0;
    double themeSeconds = 0;
    double messageSeconds = 0;
    double commandSeconds = 0;
};

TEST_F(Soak, RoundAfterRoundOfEveryWindowThemeMessageAndCommandLeavesNothingBehind) {
    const int rounds = Rounds();
    const auto windows = SoakedWindows(p);
    const auto start = std::chrono::steady_clock::now();
    Round(0, windows);
    p.Settle();
    const qs::test::SoakCounts first = qs::test::MeasureSoakCounts();
    for (int round = 1; round < rounds; ++round) Round(round, windows);
    // The theme of the first round's end, so that both ends look alike.
    if (p.app.settings.ThemeIndex != 0) Theme(0);
    p.Settle();
    const qs::test::SoakCounts last = qs::test::MeasureSoakCounts();
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    std::printf("soak: %d rounds in %.1f s: %d openings and closings of %zu windows (%.1f s), %d theme switches "
                "(%.1f s), %d messages (%.1f s), %d Commands (%.1f s)\n%s",
                rounds, seconds, openings, windows.size(), windowSeconds, themeSwitches, themeSeconds, messages,
                messageSeconds, commands, commandSeconds, qs::test::SoakCountsTable(first, last).c_str());
    std::fflush(stdout);
    for (const std::string& problem : problems) ADD_FAILURE() << problem;
    EXPECT_EQ(problemCount, 0);
    for (std::size_t kind = 0; kind < qs::win::kCountedKinds; ++kind) {
        EXPECT_EQ(last.objects[kind], first.objects[kind])
            << qs::win::CountedKindName(static_cast<qs::win::CountedKind>(kind));
    }
    EXPECT_EQ(last.objects[static_cast<std::size_t>(qs::win::CountedKind::Dc)], 0) << "a DC held between events";
    EXPECT_EQ(last.threadWindows, first.threadWindows);
    EXPECT_EQ(last.heapBytes, first.heapBytes);
    EXPECT_EQ(last.heapBlocks, first.heapBlocks);
}

}  // namespace
