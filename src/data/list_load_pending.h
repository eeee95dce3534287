#pragma once
// A list load between its reading and its target tests' answers: the
// records of each File, Folder and Program file as read, waiting, in the
// order of the load, to be added once the tests have answered.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "data/target_tests.h"
#include "ui/shared_text.h"

namespace qs {

// The records of one list file as read, names and targets side by side, and
// the failure that ended the reading early, if any. Each name and target is
// one shared text from the start, which the merged list and the side list
// then both hold, and which the target tests read in place.
struct ReadRecords {
    std::vector<ui::SharedText> names;
    std::vector<ui::SharedText> targets;
    std::exception_ptr failure;
};

// The targets as the system's bulk tests take them.
std::vector<std::wstring_view> TargetViews(const std::vector<ui::SharedText>& targets);

// A file whose targets are being tested: its records wait here, and the
// tests' batch reads its targets in place.
struct PendingListFile {
    std::int16_t group;
    bool flashSide;
    ReadRecords records;
    std::size_t batch;
};

struct PendingListLoad {
    std::vector<PendingListFile> files;
    TargetTests tests;
};

}  // namespace qs
