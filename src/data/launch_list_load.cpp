#include <exception>
#include <optional>
#include <vector>

#include "common/application.h"
#include "data/file_channel.h"
#include "data/launch_list.h"
#include "data/list_files.h"
#include "data/list_load_pending.h"
#include "data/report_bug.h"
#include "ui/backend.h"

namespace qs {

namespace {

std::size_t Slot(std::int16_t group) { return static_cast<std::size_t>(group); }

// A load reads a whole file first so that all its targets can be tested in
// one bulk call; the records read before a failure are still added, and only
// then is the failure raised.
ReadRecords ReadComputerSide(RecordReader& reader, std::int16_t lastIndex) {
    ReadRecords records;
    try {
        for (std::int16_t i = 0; i <= lastIndex; i = NextIndex(i)) {
            ui::SharedText name(reader.ReadString());
            ui::SharedText target(reader.ReadString());
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
            const std::wstring name = reader.ReadString();
            const std::wstring stored = reader.ReadString();
            if (name.empty() || stored.empty()) break;
            records.names.emplace_back(name);
            records.targets.emplace_back(FromStoredFlashTarget(app, stored));
        }
    } catch (const std::exception&) {
        records.failure = std::current_exception();
    }
    return records;
}

// One side's file read whole, or nothing when there is no such file.
std::optional<ReadRecords> ReadListFile(Application& app, std::int16_t group, std::int16_t lastIndex, bool flashSide) {
    const std::wstring& file = flashSide ? FlashSideFile(app, group) : ComputerSideFile(app, group);
    if (!app.sys.FileExists(file)) return std::nullopt;
    RecordReader reader(ReadDataFile(app, file));
    return flashSide ? ReadFlashSide(app, reader, lastIndex) : ReadComputerSide(reader, lastIndex);
}

void RaiseFailure(const std::exception_ptr& failure) {
    if (failure) std::rethrow_exception(failure);
}

const wchar_t* LoadRoutine(bool flashSide) { return flashSide ? L"ActionLaunchListGetUSB" : L"ActionLaunchListGet"; }

// Adds a computer-side file's records to the merged lists, and File, Folder
// and Program records to the computer's side as well; `passes` null lets
// every record in (Email and Web URL are not tested).
void AddComputerSide(Application& app, std::int16_t group, const ReadRecords& records,
                     const std::vector<bool>* passes) {
    const std::vector<ui::SharedText>& names = records.names;
    auto& merged = *app.frmChoose.ComboListItemName.at(Slot(group));
    auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
    for (std::size_t r = 0; r < names.size(); ++r) {
        if (passes != nullptr && !(*passes)[r]) continue;
        const ui::SharedText& target = records.targets[r];
        // The file is written from a sorted list, so appending the target
        // keeps it beside its name.
        merged.AddItem(names[r]);
        paths.AddItem(target);
        if (passes != nullptr) {
            app.frmHid.ComboHDDItemName.at(Slot(group))->AddItem(names[r]);
            app.frmHid.ComboHDDItemPath.at(Slot(group))->AddItem(target);
        }
    }
}

// Adds a flash-side file's passing records to the flash drive's side and
// merges them into the merged lists: in step with the names when the lists
// already held items, appended when they were empty.
void AddFlashSide(Application& app, std::int16_t group, const ReadRecords& records, const std::vector<bool>& passes) {
    const std::vector<ui::SharedText>& names = records.names;
    auto& merged = *app.frmChoose.ComboListItemName.at(Slot(group));
    auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
    const bool mergedHeldItems = merged.ListCount() > 0;
    for (std::size_t r = 0; r < names.size(); ++r) {
        if (!passes[r]) continue;
        const ui::SharedText& target = records.targets[r];
        app.frmHid.ComboUSBItemName.at(Slot(group))->AddItem(names[r]);
        app.frmHid.ComboUSBItemPath.at(Slot(group))->AddItem(target);
        if (mergedHeldItems) {
            AddItemInStep(merged, paths, names[r], target);
        } else {
            merged.AddItem(names[r]);
            paths.AddItem(target);
        }
    }
}

// Reads a File, Folder or Program file and hands its targets to the load's
// tests; a failure of the reading is reported now, in the load's order, and
// the records read before it are added with the others.
void QueueTestedFile(Application& app, PendingListLoad& load, std::int16_t group, std::int16_t lastIndex,
                     bool flashSide) {
    try {
        std::optional<ReadRecords> records = ReadListFile(app, group, lastIndex, flashSide);
        if (!records) return;
        const std::size_t batch = load.tests.Add(group, TargetViews(records->targets));
        const std::exception_ptr failure = records->failure;
        load.files.push_back({group, flashSide, std::move(*records), batch});
        RaiseFailure(failure);
    } catch (const std::exception&) {
        ReportBug(app, LoadRoutine(flashSide));
    }
}

}  // namespace

std::vector<std::wstring_view> TargetViews(const std::vector<ui::SharedText>& targets) {
    std::vector<std::wstring_view> views;
    views.reserve(targets.size());
    for (const ui::SharedText& target : targets) views.push_back(target.Text());
    return views;
}

void ActionLaunchListGet(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        std::optional<ReadRecords> records = ReadListFile(app, group, lastIndex, false);
        if (!records) return;
        const bool tested = group < 3;
        const std::vector<bool> passes =
            tested ? TargetsPass(app, group, TargetViews(records->targets)) : std::vector<bool>();
        AddComputerSide(app, group, *records, tested ? &passes : nullptr);
        RaiseFailure(records->failure);
    } catch (const std::exception&) {
        ReportBug(app, LoadRoutine(false));
    }
}

