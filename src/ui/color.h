#pragma once
// Colours as the program keeps them: red in the low byte, then green, then
// blue. A value with the top bit set names a colour of the system's own by
// its index (the button-text colour, ...), resolved by the window layer.
#include <cstdint>

namespace qs::ui {

using Color = std::uint32_t;

constexpr Color Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<Color>(red) | (static_cast<Color>(green) << 8) | (static_cast<Color>(blue) << 16);
}

constexpr std::uint8_t RedOf(Color c) { return static_cast<std::uint8_t>(c & 0xFF); }
constexpr std::uint8_t GreenOf(Color c) { return static_cast<std::uint8_t>((c >> 8) & 0xFF); }
constexpr std::uint8_t BlueOf(Color c) { return static_cast<std::uint8_t>((c >> 16) & 0xFF); }

// The look the window layer gives a control of its kind when the program
// sets no colour.
inline constexpr Color DefaultColor = 0xFF000000;

constexpr bool IsSystemColor(Color c) { return c != DefaultColor && (c & 0x80000000) != 0; }
constexpr Color SystemColor(std::uint8_t index) { return 0x80000000 | index; }
constexpr std::uint8_t SystemColorIndex(Color c) { return static_cast<std::uint8_t>(c & 0xFF); }

// The system's button-text colour (its index is 18).
inline constexpr Color SystemButtonText = SystemColor(18);

}  // namespace qs::ui
