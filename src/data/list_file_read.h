#pragma once
// Reading one Launch List file: which files a load reads, in its order, and
// one file's records as read.
#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/file_channel.h"
#include "platform/system.h"
#include "ui/shared_text.h"

namespace qs {

struct Application;

// One file the load reads: its group, its side and the last index stored.
struct ListFileOfLoad {
    std::int16_t group;
    std::int16_t lastIndex;
    bool flashSide;

    bool operator==(const ListFileOfLoad& other) const {
        return group == other.group && lastIndex == other.lastIndex && flashSide == other.flashSide;
    }
};

// The files a load reads, in its order: the computer's five groups, then, on
// a flash drive, the flash drive's three; a group stored empty is skipped.
std::vector<ListFileOfLoad> ListFilesOfLoad(const Application& app);

// The records of one list file as read, names and targets side by side, and
// the failure that ended the reading early, if any. Each name and target is
// one shared text from the start, which the merged list and the side list
// then both hold, and which the target tests read in place.
struct ReadRecords {
    std::vector<ui::SharedText> names;
    std::vector<ui::SharedText> targets;
    std::exception_ptr failure;
};

// One side's file read whole, or nothing when there is no such file. A file
// that cannot be opened throws; one that breaks off part-way comes back
// with the records read before the break and the failure beside them.
std::optional<ReadRecords> ReadListFile(const Application& app, const ListFileOfLoad& file);

// A list file read and its values walked through without keeping any, so
// that whether its records break off is known long before they are made:
// the file's bytes, walked as they are where each byte is one character,
// else its text (and no bytes); and the failure that making the records
// will end with.
struct WalkedListFile {
    std::unique_ptr<FileBytes> bytes;
    std::wstring text;
    std::exception_ptr failure;
};

// For each file, whether it lies on a fixed disk, where the system may hand
// out its bytes without a copy: the program's drive is known since the
// start, any other drive is asked of the system once, and a drive it cannot
// tell counts as one that may go away.
std::vector<bool> ListFilesOnFixedDisk(const Application& app, const std::vector<ListFileOfLoad>& files);

// One side's file read and walked, or nothing when there is no such file; a
// file that cannot be opened throws. `onFixedDisk` as ListFilesOnFixedDisk
// answers for it.
std::optional<WalkedListFile> WalkListFile(const Application& app, const ListFileOfLoad& file, bool onFixedDisk);

// The records of a walked file, as ReadListFile gives them: the same records
// and the same failure the walk found.
ReadRecords MakeRecords(const Application& app, const ListFileOfLoad& file, WalkedListFile& walked);

// The targets as the system's bulk tests take them.
std::vector<std::wstring_view> TargetViews(const std::vector<ui::SharedText>& targets);

}  // namespace qs