void ActionLaunchListGetUSB(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        std::optional<ReadRecords> records = ReadListFile(app, group, lastIndex, true);
        if (!records) return;
        const std::vector<bool> passes = TargetsPass(app, group, TargetViews(records->targets));
        AddFlashSide(app, group, *records, passes);
        RaiseFailure(records->failure);
    } catch (const std::exception&) {
        ReportBug(app, LoadRoutine(true));
    }
}

void LaunchListLoad(Application& app) {
    LaunchListSettle(app);
    auto load = std::make_unique<PendingListLoad>();
    const Settings& c = app.settings;
    if (c.HDDFileLast > -1) QueueTestedFile(app, *load, 0, c.HDDFileLast, false);
    if (c.HDDFolderLast > -1) QueueTestedFile(app, *load, 1, c.HDDFolderLast, false);
    if (c.HDDProgramLast > -1) QueueTestedFile(app, *load, 2, c.HDDProgramLast, false);
    if (c.EmailLast > -1) ActionLaunchListGet(app, 3, c.EmailLast);
    if (c.WebLast > -1) ActionLaunchListGet(app, 4, c.WebLast);
    // The flash side comes last: it merges into lists the computer side filled.
    if (app.place.OnRemovable) {
        if (c.USBFileLast > -1) QueueTestedFile(app, *load, 0, c.USBFileLast, true);
        if (c.USBFolderLast > -1) QueueTestedFile(app, *load, 1, c.USBFolderLast, true);
        if (c.USBProgramLast > -1) QueueTestedFile(app, *load, 2, c.USBProgramLast, true);
    }
    ui::Backend* const windows = app.backend;
    load->tests.Start(app.sys, windows != nullptr ? windows->PendingWorkWaker() : std::function<void()>());
    app.pendingListLoad = std::move(load);
    // The bar may show while the targets are tested; nothing the user does
    // reaches a form before the lists are whole.
    if (windows != nullptr) {
        windows->RunBeforeInput([&app] { LaunchListSettle(app); });
    } else {
        LaunchListSettle(app);
    }
}

void LaunchListSettle(Application& app) {
    if (!app.pendingListLoad) return;
    const std::unique_ptr<PendingListLoad> load = std::move(app.pendingListLoad);
    load->tests.Wait();
    for (PendingListFile& file : load->files) {
        try {
            const std::vector<bool>& passes = load->tests.Passes(file.batch);
            if (file.flashSide) {
                AddFlashSide(app, file.group, file.records, passes);
            } else {
                AddComputerSide(app, file.group, file.records, &passes);
            }
        } catch (const std::exception&) {
            // One report per file: a file whose reading failed has had its.
            if (!file.records.failure) ReportBug(app, LoadRoutine(file.flashSide));
        }
    }
}

}  // namespace qs
