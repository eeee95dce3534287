#pragma once
// The look a form and its controls have when the program gives them no
// colour of their own: a dialog has a calm light face with a slate line
// round it, dark text, and white fields with a light line for its text boxes.
#include "ui/color.h"

namespace qs::win {

inline constexpr ui::Color kDialogFaceColor = ui::Rgb(0xF3, 0xF5, 0xF8);
inline constexpr ui::Color kDialogBorderColor = ui::Rgb(0x87, 0x94, 0xA6);
inline constexpr ui::Color kDialogFieldLineColor = ui::Rgb(0xB4, 0xBE, 0xCB);
inline constexpr ui::Color kDialogTextColor = ui::Rgb(0x25, 0x2A, 0x31);

}  // namespace qs::win
