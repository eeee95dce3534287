#pragma once
// A read of a five-entry picture set by a number that may lie outside it,
// such as the theme number: outside 0 to 4 it is the subscript failure an
// array raises, left to the caller's handler.
#include <array>
#include <cstdint>

#include "common/failure.h"
#include "ui/picture.h"

namespace qs {

inline const ui::PictureRef& FiveSetEntry(const std::array<ui::PictureRef, 5>& set, std::int32_t index) {
    if (index < 0 || index >= static_cast<std::int32_t>(set.size())) throw SubscriptOutOfRange();
    return set[static_cast<std::size_t>(index)];
}

}  // namespace qs
