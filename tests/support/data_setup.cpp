#include "data_setup.h"

#include <filesystem>

#include "startup/paths.h"

namespace qs::test {

namespace {

void MakeDataFolders(FakeSystem& sys, Application& app) {
    AssignDataFilePaths(app.place);
    const DataFolders f = DataFoldersFor(app.place);
    for (const auto* folder : {&f.maker, &f.family, &f.applications, &f.sharedData, &f.computer, &f.computerData})
        std::filesystem::create_directories(sys.HostPath(*folder));
}

void PlaceProgram(FakeSystem& sys, Application& app, const std::wstring& folder) {
    app.ProgramFolder = folder;
    app.ProgramFile = folder + L"Quillstart.exe";
    sys.applicationFolder = folder;
    sys.PutFile(app.ProgramFile, "exe");
}

}  // namespace

void SetUpFixedDiskRun(FakeSystem& sys, Application& app, const std::wstring& programFolder) {
    ProgramPlace& p = app.place;
    PlaceProgram(sys, app, programFolder);
    p.OnRemovable = false;
    p.ProgramDriveLetter = programFolder.substr(0, 1);
    p.ProgramDriveLetterUpper = p.ProgramDriveLetter;
    p.WindowsRoot = L"C:\\";
    p.ProgramRoot = programFolder.substr(0, 3);
    p.ComputerName = L"DESK1";
    MakeDataFolders(sys, app);
}

void SetUpFlashRun(FakeSystem& sys, Application& app, wchar_t letter, const std::wstring& computer) {
    sys.MapDrive(letter, DriveType::Removable);
    ProgramPlace& p = app.place;
    const std::wstring root = std::wstring(1, letter) + L":\\";
    PlaceProgram(sys, app, root + L"Quillstart\\");
    p.OnRemovable = true;
    p.ProgramDriveLetter = std::wstring(1, letter);
    p.ProgramDriveLetterUpper = std::wstring(1, letter);
    p.WindowsRoot = L"C:\\";
    p.ProgramRoot = root;
    p.ComputerName = computer;
    MakeDataFolders(sys, app);
}

void StoreListCounts(Settings& settings, const ListCounts& counts) {
    settings.HDDFileLast = counts.file;
    settings.HDDFolderLast = counts.folder;
    settings.HDDProgramLast = counts.program;
    settings.EmailLast = counts.email;
    settings.WebLast = counts.web;
    settings.USBFileLast = counts.usbFile;
    settings.USBFolderLast = counts.usbFolder;
    settings.USBProgramLast = counts.usbProgram;
}

std::string ListFileBytes(const std::vector<std::pair<std::string, std::string>>& records) {
    std::string bytes;
    for (const auto& [name, target] : records) bytes += "\"" + name + "\",\"" + target + "\"\r\n";
    return bytes;
}

std::vector<std::wstring> Entries(const ui::ListBox& list) {
    std::vector<std::wstring> out;
    for (std::int32_t i = 0; i < list.ListCount(); ++i) out.emplace_back(list.List(i));
    return out;
}

ui::ListBox& MergedNames(TestApp& t, int group) { return t.app.frmChoose.ComboListItemName(static_cast<std::size_t>(group)); }
ui::ListBox& MergedPaths(TestApp& t, int group) { return t.app.frmChoose.ComboListItemPath(static_cast<std::size_t>(group)); }
ui::ListBox& ComputerNames(TestApp& t, int group) { return t.app.frmHid.ComboHDDItemName(static_cast<std::size_t>(group)); }
ui::ListBox& ComputerPaths(TestApp& t, int group) { return t.app.frmHid.ComboHDDItemPath(static_cast<std::size_t>(group)); }
ui::ListBox& FlashNames(TestApp& t, int group) { return t.app.frmHid.ComboUSBItemName(static_cast<std::size_t>(group)); }
ui::ListBox& FlashPaths(TestApp& t, int group) { return t.app.frmHid.ComboUSBItemPath(static_cast<std::size_t>(group)); }

int BugCount(TestApp& t) {
    int n = 0;
    for (const auto& m : t.dialogs.shown)
        if (m.entry == MessageEntry::Bug) ++n;
    return n;
}

}  // namespace qs::test
