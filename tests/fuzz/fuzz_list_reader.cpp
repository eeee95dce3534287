// Any bytes as a list file, loaded through the program's own loaders with any
// counter: the lists stay paired and sorted, the only message is the
// loader's bug report, the lists saved afterwards load back unchanged, and
// walking the file before making its records finds what reading it finds.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>

#include "common/text_case.h"
#include "data/launch_list.h"
#include "data/list_file_read.h"
#include "data/list_files.h"
#include "kept_application.h"

namespace {

using qs::fuzz::Require;

void RequirePairedAndSorted(const qs::ui::ListBox& names, const qs::ui::ListBox& paths) {
    Require(names.ListCount() == paths.ListCount());
    for (std::int32_t i = 1; i < names.ListCount(); ++i) Require(qs::CompareNoCase(names.List(i - 1), names.List(i)) <= 0);
}

// Where the program runs, on a fixed disk or a flash drive, worked out once:
// assigning it to the kept program reuses the room its paths already have.
const qs::ProgramPlace& Place(bool flash) {
    const auto make = [](bool removable) {
        qs::ProgramPlace p;
        p.OnRemovable = removable;
        p.ProgramDriveLetter = removable ? L"E" : L"C";
        p.ProgramDriveLetterUpper = p.ProgramDriveLetter;
        p.WindowsRoot = L"C:\\";
        p.ProgramRoot = removable ? L"E:\\" : L"C:\\";
        p.ComputerName = L"DESK1";
        qs::AssignDataFilePaths(p);
        return p;
    };
    static const qs::ProgramPlace places[2] = {make(false), make(true)};
    return places[flash ? 1 : 0];
}

const std::wstring& ComputerFile(const qs::Application& app, std::int16_t group) {
    const qs::ProgramPlace& p = app.place;
    const std::wstring* files[] = {&p.FileListFile, &p.FileListFold, &p.FileListProg, &p.FileListMail, &p.FileListWeb};
    return *files[group];
}

bool HoldsQuote(const qs::ui::ListBox& list) {
    for (std::int32_t i = 0; i < list.ListCount(); ++i)
        if (list.List(i).find(L'"') != std::wstring::npos) return true;
    return false;
}

// The same entries in the same order, compared in place.
bool SameEntries(const qs::ui::ListBox& a, const qs::ui::ListBox& b) {
    if (a.ListCount() != b.ListCount()) return false;
    for (std::int32_t i = 0; i < a.ListCount(); ++i)
        if (a.List(i) != b.List(i)) return false;
    return true;
}

// A target exists when its length is odd: a fixed rule that lets inputs
// reach both the kept and the dropped branch.
bool OddLength(const std::wstring& path) { return path.size() % 2 == 1; }

// The program that loads the input, and the one that loads back what the
// first saved.
qs::fuzz::KeptApplication& Loading() {
    static qs::fuzz::KeptApplication kept;
    return kept;
}

qs::fuzz::KeptApplication& LoadingBack() {
    static qs::fuzz::KeptApplication kept;
    return kept;
}

// What a save of the loaded side writes loads back as the same lists, unless
// an entry holds a double quote, which the file form cannot carry.
void RequireRoundTrip(qs::fuzz::MemorySystem& sys, qs::Application& app, std::int16_t group, bool flash) {
    const bool shared = group >= 3;
    const auto slot = static_cast<std::size_t>(group);
    const qs::ui::ListBox& names = shared ? app.frmChoose.ComboListItemName(slot)
                                   : flash ? app.frmHid.ComboUSBItemName(slot) : app.frmHid.ComboHDDItemName(slot);
    const qs::ui::ListBox& paths = shared ? app.frmChoose.ComboListItemPath(slot)
                                   : flash ? app.frmHid.ComboUSBItemPath(slot) : app.frmHid.ComboHDDItemPath(slot);
    if (names.ListCount() == 0 || HoldsQuote(names) || HoldsQuote(paths)) return;
    const auto last = static_cast<std::int16_t>(names.ListCount() - 1);
    if (flash) {
        qs::ActionLaunchListSaveUSB(app, std::to_wstring(group), last);
    } else {
        qs::ActionLaunchListSave(app, group, last);
    }
    qs::fuzz::KeptApplication& back = LoadingBack();
    back.sys.exists = OddLength;
    // The loader reads back only the file just saved.
    const std::wstring& saved = flash ? qs::FlashSideFile(app, group) : ComputerFile(app, group);
    const auto written = sys.files.find(saved);
    Require(written != sys.files.end());
    back.sys.files[saved] = written->second;
    qs::Application& again = back.app;
    again.place = app.place;
    if (flash) {
        qs::ActionLaunchListGetUSB(again, group, last);
    } else {
        qs::ActionLaunchListGet(again, group, last);
    }
    Require(back.dialogs.shown.empty());
    const qs::ui::ListBox& names2 = shared ? again.frmChoose.ComboListItemName(slot)
                                    : flash ? again.frmHid.ComboUSBItemName(slot) : again.frmHid.ComboHDDItemName(slot);
    const qs::ui::ListBox& paths2 = shared ? again.frmChoose.ComboListItemPath(slot)
                                    : flash ? again.frmHid.ComboUSBItemPath(slot) : again.frmHid.ComboHDDItemPath(slot);
    Require(SameEntries(names2, names));
    Require(SameEntries(paths2, paths));
    back.EndInput();
}

// Walking the file and then making its records gives what reading it whole
// gives: the same failure, found by the walk before any record is made,
// and the same records.
void RequireWalkAgrees(const qs::Application& app, const qs::ListFileOfLoad& file) {
    std::optional<qs::ReadRecords> read;
    bool readThrew = false;
    try {
        read = qs::ReadListFile(app, file);
    } catch (const std::exception&) {
        readThrew = true;
    }
    std::optional<qs::WalkedListFile> walked = qs::WalkListFile(app, file, false);
    Require(walked.has_value() == (readThrew || read.has_value()));
    if (!walked) return;
    qs::ReadRecords made;
    bool madeThrew = false;
    try {
        made = qs::MakeRecords(app, file, *walked);
    } catch (const std::exception&) {
        madeThrew = true;
    }
    Require(madeThrew == readThrew);
    if (readThrew) return;
    Require(static_cast<bool>(walked->failure) == static_cast<bool>(read->failure));
    Require(static_cast<bool>(made.failure) == static_cast<bool>(read->failure));
    Require(made.names.size() == read->names.size() && made.targets.size() == read->targets.size());
    for (std::size_t i = 0; i < made.names.size(); ++i) {
        Require(made.names[i].Text() == read->names[i].Text());
        Require(made.targets[i].Text() == read->targets[i].Text());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    const std::int16_t group = static_cast<std::int16_t>(data[0] % 5);
    const bool flash = (data[0] & 0x08) != 0 && group < 3;
    const bool prefilled = (data[0] & 0x10) != 0;
    // Read as Latin-1 bytes, walked in place, or as text of wider characters.
    const bool latin1 = (data[0] & 0x20) != 0;
    const auto lastIndex = static_cast<std::int16_t>(data[1] | (data[2] << 8));
    const std::wstring file = qs::fuzz::FromBytes(data + 3, size - 3);

    qs::fuzz::KeptApplication& kept = Loading();
    qs::fuzz::MemorySystem& sys = kept.sys;
    sys.exists = OddLength;
    sys.latin1 = latin1;
    qs::Application& app = kept.app;
    const auto& dialogs = kept.dialogs;
    app.place = Place(flash);
    auto& names = app.frmChoose.ComboListItemName(group);
    auto& paths = app.frmChoose.ComboListItemPath(group);
    if (prefilled) qs::AddItemInStep(names, paths, L"m", L"C:\\m.exe");

    std::wstring routine;
    if (flash) {
        sys.files[qs::FlashSideFile(app, group)] = file;
        qs::ActionLaunchListGetUSB(app, group, lastIndex);
        routine = L"Quillstart:Bug:ActionLaunchListGetUSB";
    } else {
        sys.files[ComputerFile(app, group)] = file;
        qs::ActionLaunchListGet(app, group, lastIndex);
        routine = L"Quillstart:Bug:ActionLaunchListGet";
    }
    RequireWalkAgrees(app, {group, lastIndex, flash});
    Require(dialogs.shown.size() <= 1);
    for (const auto& m : dialogs.shown) Require(m.key == routine);
    RequirePairedAndSorted(names, paths);
    if (group < 3) {
        RequirePairedAndSorted(app.frmHid.ComboHDDItemName(group),
                               app.frmHid.ComboHDDItemPath(group));
        RequirePairedAndSorted(app.frmHid.ComboUSBItemName(group),
                               app.frmHid.ComboUSBItemPath(group));
    }
    if (dialogs.shown.empty()) RequireRoundTrip(sys, app, group, flash);
    kept.EndInput();
    return 0;
}
