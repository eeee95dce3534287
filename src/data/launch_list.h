#pragma once
// The Launch List store: the merged name and path lists of the five groups on
// frmChoose, the computer's and the flash drive's sides of File, Folder and
// Program on frmHid, and the eight list files they are loaded from at start
// and saved to at exit.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/list_box.h"

namespace qs {

struct Application;

// Groups: 0 File, 1 Folder, 2 Program, 3 Email, 4 Web URL.

// Loads one group's computer-side file (Email and Web URL have only this).
void ActionLaunchListGet(Application& app, std::int16_t group, std::int16_t lastIndex);
// Loads one group's flash-side file (0 to 2), merging into the merged lists.
void ActionLaunchListGetUSB(Application& app, std::int16_t group, std::int16_t lastIndex);
// Writes one group's computer-side file.
void ActionLaunchListSave(Application& app, std::int16_t group, std::int16_t lastIndex);
// Writes one flash-side file; the group comes as decimal text, "0" to "2".
void ActionLaunchListSaveUSB(Application& app, const std::wstring& group, std::int16_t lastIndex);

// The list part of frmChoose's load: the computer's five lists in group
// order, then, on a flash drive, the flash drive's three. The files are
// read on a thread of their own (the one started ahead, when the files
// are still the same); the load takes each as it is read, in its order,
// and reports its failure then. The records join the lists when
// LaunchListSettle runs, which the window system does after the first
// paint and before any input: the File, Folder and Program records that
// passed their tests, and every Email and Web URL record.
void LaunchListLoad(Application& app);
// Waits for the load's target tests and adds the records that passed, with
// the Email and Web URL records, file by file in the load's order; does
// nothing when no load waits.
void LaunchListSettle(Application& app);
// The same for one group only, waiting for its own files' answers and no
// others: what auto-fill of that group needs. The other groups join later.
void LaunchListSettleGroup(Application& app, std::int16_t group);

// The list parts of the save at exit, in the order the exit runs them:
// on a flash drive, count the flash-side lists; (the flash drive's record is
// saved); save the flash-side lists; count the other lists; (the settings
// and shared records are saved); save the computer-side, Email and Web lists.
void LaunchListCountUSB(Application& app);
void LaunchListSaveUSBLists(Application& app);
void LaunchListCountOthers(Application& app);
void LaunchListSaveOthers(Application& app);

// The record saves that the exit runs between the list steps.
struct ExitRecordSaves {
    std::function<void()> ControlUSBDataSave;
    std::function<void()> ControlDataSave;
    std::function<void()> ControlComDataSave;
};
// The whole list and record part of the save at exit, in order.
void LaunchListSaveAtExit(Application& app, const ExitRecordSaves& records);

// Whether a merged item lives on the flash drive, worked out from its path.
bool IsFlashSideItem(const Application& app, std::int16_t group, const std::wstring& path);
// Adds a pair to a sorted name list and its path list, the path going to the
// position of the first name exactly equal to the added one.
void AddItemInStep(ui::ListBox& names, ui::ListBox& paths, const std::wstring& name, const std::wstring& path);
void AddItemInStep(ui::ListBox& names, ui::ListBox& paths, const ui::SharedText& name, const ui::SharedText& path);
// Removes the merged item at `position` and its entry on its side.
void LaunchListRemoveItem(Application& app, std::int16_t group, std::int32_t position);
// Empties a group: the merged lists and both sides.
void LaunchListClearGroup(Application& app, std::int16_t group);

}  // namespace qs
