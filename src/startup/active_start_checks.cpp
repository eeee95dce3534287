#include "startup/active_start_checks.h"

#include "common/application.h"
#include "data/report_bug.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "startup/active_message.h"

namespace qs {

namespace {

void EnsureFolder(Application& app, const std::wstring& folder) {
    if (!app.sys.FolderExists(folder)) app.sys.CreateFolder(folder);
}

}  // namespace

void AtStartPrevInstance(Application& app) {
    try {
        // The running copy's bar comes forward and this copy leaves in
        // silence; when no running bar is found the flag was a false alarm
        // and this copy starts normally.
        if (app.sys.SurfaceRunningCopy()) app.sys.EndProgram();
    } catch (const std::exception&) {
        ReportBug(app, L"AtStartPrevInstance");
    }
}

void AtStartConfirmScreen(Application& app) {
    try {
        if (app.sys.ScreenWidthTwips() < 13000 || app.sys.ScreenHeightTwips() < 9600) {
            app.MessageToShow = L"MessageSmallScreen";
            MessageEnd(app);
        }
        const PixelRect area = app.sys.WorkArea();
        app.place.WorkAreaLeft = area.left;
        app.place.WorkAreaTop = area.top;
        app.place.WorkAreaRight = area.right;
        app.place.WorkAreaBottom = area.bottom;
    } catch (const std::exception&) {
        ReportBug(app, L"AtStartConfirmScreen");
    }
}

std::wstring AtStartProgramFile(Application& app) {
    std::wstring folder = app.sys.ApplicationFolder();
    if (folder.empty() || folder.back() != L'\\') folder += L"\\";
    app.ProgramFile = folder + L"Quillstart" + L".exe";
    if (!app.sys.FileExists(app.ProgramFile)) {
        app.MessageToShow = L"MessageProgFileNameChanged";
        MessageEnd(app);
    }
    return folder;
}

std::wstring AtStartSysPath(Application& app, std::wstring& programFolderUpper) {
    try {
        std::wstring folder = app.sys.WindowsDirectory();
        if (!folder.empty() && folder.size() < 255 && folder.back() != L'\\') folder += L"\\";
        app.WindowsFolder = folder;
        app.place.WindowsFolderLength = ToInt16(static_cast<long long>(folder.size()));
        const auto n = static_cast<std::size_t>(app.place.WindowsFolderLength);
        if (programFolderUpper.size() >= n && programFolderUpper.compare(0, n, UCase(folder)) == 0) {
            return L"MessageProgInSystem";
        }
        return L"";
    } catch (const std::exception&) {
        ReportBug(app, L"AtStartSysPath");
        return L"";
    }
}

std::wstring AtStartPathRoot(Application& app, std::wstring& path) {
    try {
        const std::size_t slash = path.find(L'\\');
        return slash == std::wstring::npos ? L"" : path.substr(0, slash + 1);
    } catch (const std::exception&) {
        ReportBug(app, L"AtStartPathRoot");
        return L"";
    }
}

std::wstring AtStartDriveType(Application& app, std::wstring& root) {
    try {
        const std::wstring name = app.sys.GetDriveName(root);
        // The program's own drive was asked of the system a moment ago.
        const ProgramPlace& place = app.place;
        const bool programDrive = !name.empty() && name == place.ProgramDriveName;
        switch (programDrive ? place.ProgramDrive.type : app.sys.GetDrive(name).type) {
            case DriveType::Removable:
                app.place.OnRemovable = true;
                return L"";
            case DriveType::Fixed:
                app.place.OnRemovable = false;
                return L"";
            case DriveType::CDRom:
                return L"MessageMediaCDRom";
            default:
                return L"MessageMediaUnknown";
        }
    } catch (const std::exception&) {
        // The drive service itself failed: the scripting runtime is missing.
        app.MessageToShow = L"MessageNeedSriptRuntime";
        MessageEnd(app);
        return L"";
    }
}

void AtStartSetFileFolder(Application& app, bool& onRemovable) {
    try {
        ProgramPlace decided = app.place;
        decided.OnRemovable = onRemovable;
        const DataFolders f = DataFoldersFor(decided);
        // Each folder's parent is made before it, so only the last level of
        // a path is ever created; a file's path is set once its folder stands.
        EnsureFolder(app, f.maker);
        EnsureFolder(app, f.family);
        AssignFamilyFilePaths(app.place, f);
        EnsureFolder(app, f.applications);
        EnsureFolder(app, f.sharedData);
        AssignSharedFilePaths(app.place, f);
        EnsureFolder(app, f.computer);
        EnsureFolder(app, f.computerData);
        AssignComputerFilePaths(app.place, f);
    } catch (const std::exception&) {
        ReportBug(app, L"AtStartSetFileFolder");
    }
}

}  // namespace qs
