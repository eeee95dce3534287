#include "soak_counts.h"

#include <windows.h>

#include <cstdio>

#include "picture_cache.h"
#include "soak_heap.h"

namespace qs::test {

namespace {

BOOL CALLBACK CountOne(HWND, LPARAM count) {
    ++*reinterpret_cast<std::int64_t*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithDescendants(HWND window, LPARAM count) {
    ++*reinterpret_cast<std::int64_t*>(count);
    // Every descendant, not only the children.
    ::EnumChildWindows(window, CountOne, count);
    return TRUE;
}

std::int64_t ThreadWindowCount() {
    std::int64_t count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWithDescendants, reinterpret_cast<LPARAM>(&count));
    return count;
}

std::string Line(const char* name, std::int64_t first, std::int64_t last) {
    char text[128];
    std::snprintf(text, sizeof text, "  %-16s %12lld %12lld %+10lld\n", name, static_cast<long long>(first),
                  static_cast<long long>(last), static_cast<long long>(last - first));
    return text;
}

}  // namespace

SoakCounts MeasureSoakCounts() {
    SoakCounts counts;
    for (std::size_t kind = 0; kind < win::kCountedKinds; ++kind) {
        counts.objects[kind] = win::LiveCount(static_cast<win::CountedKind>(kind));
    }
    counts.threadWindows = ThreadWindowCount();
    counts.heapBytes = HeapBytesHeld();
    counts.heapBlocks = HeapBlocksHeld();
    counts.picturesDrawn = static_cast<std::int64_t>(win::PictureCache::Shared().Draws());
    return counts;
}

std::string SoakCountsTable(const SoakCounts& first, const SoakCounts& last) {
    std::string table = "  count            first round          end     change\n";
    for (std::size_t kind = 0; kind < win::kCountedKinds; ++kind) {
        table += Line(win::CountedKindName(static_cast<win::CountedKind>(kind)), first.objects[kind],
                      last.objects[kind]);
    }
    table += Line("thread windows", first.threadWindows, last.threadWindows);
    table += Line("heap bytes", first.heapBytes, last.heapBytes);
    table += Line("heap blocks", first.heapBlocks, last.heapBlocks);
    table += Line("pictures drawn", first.picturesDrawn, last.picturesDrawn);
    return table;
}

}  // namespace qs::test
