// Any bytes as "Kinfold.Morvane" and "Guru.Morvane", read by the family start
// on a fixed disk or a flash drive: the program ends up a member exactly
// once, the member list covers its last index, and the only messages are the
// name prompt and the family routines' bug reports.
#include <cstddef>
#include <cstdint>

#include "dialog_backend.h"
#include "common/application.h"
#include "data/active_family.h"
#include "memory_system.h"

namespace {

using qs::fuzz::Require;

bool IsFamilyTag(const std::wstring& key) {
    for (const wchar_t* routine : {L"FamAAGetFamilyInfo", L"FamAASaveFamilyInfo", L"FamABGetGuruInfo",
                                   L"FamABSaveGuruInfo", L"FamilyDataAddNew", L"FamilyDateToLong", L"FamilyStart",
                                   L"InFamilyAddMe"})
        if (key == std::wstring(L"Quillstart:Bug:") + routine) return true;
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    const bool flash = (data[0] & 1) != 0;
    const bool hasKinfold = (data[0] & 2) != 0;
    const bool hasGuru = (data[0] & 4) != 0;
    // Kinfold's bytes run to the first zero byte, Guru's follow it.
    std::size_t split = 1;
    while (split < size && data[split] != 0) ++split;
    const std::wstring kinfold = qs::fuzz::FromBytes(data + 1, split - 1);
    const std::wstring guru = split < size ? qs::fuzz::FromBytes(data + split + 1, size - split - 1) : L"";

    qs::fuzz::MemorySystem sys;
    // A program file exists when its path's length is even.
    sys.exists = [](const std::wstring& path) { return path.size() % 2 == 0; };
    qs::Application app(sys);
    qs::test::DialogBackend dialogs{app};
    app.AttachBackend(&dialogs);
    qs::ProgramPlace& p = app.place;
    p.StartingUp = true;
    p.OnRemovable = flash;
    p.ProgramDriveLetter = p.ProgramDriveLetterUpper = flash ? L"E" : L"C";
    p.WindowsRoot = L"C:\\";
    p.ProgramRoot = flash ? L"E:\\" : L"C:\\";
    app.ProgramFolder = p.ProgramRoot + L"Tools\\";
    app.ProgramFile = app.ProgramFolder + L"Quillstart.exe";
    sys.files[app.ProgramFile] = L"exe";
    qs::AssignDataFilePaths(p);
    if (hasKinfold) sys.files[p.FileKinfold] = kinfold;
    if (hasGuru) sys.files[p.FileGuru] = guru;

    const bool joined = qs::FamilyStart(app);
    Require(app.FamilyMemberCount >= -1);
    Require(app.FamilyMembers.size() >= static_cast<std::size_t>(app.FamilyMemberCount + 1));
    bool joinOverflowed = false;
    for (const auto& m : dialogs.shown) joinOverflowed = joinOverflowed || m.key == L"Quillstart:Bug:InFamilyAddMe";
    if (joined && !joinOverflowed) {
        Require(app.family.SelfIndex == app.FamilyMemberCount);
        Require(app.FamilyMembers[static_cast<std::size_t>(app.family.SelfIndex)].MemberName == L"Quillstart");
    }
    int prompts = 0;
    for (const auto& m : dialogs.shown) {
        if (m.key == L"MessageGetUserName") {
            ++prompts;
        } else {
            Require(m.entry == qs::MessageEntry::Bug && IsFamilyTag(m.key));
        }
    }
    Require(prompts == (joined ? 1 : 0));
    return 0;
}
