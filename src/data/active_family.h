#pragma once
// The family of the maker's programs: "Kinfold.Morvane" holds the user's
// name and the number of members, "Guru.Morvane" one line per member with
// the member's folder. Both are shared with the sibling programs.
#include <cstdint>

#include "data/family_state.h"
#include "platform/system.h"

namespace qs {

struct Application;

// This program's own member name and tag.
inline constexpr const wchar_t* SelfMemberName = L"Quillstart";
inline constexpr const wchar_t* SelfMemberTag = L"QSLauncher";

// Reads the family files at start, joins the family if this program is not
// in it yet (asking the user's name), and rewrites the files as needed.
// True when the program joined the family during this start.
bool FamilyStart(Application& app);

void FamAAGetFamilyInfo(Application& app, KinfoldRecord& record);
void FamAASaveFamilyInfo(Application& app);
void FamilyDataAddNew(Application& app, KinfoldRecord& record);

// Reads up to `lastIndex` + 1 member records; returns the last index of the
// members kept.
std::int16_t FamABGetGuruInfo(Application& app, std::int16_t& lastIndex);
void FamABSaveGuruInfo(Application& app);
// Adds this program behind `lastIndex`; returns its position.
std::int16_t InFamilyAddMe(Application& app, std::int16_t& lastIndex);

// 15 November 2026 gives 226151102.
std::int32_t FamilyDateToLong(Application& app, const CalendarDate& date);

}  // namespace qs
