#include "common/application.h"
#include "data/file_channel.h"
#include "data/launch_list.h"
#include "data/list_files.h"
#include "data/report_bug.h"
#include "data/write_on_failure.h"

namespace qs {

namespace {


std::int16_t LastIndexOf(const ui::ListBox& list) { return ToInt16(static_cast<long long>(list.ListCount()) - 1); }

}  // namespace

void ActionLaunchListSave(Application& app, std::int16_t group, std::int16_t lastIndex) {
    std::wstring file;
    RecordWriter writer;
    bool writing = false;
    try {
        file = ComputerSideFile(app, group);
        const bool merged = group >= 3;
        const ui::ListBox& names = merged ? app.frmChoose.ComboListItemName(group)
                                          : app.frmHid.ComboHDDItemName(group);
        const ui::ListBox& paths = merged ? app.frmChoose.ComboListItemPath(group)
                                          : app.frmHid.ComboHDDItemPath(group);
        writing = true;
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            writer.String(names.List(i)).String(paths.List(i)).EndLine();
        }
        writing = false;
        WriteDataFile(app, file, writer.Text());
    } catch (const std::exception&) {
        if (writing) KeepWhatWasWritten(app, file, writer);
        ReportBug(app, L"ActionLaunchListSave");
    }
}

void ActionLaunchListSaveUSB(Application& app, const std::wstring& group, std::int16_t lastIndex) {
    std::wstring file;
    RecordWriter writer;
    bool writing = false;
    try {
        std::int16_t g = -1;
        if (group == L"0") {
            g = 0;
        } else if (group == L"1") {
            g = 1;
        } else if (group == L"2") {
            g = 2;
        }
        file = FlashSideFile(app, g);
        const ui::ListBox& names = app.frmHid.ComboUSBItemName(g);
        const ui::ListBox& paths = app.frmHid.ComboUSBItemPath(g);
        writing = true;
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const std::wstring stored = ToStoredFlashTarget(app, std::wstring(paths.List(i)));
            writer.String(names.List(i)).String(stored).EndLine();
        }
        writing = false;
        WriteDataFile(app, file, writer.Text());
    } catch (const std::exception&) {
        if (writing) KeepWhatWasWritten(app, file, writer);
        ReportBug(app, L"ActionLaunchListSaveUSB");
    }
}

void LaunchListCountUSB(Application& app) {
    if (!app.place.OnRemovable) return;
    Settings& c = app.settings;
    c.USBFileLast = LastIndexOf(app.frmHid.ComboUSBItemPath(0));
    c.USBFolderLast = LastIndexOf(app.frmHid.ComboUSBItemPath(1));
    c.USBProgramLast = LastIndexOf(app.frmHid.ComboUSBItemPath(2));
}

void LaunchListSaveUSBLists(Application& app) {
    if (!app.place.OnRemovable) return;
    const Settings& c = app.settings;
    if (c.USBFileLast > -1) ActionLaunchListSaveUSB(app, L"0", c.USBFileLast);
    if (c.USBFolderLast > -1) ActionLaunchListSaveUSB(app, L"1", c.USBFolderLast);
    if (c.USBProgramLast > -1) ActionLaunchListSaveUSB(app, L"2", c.USBProgramLast);
}

void LaunchListCountOthers(Application& app) {
    Settings& c = app.settings;
    c.HDDFileLast = LastIndexOf(app.frmHid.ComboHDDItemPath(0));
    c.HDDFolderLast = LastIndexOf(app.frmHid.ComboHDDItemPath(1));
    c.HDDProgramLast = LastIndexOf(app.frmHid.ComboHDDItemPath(2));
    c.EmailLast = LastIndexOf(app.frmChoose.ComboListItemPath(3));
    c.WebLast = LastIndexOf(app.frmChoose.ComboListItemPath(4));
}

void LaunchListSaveOthers(Application& app) {
    // A group that has become empty is not written: its old file stays, and
    // the counter -1 makes the next start ignore it.
    const Settings& c = app.settings;
    if (c.HDDFileLast > -1) ActionLaunchListSave(app, 0, c.HDDFileLast);
    if (c.HDDFolderLast > -1) ActionLaunchListSave(app, 1, c.HDDFolderLast);
    if (c.HDDProgramLast > -1) ActionLaunchListSave(app, 2, c.HDDProgramLast);
    if (c.EmailLast > -1) ActionLaunchListSave(app, 3, c.EmailLast);
    if (c.WebLast > -1) ActionLaunchListSave(app, 4, c.WebLast);
}

void LaunchListSaveAtExit(Application& app, const ExitRecordSaves& records) {
    if (app.place.OnRemovable) {
        LaunchListCountUSB(app);
        if (records.ControlUSBDataSave) records.ControlUSBDataSave();
        LaunchListSaveUSBLists(app);
    }
    LaunchListCountOthers(app);
    if (records.ControlDataSave) records.ControlDataSave();
    if (records.ControlComDataSave) records.ControlComDataSave();
    LaunchListSaveOthers(app);
}

}  // namespace qs
