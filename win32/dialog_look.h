#pragma once
// The colours of a dialog form: a calm light face with a slate line round
// it, dark text, and white fields with a light line for the text boxes.
#include <cstdint>

namespace qs::win {

inline constexpr std::uint32_t kDialogFaceColor = 0xF3F5F8;
inline constexpr std::uint32_t kDialogBorderColor = 0x8794A6;
inline constexpr std::uint32_t kDialogFieldLineColor = 0xB4BECB;
inline constexpr std::uint32_t kDialogTextColor = 0x252A31;
inline constexpr std::uint32_t kDialogFieldColor = 0xFFFFFF;

}  // namespace qs::win
