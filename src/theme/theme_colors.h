#pragma once
// The named colours of the themes.
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

}  // namespace qs
