#include "common/application.h"
#include "data/file_channel.h"
#include "data/launch_list.h"
#include "data/list_files.h"
#include "data/report_bug.h"

namespace qs {

namespace {

std::size_t Slot(std::int16_t group) { return static_cast<std::size_t>(group); }

}  // namespace

void ActionLaunchListGet(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        const std::wstring& file = ComputerSideFile(app, group);
        if (!app.sys.FileExists(file)) return;
        RecordReader reader(ReadDataFile(app, file));
        auto& names = *app.frmChoose.ComboListItemName.at(Slot(group));
        auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const std::wstring name = reader.ReadString();
            const std::wstring target = reader.ReadString();
            if (group < 3 && !TargetPasses(app, group, target)) continue;
            // The file is written from a sorted list, so appending the target
            // keeps it beside its name.
            names.AddItem(name);
            paths.AddItem(target);
            if (group < 3) {
                app.frmHid.ComboHDDItemName.at(Slot(group))->AddItem(name);
                app.frmHid.ComboHDDItemPath.at(Slot(group))->AddItem(target);
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionLaunchListGet");
    }
}

void ActionLaunchListGetUSB(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        const std::wstring& file = FlashSideFile(app, group);
        auto& names = *app.frmChoose.ComboListItemName.at(Slot(group));
        auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
        const bool mergedHeldItems = names.ListCount() > 0;
        if (!app.sys.FileExists(file)) return;
        RecordReader reader(ReadDataFile(app, file));
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            const std::wstring name = reader.ReadString();
            const std::wstring stored = reader.ReadString();
            if (name.empty() || stored.empty()) break;
            const std::wstring target = FromStoredFlashTarget(app, stored);
            if (!TargetPasses(app, group, target)) continue;
            app.frmHid.ComboUSBItemName.at(Slot(group))->AddItem(name);
            app.frmHid.ComboUSBItemPath.at(Slot(group))->AddItem(target);
            if (mergedHeldItems) {
                AddItemInStep(names, paths, name, target);
            } else {
                names.AddItem(name);
                paths.AddItem(target);
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionLaunchListGetUSB");
    }
}

void LaunchListLoad(Application& app) {
    const Settings& c = app.settings;
    if (c.HDDFileLast > -1) ActionLaunchListGet(app, 0, c.HDDFileLast);
    if (c.HDDFolderLast > -1) ActionLaunchListGet(app, 1, c.HDDFolderLast);
    if (c.HDDProgramLast > -1) ActionLaunchListGet(app, 2, c.HDDProgramLast);
    if (c.EmailLast > -1) ActionLaunchListGet(app, 3, c.EmailLast);
    if (c.WebLast > -1) ActionLaunchListGet(app, 4, c.WebLast);
    // The flash side comes last: it merges into lists the computer side filled.
    if (!app.place.OnRemovable) return;
    if (c.USBFileLast > -1) ActionLaunchListGetUSB(app, 0, c.USBFileLast);
    if (c.USBFolderLast > -1) ActionLaunchListGetUSB(app, 1, c.USBFolderLast);
    if (c.USBProgramLast > -1) ActionLaunchListGetUSB(app, 2, c.USBProgramLast);
}

}  // namespace qs
