#pragma once
// The last-index counters of the eight list files. The list files hold no
// count of their own: these tell how many records each holds, as the index of
// the last one (-1 for an empty list). The settings records carry them
// between runs; the load reads them and the save at exit sets them afresh.
#include <cstdint>

namespace qs {

struct ListCounters {
    std::int16_t HDDFileLast = -1;
    std::int16_t HDDFolderLast = -1;
    std::int16_t HDDProgramLast = -1;
    std::int16_t EmailLast = -1;
    std::int16_t WebLast = -1;
    std::int16_t USBFileLast = -1;
    std::int16_t USBFolderLast = -1;
    std::int16_t USBProgramLast = -1;
};

}  // namespace qs
