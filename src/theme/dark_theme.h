#pragma once
// Themes 0 and 1 are light; every later theme is dark, with light text and
// the dark variants of the two-way pictures.
#include <cstdint>

namespace qs {

constexpr bool IsDarkTheme(std::int16_t t) { return t > 1; }

}  // namespace qs
