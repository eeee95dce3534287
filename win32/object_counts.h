#pragma once
// How many GDI objects, device contexts and windows the program holds now,
// by kind. The owning types of handles.h count what they take and what they
// let go, so a test can tell that a long run of work leaves no more behind
// than its first round did. One relaxed atomic add per handle made or freed:
// nothing next to the system call it goes with.
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace qs::win {

enum class CountedKind : std::size_t { Bitmap, Brush, Font, Dc, Window };

inline constexpr std::size_t kCountedKinds = 5;

namespace detail {
inline std::array<std::atomic<std::int64_t>, kCountedKinds> liveObjects{};
}  // namespace detail

inline void CountMade(CountedKind kind) noexcept {
    detail::liveObjects[static_cast<std::size_t>(kind)].fetch_add(1, std::memory_order_relaxed);
}

inline void CountGone(CountedKind kind) noexcept {
    detail::liveObjects[static_cast<std::size_t>(kind)].fetch_sub(1, std::memory_order_relaxed);
}

// The objects of a kind that are held now.
inline std::int64_t LiveCount(CountedKind kind) noexcept {
    return detail::liveObjects[static_cast<std::size_t>(kind)].load(std::memory_order_relaxed);
}

inline const char* CountedKindName(CountedKind kind) noexcept {
    switch (kind) {
        case CountedKind::Bitmap:
            return "bitmaps";
        case CountedKind::Brush:
            return "brushes";
        case CountedKind::Font:
            return "fonts";
        case CountedKind::Dc:
            return "DCs";
        case CountedKind::Window:
            return "windows";
    }
    return "?";
}

}  // namespace qs::win
