#include "common/startup_marks.h"

#ifdef QUILL_STARTUP_MARKS

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace qs::marks {

namespace {

using Clock = std::chrono::steady_clock;

struct Entry {
    Clock::time_point when;
    std::array<char, 56> name{};
    // Set once the entry is whole, so a writer never reads a half-made one.
    std::atomic<bool> ready{false};
};

constexpr std::size_t kRoom = 128;
std::array<Entry, kRoom> entries;
std::atomic<std::size_t> used{0};
std::atomic<bool> written{false};

Entry* Take() {
    const std::size_t i = used.fetch_add(1);
    return i < kRoom ? &entries[i] : nullptr;
}

}  // namespace

void Mark(std::string_view what) { Mark(what, {}); }

void Mark(std::string_view what, std::wstring_view name) {
    const Clock::time_point now = Clock::now();
    Entry* entry = Take();
    if (entry == nullptr) return;
    entry->when = now;
    std::size_t n = 0;
    const std::size_t room = entry->name.size() - 1;
    for (const char c : what) {
        if (n == room) break;
        entry->name[n++] = c;
    }
    if (!name.empty() && n < room) entry->name[n++] = ' ';
    for (const wchar_t c : name) {
        if (n == room) break;
        // Names are plain ASCII; anything else would only blur the file.
        entry->name[n++] = c == L' ' ? '_' : (c > 32 && c < 127 ? static_cast<char>(c) : '?');
    }
    entry->name[n] = '\0';
    entry->ready.store(true, std::memory_order_release);
}

void Write() {
    if (written.exchange(true)) return;
    const char* path = std::getenv("QUILL_MARKS_FILE");
    if (path == nullptr || *path == '\0') return;
    // Written aside and then renamed, so whoever waits for the file finds
    // it whole.
    char part[1024];
    if (std::snprintf(part, sizeof part, "%s.part", path) >= static_cast<int>(sizeof part)) return;
    std::FILE* file = std::fopen(part, "w");
    if (file == nullptr) return;
    const std::size_t count = used.load() < kRoom ? used.load() : kRoom;
    const Clock::time_point first = entries[0].when;
    for (std::size_t i = 0; i < count; ++i) {
        const Entry& entry = entries[i];
        if (!entry.ready.load(std::memory_order_acquire)) continue;
        const double ms = std::chrono::duration<double, std::milli>(entry.when - first).count();
        std::fprintf(file, "%.3f %s\n", ms, entry.name.data());
    }
    std::fclose(file);
    std::rename(part, path);
}

}  // namespace qs::marks

#endif
