#pragma once
// A list load between its reading and its target tests' answers: the files
// being read and tested, and which of them wait, in the order of the load,
// to be added once the answers are in.
#include <cstddef>
#include <memory>
#include <vector>

#include "data/list_file_reads.h"

namespace qs {

struct PendingListLoad {
    std::unique_ptr<ListFileReads> reads;
    // The files read, by their place in the load, and which of them have
    // joined the lists already (a group settled before the others).
    std::vector<std::size_t> waiting;
    std::vector<bool> added;
};

}  // namespace qs
