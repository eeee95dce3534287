#pragma once
// The named colours of the themes.
#include <array>

#include "ui/color.h"

namespace qs {

inline constexpr ui::Color ColorGrey = ui::Rgb(192, 192, 192);
inline constexpr ui::Color ColorLight = ui::Rgb(230, 230, 230);
inline constexpr ui::Color ColorRose = ui::Rgb(150, 85, 105);
inline constexpr ui::Color ColorDark = ui::Rgb(80, 80, 80);
inline constexpr ui::Color ColorBlue = ui::Rgb(30, 30, 160);
inline constexpr ui::Color ColorWhite = ui::Rgb(255, 255, 255);
inline constexpr ui::Color ColorLime = ui::Rgb(0, 255, 0);
inline constexpr ui::Color ColorGreen = ui::Rgb(0, 128, 0);

// The form and box colour of each theme, by theme number.
inline constexpr std::array<ui::Color, 7> ThemeFormColors{
    ColorGrey, ColorLight, ColorRose, ColorDark, ColorBlue, ui::Rgb(91, 132, 148), ui::Rgb(100, 100, 50)};
inline constexpr std::array<ui::Color, 7> ThemeBoxColors{ui::Rgb(220, 220, 220), ui::Rgb(250, 250, 250),
                                                          ui::Rgb(170, 85, 105),  ui::Rgb(110, 110, 110),
                                                          ui::Rgb(75, 75, 240),   ui::Rgb(115, 155, 170),
                                                          ui::Rgb(120, 120, 70)};

}  // namespace qs
