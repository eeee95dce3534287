// Prints the cost of one auto-fill keystroke with 32,767 names in a group,
// the largest list the program keeps, and compares it with a scan from the
// top of the list.
#include <chrono>
#include <cstdio>
#include <random>
#include <string>

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

    const int rounds = 2000;
    const auto typeStart = Clock::now();
    for (int i = 0; i < rounds; ++i) {
        t.ClearBox();
        t.Type(L"p-");
        t.Type(std::wstring(1, static_cast<wchar_t>(L'a' + i % 26)));
        t.Type(std::wstring(1, static_cast<wchar_t>(L'a' + (i / 26) % 26)));
    }
    const double typeUs = std::chrono::duration<double, std::micro>(Clock::now() - typeStart).count() / (rounds * 4.0);

    const auto& names = *t.app.frmChoose.ComboListItemName[2];
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
    std::printf("one auto-fill keystroke: %.2f us\n", typeUs);
    std::printf("one scan from the top (for comparison): %.2f us (%ld hits)\n", scanUs, found);
    return 0;
}
