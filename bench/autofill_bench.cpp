// Prints the cost of one auto-fill keystroke with 32,767 names in a group,
// the largest list the program keeps (the median over many keystrokes, each
// timed on its own), and compares it with a scan from the top of the list.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "command/auto_fill.h"
#include "common/text_case.h"
#include "test_app.h"

namespace {

std::wstring RandomName(std::mt19937& rng) {
    std::uniform_int_distribution<int> letter(0, 25);
    std::uniform_int_distribution<int> length(3, 20);
    std::wstring name;
    const int n = length(rng);
    for (int i = 0; i < n; ++i) name.push_back(static_cast<wchar_t>((i == 0 ? L'A' : L'a') + letter(rng)));
    return name;
}

}  // namespace

int main() {
    using Clock = std::chrono::steady_clock;
    qs::test::TestApp t;
    std::mt19937 rng(7);
    const auto fillStart = Clock::now();
    for (int i = 0; i < 32767; ++i) t.AddItem(2, RandomName(rng), L"C:\\p" + std::to_wstring(i) + L".exe");
    const double fillMs = std::chrono::duration<double, std::milli>(Clock::now() - fillStart).count();

    // The keystrokes that auto-fill a Launch Name: the letters typed after
    // the Command Code "p-".
    const int rounds = 2000;
    std::vector<double> keyUs;
    keyUs.reserve(rounds * 2);
    int filled = 0;
    for (int i = 0; i < rounds; ++i) {
        t.ClearBox();
        t.Type(L"p-");
        std::size_t typed = 2;
        for (const wchar_t key : {static_cast<wchar_t>(L'a' + i % 26), static_cast<wchar_t>(L'a' + (i / 26) % 26)}) {
            const auto start = Clock::now();
            t.app.frmMain.TextMain.TypeKey(key);
            keyUs.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
            // A filled name runs past what was typed.
            if (t.Text().size() > ++typed) ++filled;
        }
    }
    const auto middle = keyUs.begin() + static_cast<std::ptrdiff_t>(keyUs.size() / 2);
    std::nth_element(keyUs.begin(), middle, keyUs.end());
    const double typeUs = *middle;

    const auto& names = t.app.frmChoose.ComboListItemName(2);
    const auto scanStart = Clock::now();
    long found = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::wstring typed = std::wstring(1, static_cast<wchar_t>(L'a' + i % 26)) + L"zz";
        for (std::int32_t k = 0; k < names.ListCount(); ++k) {
            if (qs::LCase(names.List(k)).rfind(typed, 0) == 0) {
                ++found;
                break;
            }
        }
    }
    const double scanUs = std::chrono::duration<double, std::micro>(Clock::now() - scanStart).count() / rounds;

    std::printf("names in group: %d\n", names.ListCount());
    std::printf("filling the sorted list: %.1f ms\n", fillMs);
    std::printf("one auto-fill keystroke: %.2f us (median of %zu keystrokes, %d of them filled a name)\n", typeUs,
                keyUs.size(), filled);
    std::printf("one scan from the top (for comparison, mean): %.2f us (%ld hits)\n", scanUs, found);
    return 0;
}
