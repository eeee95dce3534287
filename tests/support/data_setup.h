#pragma once
// Runs of the program as start-up leaves them for the data routines: the
// program's place decided, the data folders made and every file path set.
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "test_app.h"
#include "ui/list_box.h"
#include "ui/shared_text.h"

namespace qs::test {

// The program in C:\Tools\, its data under C:\Morvane\.
void SetUpFixedDiskRun(FakeSystem& sys, Application& app, const std::wstring& programFolder = L"C:\\Tools\\");
// The program in <letter>:\Quillstart\ on a flash drive, its data on the
// drive, this computer's lists in a folder named after `computer`.
void SetUpFlashRun(FakeSystem& sys, Application& app, wchar_t letter, const std::wstring& computer = L"DESK1");

inline void SetUpFixedDiskRun(TestApp& t, const std::wstring& programFolder = L"C:\\Tools\\") {
    SetUpFixedDiskRun(t.sys, t.app, programFolder);
}
inline void SetUpFlashRun(TestApp& t, wchar_t letter, const std::wstring& computer = L"DESK1") {
    SetUpFlashRun(t.sys, t.app, letter, computer);
}

// The stored last index of each list file, as the records hold them; -1
// for a group stored empty.
struct ListCounts {
    std::int16_t file = -1;
    std::int16_t folder = -1;
    std::int16_t program = -1;
    std::int16_t email = -1;
    std::int16_t web = -1;
    std::int16_t usbFile = -1;
    std::int16_t usbFolder = -1;
    std::int16_t usbProgram = -1;
};
void StoreListCounts(Settings& settings, const ListCounts& counts);

// A list file's bytes: one quoted name and quoted target per CR LF line.
std::string ListFileBytes(const std::vector<std::pair<std::string, std::string>>& records);

std::vector<std::wstring> Entries(const ui::ListBox& list);

// Name and path lists of a group, merged and both sides.
ui::ListBox& MergedNames(TestApp& t, int group);
ui::ListBox& MergedPaths(TestApp& t, int group);
ui::ListBox& ComputerNames(TestApp& t, int group);
ui::ListBox& ComputerPaths(TestApp& t, int group);
ui::ListBox& FlashNames(TestApp& t, int group);
ui::ListBox& FlashPaths(TestApp& t, int group);

// Number of bug dialogs shown so far.
int BugCount(TestApp& t);

// The texts of a list file's records, for comparing.
inline std::vector<std::wstring> Texts(const std::vector<ui::SharedText>& texts) {
    std::vector<std::wstring> out;
    for (const ui::SharedText& text : texts) out.emplace_back(text.Text());
    return out;
}

}  // namespace qs::test
