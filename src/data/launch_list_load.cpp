#include <exception>
#include <optional>
#include <vector>

#include "common/application.h"
#include "common/startup_marks.h"
#include "data/launch_list.h"
#include "data/list_file_read.h"
#include "data/list_files.h"
#include "data/list_load_pending.h"
#include "data/report_bug.h"
#include "ui/backend.h"

namespace qs {

namespace {


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
    auto& merged = app.frmChoose.ComboListItemName(group);
    auto& paths = app.frmChoose.ComboListItemPath(group);
    for (std::size_t r = 0; r < names.size(); ++r) {
        if (passes != nullptr && !(*passes)[r]) continue;
        const ui::SharedText& target = records.targets[r];
        // The file is written from a sorted list, so appending the target
        // keeps it beside its name.
        merged.AddItem(names[r]);
        paths.AddItem(target);
        if (passes != nullptr) {
            app.frmHid.ComboHDDItemName(group).AddItem(names[r]);
            app.frmHid.ComboHDDItemPath(group).AddItem(target);
        }
    }
}

// Adds a flash-side file's passing records to the flash drive's side and
// merges them into the merged lists: in step with the names when the lists
// already held items, appended when they were empty.
void AddFlashSide(Application& app, std::int16_t group, const ReadRecords& records, const std::vector<bool>& passes) {
    const std::vector<ui::SharedText>& names = records.names;
    auto& merged = app.frmChoose.ComboListItemName(group);
    auto& paths = app.frmChoose.ComboListItemPath(group);
    const bool mergedHeldItems = merged.ListCount() > 0;
    for (std::size_t r = 0; r < names.size(); ++r) {
        if (!passes[r]) continue;
        const ui::SharedText& target = records.targets[r];
        app.frmHid.ComboUSBItemName(group).AddItem(names[r]);
        app.frmHid.ComboUSBItemPath(group).AddItem(target);
        if (mergedHeldItems) {
            AddItemInStep(merged, paths, names[r], target);
        } else {
            merged.AddItem(names[r]);
            paths.AddItem(target);
        }
    }
}

// Takes file `i` of the load as walked: its records are made and wait to
// join the lists until input may come, the File, Folder and Program records
// for their answers too, since nothing on screen shows them before. A
// failure of the reading is reported now, in the load's order, and the
// records read before it join with the others.
void TakeFile(Application& app, PendingListLoad& load, std::size_t i) {
    const ListFileOfLoad& file = load.reads->Files()[i];
    try {
        const ListFileReads::Walk walk = load.reads->Walked(i);
        if (!walk.exists) return;
        load.waiting.push_back(i);
        load.added.push_back(false);
        RaiseFailure(walk.failure);
    } catch (const std::exception&) {
        ReportBug(app, LoadRoutine(file.flashSide));
    }
}

// Adds waiting file `k` of the load to the lists: the File, Folder and
// Program records that passed their tests, every Email and Web URL record.
void AddWaitingFile(Application& app, PendingListLoad& load, std::size_t k) {
    load.added[k] = true;
    ListFileReads& reads = *load.reads;
    const std::size_t i = load.waiting[k];
    const ListFileOfLoad& file = reads.Files()[i];
    // One report per file: a file whose reading failed has had its.
    const bool reported = reads.Walked(i).failure != nullptr;
    try {
        const ReadRecords& records = *reads.Records(i);
        if (file.group > 2) {
            // Email and Web URL are not tested.
            AddComputerSide(app, file.group, records, nullptr);
            return;
        }
        const std::vector<bool>& passes = reads.Passes(i);
        if (file.flashSide) {
            AddFlashSide(app, file.group, records, passes);
        } else {
            AddComputerSide(app, file.group, records, &passes);
        }
    } catch (const std::exception&) {
        if (!reported) ReportBug(app, LoadRoutine(file.flashSide));
    }
}

}  // namespace

void ActionLaunchListGet(Application& app, std::int16_t group, std::int16_t lastIndex) {
    try {
        std::optional<ReadRecords> records = ReadListFile(app, {group, lastIndex, false});
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
        std::optional<ReadRecords> records = ReadListFile(app, {group, lastIndex, true});
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
    ui::Backend* const windows = app.backend;
    load->reads = std::make_unique<ListFileReads>(app, windows != nullptr ? windows->PendingWorkWaker() : nullptr);
    for (std::size_t i = 0; i < load->reads->Files().size(); ++i) TakeFile(app, *load, i);
    ListFileReads& reads = *load->reads;
    app.pendingListLoad = std::move(load);
    // The bar may show while the targets are tested; nothing the user does
    // reaches a form before the lists are whole.
    if (windows == nullptr) {
        LaunchListSettle(app);
        return;
    }
    // The tests begin once the windows shown first are drawn, unless input
    // asks for their answers sooner; the load they belong to may be settled
    // by then.
    windows->RunWhenIdle([&app, &reads] {
        if (app.pendingListLoad && app.pendingListLoad->reads.get() == &reads) reads.AllowTests();
    });
    windows->RunBeforeInput([&app] { LaunchListSettle(app); });
}

void LaunchListSettle(Application& app) {
    if (!app.pendingListLoad) return;
    const std::unique_ptr<PendingListLoad> load = std::move(app.pendingListLoad);
    load->reads->Wait();
    for (std::size_t k = 0; k < load->waiting.size(); ++k) {
        if (!load->added[k]) AddWaitingFile(app, *load, k);
    }
    // The QuickLauncher loaded before these lists were whole.
    if (app.frmQuick.IsLoaded()) app.frmQuick.ShowGroupsWithItems();
    marks::Mark("lists settled");
}

void LaunchListSettleGroup(Application& app, std::int16_t group) {
    if (!app.pendingListLoad) return;
    // Held here while the group's files join, so that a report shown
    // meanwhile, whose loop may settle the rest, finds no load to settle.
    std::unique_ptr<PendingListLoad> load = std::move(app.pendingListLoad);
    for (std::size_t k = 0; k < load->waiting.size(); ++k) {
        const std::size_t i = load->waiting[k];
        if (load->added[k] || load->reads->Files()[i].group != group) continue;
        if (group < 3) load->reads->WaitFor(i);
        AddWaitingFile(app, *load, k);
    }
    app.pendingListLoad = std::move(load);
    // The other groups still join before any other input.
    ui::Backend* const windows = app.backend;
    if (windows != nullptr) windows->RunBeforeInput([&app] { LaunchListSettle(app); });
}

}  // namespace qs
