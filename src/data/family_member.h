#pragma once
// One member of the maker's family of programs, as held in memory.
#include <cstdint>
#include <string>

namespace qs {

struct FamilyMember {
    std::wstring MemberName;         // program name, also its file name without ".exe"
    std::wstring MemberTag;          // carried as read
    std::int32_t MemberDate = 0;     // day it joined, carried as read
    std::wstring MemberFolder;       // with a trailing backslash and the real drive letter
    std::wstring MemberProgramFile;  // folder + name + ".exe"
};

}  // namespace qs
