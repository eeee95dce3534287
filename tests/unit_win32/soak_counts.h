#pragma once
// What the program holds at one moment of the soak: its GDI objects, device
// contexts and windows as the owning handle types count them, the windows
// of this thread as the window system lists them (the system's own parts of
// a control included), and its heap bytes and blocks.
#include <array>
#include <cstdint>
#include <string>

#include "object_counts.h"

namespace qs::test {

struct SoakCounts {
    std::array<std::int64_t, win::kCountedKinds> objects{};
    std::int64_t threadWindows = 0;
    std::int64_t heapBytes = 0;
    std::int64_t heapBlocks = 0;
    // The pictures drawn so far and kept (picture_cache).
    std::int64_t picturesDrawn = 0;
    friend bool operator==(const SoakCounts&, const SoakCounts&) = default;
};

SoakCounts MeasureSoakCounts();

// One line per count: its name, the first value, the last and the change.
std::string SoakCountsTable(const SoakCounts& first, const SoakCounts& last);

}  // namespace qs::test
