#include <exception>
#include <vector>

#include "common/application.h"
#include "data/file_channel.h"
#include "data/launch_list.h"
#include "data/list_files.h"
#include "data/report_bug.h"

namespace qs {

namespace {

std::size_t Slot(std::int16_t group) { return static_cast<std::size_t>(group); }

// The records of one list file as read, names and targets side by side, and
// the failure that ended the reading early, if any. A load reads a whole file
// first so that all its targets can be tested in one bulk call; the records
// read before a failure are still added, and only then is the failure raised.
// Each name and target becomes one shared text that the merged list and the
// side list both hold.
struct ReadRecords {
    std::vector<ui::SharedText> names;
    std::vector<std::wstring> targets;
    std::exception_ptr failure;

    void RaiseFailure() const {
        if (failure) std::rethrow_exception(failure);
    }
};

ReadRecords ReadComputerSide(RecordReader& reader, std::int16_t lastIndex) {
    ReadRecords records;
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            ui::SharedText name(reader.ReadString());
            std::wstring target = reader.ReadString();
            records.names.push_back(std::move(name));
            records.targets.push_back(std::move(target));
        }
    } catch (const std::exception&) {
        records.failure = std::current_exception();
    }
    return records;
}

// A flash-side file ends early, without a word, at an empty name or target;
// targets come back with the program's drive letter.
ReadRecords ReadFlashSide(const Application& app, RecordReader& reader, std::int16_t lastIndex) {
    ReadRecords records;
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            std::wstring name = reader.ReadString();
            const std::wstring stored = reader.ReadString();
            if (name.empty() || stored.empty()) break;
            records.names.emplace_back(std::move(name));
            records.targets.push_back(FromStoredFlashTarget(app, stored));
        }
    } catch (const std::exception&) {
        records.failure = std::current_exception();
    }
    return records;
}

}  // namespace

void ActionLaunchListGet(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        const std::wstring& file = ComputerSideFile(app, group);
        if (!app.sys.FileExists(file)) return;
        RecordReader reader(ReadDataFile(app, file));
        auto& names = *app.frmChoose.ComboListItemName.at(Slot(group));
        auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
        ReadRecords records = ReadComputerSide(reader, lastIndex);
        const bool tested = group < 3;
        const std::vector<bool> passes = tested ? TargetsPass(app, group, records.targets) : std::vector<bool>();
        for (std::size_t r = 0; r < records.names.size(); ++r) {
            if (tested && !passes[r]) continue;
            const ui::SharedText& name = records.names[r];
            const ui::SharedText target(std::move(records.targets[r]));
            // The file is written from a sorted list, so appending the target
            // keeps it beside its name.
            names.AddItem(name);
            paths.AddItem(target);
            if (tested) {
                app.frmHid.ComboHDDItemName.at(Slot(group))->AddItem(name);
                app.frmHid.ComboHDDItemPath.at(Slot(group))->AddItem(target);
            }
        }
        records.RaiseFailure();
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
        ReadRecords records = ReadFlashSide(app, reader, lastIndex);
        const std::vector<bool> passes = TargetsPass(app, group, records.targets);
        for (std::size_t r = 0; r < records.names.size(); ++r) {
            if (!passes[r]) continue;
            const ui::SharedText& name = records.names[r];
            const ui::SharedText target(std::move(records.targets[r]));
            app.frmHid.ComboUSBItemName.at(Slot(group))->AddItem(name);
            app.frmHid.ComboUSBItemPath.at(Slot(group))->AddItem(target);
            if (mergedHeldItems) {
                AddItemInStep(names, paths, name, target);
            } else {
                names.AddItem(name);
                paths.AddItem(target);
            }
        }
        records.RaiseFailure();
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
