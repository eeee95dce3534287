#pragma once
// The family records as the program keeps them between reading and writing
// "Kinfold.Morvane" and "Guru.Morvane".
#include <cstdint>
#include <string>

namespace qs {

// "Kinfold.Morvane": eight values, the first the version (its last index).
struct KinfoldRecord {
    std::int16_t version = 0;
    std::int16_t GuruLast = 0;
    std::int16_t FamilyReserved = 0;
    std::wstring UserNickName;
    std::wstring UserFirstName;
    std::wstring UserLastName;
    std::wstring FamilyExtraA;
    std::wstring FamilyExtraB;

    bool operator==(const KinfoldRecord&) const = default;
};

struct FamilyState {
    // What was read or filled in at start, and what is to be on disk.
    KinfoldRecord KinfoldLoaded;
    KinfoldRecord KinfoldLive;

    // Working values of the family record.
    std::int16_t GuruLast = -1;
    std::int16_t FamilyReserved = -1;
    std::wstring UserNickName;
    std::wstring UserFirstName;
    std::wstring UserLastName;
    std::wstring FamilyExtraA;
    std::wstring FamilyExtraB;

    // This program's position among the members, -1 while unknown.
    std::int16_t SelfIndex = -1;
    // Today in the members' date form.
    std::int32_t TodayLong = 0;
    // This start found the program's own record in "Guru.Morvane".
    bool SelfFound = false;
    // The own record named another folder than the program's; the record now
    // holds the program's folder, and the autostart value is to follow.
    bool ProgramMoved = false;
    // A flash-drive run found its own record with a plain drive letter.
    bool GuruNeedsRewrite = false;
};

}  // namespace qs
