// Any bytes as "Kinfold.Morvane" and "Guru.Morvane", read by the family start
// on a fixed disk or a flash drive: the program ends up a member exactly
// once, the member list covers its last index, and the only messages are the
// name prompt and the family routines' bug reports.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "data/active_family.h"
#include "kept_application.h"

namespace {

using qs::fuzz::Require;

bool IsFamilyTag(std::wstring_view key) {
    constexpr std::wstring_view bug = L"Quillstart:Bug:";
    if (key.substr(0, bug.size()) != bug) return false;
    key.remove_prefix(bug.size());
    for (const wchar_t* routine : {L"FamAAGetFamilyInfo", L"FamAASaveFamilyInfo", L"FamABGetGuruInfo",
                                   L"FamABSaveGuruInfo", L"FamilyDataAddNew", L"FamilyDateToLong", L"FamilyStart",
                                   L"InFamilyAddMe"})
        if (key == routine) return true;
    return false;
}

// Where the program runs, on a fixed disk or a flash drive, worked out once:
// assigning it to the kept program reuses the room its paths already have.
const qs::ProgramPlace& Place(bool flash) {
    const auto make = [](bool removable) {
        qs::ProgramPlace p;
        p.StartingUp = true;
        p.OnRemovable = removable;
        p.ProgramDriveLetter = p.ProgramDriveLetterUpper = removable ? L"E" : L"C";
        p.WindowsRoot = L"C:\\";
        p.ProgramRoot = removable ? L"E:\\" : L"C:\\";
        qs::AssignDataFilePaths(p);
        return p;
    };
    static const qs::ProgramPlace places[2] = {make(false), make(true)};
    return places[flash ? 1 : 0];
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

    static qs::fuzz::KeptApplication kept;
    qs::fuzz::MemorySystem& sys = kept.sys;
    // A program file exists when its path's length is even.
    sys.exists = [](const std::wstring& path) { return path.size() % 2 == 0; };
    qs::Application& app = kept.app;
    const auto& dialogs = kept.dialogs;
    app.place = Place(flash);
    app.ProgramFolder = app.place.ProgramRoot + L"Tools\\";
    app.ProgramFile = app.ProgramFolder + L"Quillstart.exe";
    sys.files[app.ProgramFile] = L"exe";
    const qs::ProgramPlace& p = app.place;
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
            Require(m.entry == qs::fuzz::ShownMessage::Entry::Bug && IsFamilyTag(m.key));
        }
    }
    Require(prompts == (joined ? 1 : 0));
    kept.EndInput();
    return 0;
}
