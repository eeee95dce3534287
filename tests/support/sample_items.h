#pragma once
// Two items in every group of the Launch List, with targets a test system
// can make exist: what tests that need a list in each group add.
#include <array>
#include <cstdint>

namespace qs::test {

struct SampleItem {
    std::int16_t group;
    const wchar_t* name;
    const wchar_t* target;
};

inline constexpr std::array<SampleItem, 10> TwoItemsInEveryGroup{{
    {0, L"notes", L"C:\\Docs\\notes.txt"},
    {0, L"plan", L"C:\\Docs\\plan.doc"},
    {1, L"docs", L"C:\\Docs"},
    {1, L"music", L"C:\\Music"},
    {2, L"editor", L"C:\\Apps\\editor.exe"},
    {2, L"player", L"C:\\Apps\\player.exe"},
    {3, L"anna", L"anna@example.com"},
    {3, L"ben", L"ben@example.com"},
    {4, L"news", L"http://news.example/"},
    {4, L"search", L"http://search.example/"},
}};

}  // namespace qs::test
