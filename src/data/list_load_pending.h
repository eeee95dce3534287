#pragma once
// A list load between its reading and its target tests' answers: the
// records of each File, Folder and Program file as read, waiting, in the
// order of the load, to be added once the tests have answered.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <vector>

#include "data/target_tests.h"
#include "ui/shared_text.h"

namespace qs {

// The records of one list file as read, names and targets side by side, and
// the failure that ended the reading early, if any. Each name becomes one
// shared text that the merged list and the side list both hold.
struct ReadRecords {
    std::vector<ui::SharedText> names;
    std::vector<std::wstring> targets;
    std::exception_ptr failure;
};

// A file whose targets have gone to the tests: its names and its failure
// wait here, its targets in its batch.
struct PendingListFile {
    std::int16_t group;
    bool flashSide;
    std::vector<ui::SharedText> names;
    std::exception_ptr failure;
    std::size_t batch;
};

struct PendingListLoad {
    std::vector<PendingListFile> files;
    TargetTests tests;
};

}  // namespace qs
