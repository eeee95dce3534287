// Prints what the bar's hover poll costs its windows: the picture updates
// that reach a window per second of bar time, counted at the peers through
// the same control runtime, with the pointer away and with the pointer
// resting on a button; and the time a theme switch of the existing windows
// takes.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "bar_app.h"
#include "theme/active_theme.h"

namespace {

using qs::test::BarApp;
using qs::test::CountingPeer;

// Ten ticks of TimerMouseOver are one second of bar time.
constexpr int kTicksPerSecond = 10;
constexpr int kSeconds = 3600;

double UpdatesPerSecond(BarApp& t, qs::PixelPoint pointer) {
    auto& bar = t.bar();
    std::vector<qs::ui::PictureBox*> buttons = {&bar.PictureShowQuick, &bar.PictureZero, &bar.PictureWeb,
                                                &bar.PictureHelp,      &bar.PictureHide, &bar.PictureExit};
    for (std::int16_t i = 0; i < bar.PictureMenu.Count(); ++i) buttons.push_back(&bar.PictureMenu(i));
    std::vector<CountingPeer> peers(buttons.size());
    t.sys.cursor = pointer;
    // The first tick after the pointer arrives is the one that changes a
    // picture; it is counted with the rest.
    for (std::size_t i = 0; i < buttons.size(); ++i) buttons[i]->AttachPeer(&peers[i]);
    for (int i = 0; i < kSeconds * kTicksPerSecond; ++i) bar.TimerMouseOver.Fire();
    for (auto* b : buttons) b->AttachPeer(nullptr);
    std::int64_t total = 0;
    for (const auto& p : peers) total += p.pictures;
    return static_cast<double>(total) / kSeconds;
}

}  // namespace

int main() {
    using Clock = std::chrono::steady_clock;
    BarApp t;
    t.bar().Move(1500, 900, qs::MainWidthCommand, qs::MainHeight);
    t.bar().TimerMouseOver.Fire();

    const double away = UpdatesPerSecond(t, {5, 5});
    // PictureHelp's middle: (1500 + 4440 + 117) / 15, (900 + 30 + 117) / 15.
    const double resting = UpdatesPerSecond(t, {403, 69});
    std::printf("hover poll, picture updates reaching a window per second over %d s of bar time:\n", kSeconds);
    std::printf("  pointer away from the bar      %.4f /s (target 0)\n", away);
    std::printf("  pointer resting on PictureHelp %.4f /s (one update when the pointer arrived)\n", resting);

    constexpr int kSwitches = 2000;
    std::vector<double> times;
    times.reserve(kSwitches);
    for (int i = 0; i < kSwitches; ++i) {
        std::int16_t theme = static_cast<std::int16_t>(i % qs::ThemeCount);
        const auto start = Clock::now();
        qs::ThemeCreate(t.app, theme);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    std::printf("theme switch of the existing windows (ThemeCreate), %d switches:\n", kSwitches);
    std::printf("  median %.4f ms, 99th percentile %.4f ms\n", times[times.size() / 2],
                times[times.size() * 99 / 100]);
    return 0;
}
