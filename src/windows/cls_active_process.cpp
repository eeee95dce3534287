#include "windows/cls_active_process.h"

#include "common/failure.h"

namespace qs {

namespace {

// The size of the system's process record, written into it before the walk.
constexpr std::uint32_t ProcessRecordSize = 296;
// The list grows by this many positions at a time.
constexpr std::int32_t Growth = 20;

}  // namespace

std::int32_t clsActiveProcess::GetActiveProcess() {
    // The snapshot is asked for with no flags, as the program always has: a
    // system that then walks no processes leaves the list empty, and the
    // path found by pointing does not depend on this list.
    const auto walk = system_.ProcessSnapshot(0, 0);
    if (!walk) return 0;
    processes_.assign(Growth + 1, ProcessEntry{});
    std::int32_t position = 0;
    for (ProcessEntry record : *walk) {
        ++position;
        if (position % Growth == 0) processes_.resize(static_cast<std::size_t>(position + Growth) + 1);
        record.dwSize = ProcessRecordSize;
        processes_[static_cast<std::size_t>(position)] = std::move(record);
    }
    return position;
}

const ProcessEntry& clsActiveProcess::At(std::int32_t position) const {
    if (position < 0 || position >= static_cast<std::int32_t>(processes_.size())) throw SubscriptOutOfRange();
    return processes_[static_cast<std::size_t>(position)];
}

}  // namespace qs
