// The drive, folder and file boxes of the Add Item and Open pane, the
// system-folder bounce, and the load of the window.
#include "common/application.h"
#include "common/text_case.h"
#include "common/text_main_busy.h"
#include "startup/active_message.h"
#include "ui/backend.h"
#include "windows/frm_browse.h"

namespace qs {

std::int16_t FrmBrowse::ActDeclareDriveType(const std::wstring& firstThree) const {
    try {
        return static_cast<std::int16_t>(app_.sys.GetDrive(app_.sys.GetDriveName(firstThree)).type);
    } catch (const std::exception&) {
        return 0;
    }
}

void FrmBrowse::FormLoad() {
    SystemMessagePending = true;
    PictureBrowse.Move(120, 120, 5040, 8412);
    // Listing drives, folders and files is nothing the bar needs to show:
    // it waits for a quiet moment, or for the first that needs it.
    boxesLoaded_ = false;
    if (app_.backend != nullptr) {
        app_.backend->RunWhenIdle([this] { LoadBoxes(); });
    } else {
        LoadBoxes();
    }
}

void FrmBrowse::LoadBoxes() {
    if (boxesLoaded_ || !IsLoaded()) return;
    boxesLoaded_ = true;
    // The boxes start in the program's folder, the Windows drive's root
    // when that cannot be read.
    {
        const TextMainBusyScope busy(app_);
        DriveWork.Refresh();
        try {
            DirWork.SetPath(app_.ProgramFolder);
        } catch (const RunTimeFailure&) {
            DirWork.SetPath(app_.place.WindowsRoot);
        }
        DriveWork.SetDrive(DirWork.Path());
        FileWork.SetPath(DirWork.Path());
    }
    CurrentFolder = DirWork.Path();
    SelectedDrive = app_.sys.GetDrive(app_.sys.GetDriveName(CurrentFolder));
    SelectedDriveLetter = UCase(SelectedDrive.letter);
    const std::wstring last = app_.settings.LastFolder;
    if (!last.empty() && !app_.place.OnRemovable) {
        try {
            DriveWork.SetDrive(last);
            if (DirWork.Path() != last) DirWork.SetPath(last);
        } catch (const SystemCallFailed&) {
            // The folder of the last run has gone: the boxes stay where they are.
        }
    }
    if (SelectedDriveType == 0) SelectedDriveType = ActDeclareDriveType(CurrentFolder.substr(0, 3));
    CurrentFolder = DirWork.Path();
    app_.settings.LastFolder = SelectedDriveType == 2 ? CurrentFolder : L"";
    CurrentFolderSlash = ui::WithTrailingBackslash(CurrentFolder);
}

void FrmBrowse::DriveWorkChange() {
    if (app_.TextMainBusy) return;
    try {
        const std::wstring text = DriveWork.Drive();
        // The drive becomes the selected one once the folder box could read
        // it, so that a drive that is not ready sends the box back.
        const DriveInfo drive = app_.sys.GetDrive(app_.sys.GetDriveName(text));
        const std::int16_t type = ActDeclareDriveType(text.substr(0, 3));
        DirWork.SetPath(text);
        SelectedDrive = drive;
        SelectedDriveLetter = UCase(SelectedDrive.letter);
        SelectedDriveType = type;
    } catch (const RunTimeFailure&) {
        DriveWork.SetDrive(SelectedDrive.path);
        SelectedDriveLetter = UCase(SelectedDrive.letter);
        app_.MessageToShow = L"MessageDriveNotReady";
        MessageProcess(app_);
    }
}

void FrmBrowse::DirWorkChange() {
    if (app_.TextMainBusy) return;
    const std::wstring path = DirWork.Path();
    app_.settings.LastFolder = path;
    CurrentFolderSlash = ui::WithTrailingBackslash(path);
    const std::wstring& windows = app_.WindowsFolder;
    const bool systemFolder =
        CurrentFolderSlash.size() >= windows.size() && CurrentFolderSlash.compare(0, windows.size(), windows) == 0;
    if (!systemFolder) {
        FileWork.SetPath(path);
        CurrentFolder = path;
        if (app_.OpenMenuIndex == 0) {
            if (BrowseOption == 2) TextAddPath.SetText(CurrentFolder);
            if (TextAddName.Enabled()) TextAddName.SetFocus();
        } else if (app_.OpenMenuIndex == 1) {
            SetOKButton(PictureSelectOK, false);
        }
        return;
    }
    {
        const TextMainBusyScope busy(app_);
        DirWork.SetPath(CurrentFolder);
        FileWork.SetPath(CurrentFolder);
        DriveWork.SetDrive(CurrentFolder);
    }
    if (SystemMessagePending) {
        SystemMessagePending = false;
        app_.MessageToShow = L"MessageSystemItemNotAllowed";
        MessageProcess(app_);
    }
}

void FrmBrowse::FileWorkClick() {
    if (app_.TextMainBusy) return;
    SelectedFileIndex = static_cast<std::int16_t>(FileWork.ListIndex());
    CurrentFolderSlash = ui::WithTrailingBackslash(DirWork.Path());
    if (SelectedFileIndex >= 0) SetOKButton(PictureSelectOK, true);
    if (app_.OpenMenuIndex != 0) return;
    TextAddName.SetText(L"");
    TextAddPath.SetText(CurrentFolderSlash + FileWork.FileName());
    if (TextAddName.Enabled()) TextAddName.SetFocus();
}

}  // namespace qs
