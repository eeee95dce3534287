// The add click of the Add Item pane with its checks in order, the Open
// click, and the tests an item passes on its way into the list.
#include <array>

#include "command/launchers.h"
#include "common/application.h"
#include "common/text_case.h"
#include "common/text_main_busy.h"
#include "data/list_add.h"
#include "data/report_bug.h"
#include "startup/active_message.h"
#include "windows/frm_browse.h"

namespace qs {

namespace {

// The extension of a path's last part, as the file-system object gives it:
// the text after its last dot, "" when it has none.
std::wstring ExtensionName(const std::wstring& path) {
    const std::size_t slash = path.find_last_of(L"\\/");
    const std::size_t dot = path.rfind(L'.');
    if (dot == std::wstring::npos || (slash != std::wstring::npos && dot < slash)) return L"";
    return path.substr(dot + 1);
}

void ShowMessage(Application& app, const std::wstring& key) {
    app.MessageToShow = key;
    MessageProcess(app);
}

}  // namespace

std::wstring FrmBrowse::ActAllowAttr(std::int16_t attributes) const {
    // Equality, not bits: a hidden file with the archive bit (34) passes.
    if (attributes == 2 || attributes == 4 || attributes == 8 || attributes == 128) return L"MessageXXUnsafeItem";
    return L"";
}

std::wstring FrmBrowse::ActAllowExt(const std::wstring& extension) const {
    static const std::array<const wchar_t*, 21> unsafe = {L"cmd", L"bat", L"dll", L"drv", L"inf", L"ini", L"iso",
                                                          L"js",  L"obj", L"ocx", L"rat", L"reg", L"sct", L"shs",
                                                          L"stf", L"sys", L"vbe", L"vbs", L"vxd", L"wsf", L"wsh"};
    for (const wchar_t* e : unsafe) {
        if (extension == e) return L"MessageXXUnsafeItem";
    }
    return L"";
}

std::wstring FrmBrowse::ActAllowAttrExt(const std::wstring& extension, std::int16_t attributes) const {
    std::wstring key = ActAllowAttr(attributes);
    if (key.empty()) key = ActAllowExt(extension);
    return key;
}

std::wstring FrmBrowse::CheckPlace(const std::wstring& path, std::int16_t& driveType, std::wstring& extension) {
    System& sys = app_.sys;
    const DriveInfo drive = sys.GetDrive(sys.GetDriveName(path.substr(0, 3)));
    const bool own = UCase(path.substr(0, 1)) == app_.place.ProgramDriveLetterUpper;
    if (!(drive.type == DriveType::Fixed || (drive.type == DriveType::Removable && own))) return L"WrongPathToAdd";
    // The item is taken as a file, or as a folder for "Folder"; one that has
    // gone fails here.
    const bool there = BrowseOption == 2 ? sys.FolderExists(path) : sys.FileExists(path);
    if (!there) throw SystemCallFailed("no such item");
    std::wstring key = ActAllowAttr(ToInt16(sys.GetAttributes(path)));
    if (!key.empty()) return key;
    if (BrowseOption <= 1) {
        extension = LCase(ExtensionName(path));
        key = ActAllowExt(extension);
        if (!key.empty()) return key;
    }
    if (extension == L"exe" && BrowseOption == 0) {
        key = ActionConfirmFamily(app_, path);
        if (!key.empty()) return key;
    }
    driveType = static_cast<std::int16_t>(drive.type);
    return L"";
}

void FrmBrowse::PictureAddOKClick() {
    try {
        PictureNo.SetFocus();
        const std::wstring path = TextAddPath.Text();
        std::int16_t driveType = 0;
        std::wstring extension;
        if (BrowseOption < 3) {
            const std::wstring key = CheckPlace(path, driveType, extension);
            if (!key.empty()) {
                ShowMessage(app_, key);
                return;
            }
        }
        const auto group = static_cast<std::size_t>(GroupOfBrowseOption(BrowseOption, extension));
        ui::ListBox& names = app_.frmChoose.ComboListItemName(group);
        ui::ListBox& paths = app_.frmChoose.ComboListItemPath(group);
        std::wstring key = ActionConfirmAddPath(app_, path, paths, names);
        if (!key.empty()) {
            // The file stays in the box; only the list's choice goes.
            {
                const TextMainBusyScope busy(app_);
                FileWork.Refresh();
                FileWork.SetListIndex(-1);
            }
            ShowMessage(app_, key);
            return;
        }
        const std::wstring name = TextAddName.Text();
        key = ActionConfirmAddName(app_, name, names);
        if (!key.empty()) {
            ShowMessage(app_, key);
            TextAddName.SetText(L"");
            TextAddName.SetFocus();
            return;
        }
        ActionListAddNew(app_, name, path, driveType, extension);
        PictureAddCancel.SetFocus();
    } catch (const std::exception&) {
        ReportBug(app_, L"frmBrowse:PictureAddOK:Click");
    }
}

void FrmBrowse::PictureSelectOKClick() {
    const std::wstring folder = ui::WithTrailingBackslash(DirWork.Path());
    Hide();
    app_.frmChoose.Hide();
    app_.OpenMenuIndex = -1;
    FrmMain& bar = app_.frmMain;
    if (app_.SavedMainTop != -1) bar.SetTop(app_.SavedMainTop);
    app_.SavedMainTop = -1;
    if (bar.Visible() && bar.TextMain.Visible() && bar.TextMain.Enabled()) bar.TextMain.SetFocus();
    if (app_.settings.OptionAlwaysOnTop != 0) bar.TimerOnTop.SetEnabled(true);
    const std::wstring result = ActionProgramStartA(app_, folder + FileWork.FileName());
    if (!result.empty()) {
        app_.MessageToShow = result;
        MessageBug(app_);
    }
}

}  // namespace qs
