#pragma once
// The button and shift state that a mouse event reports, read from the
// keys a mouse message carries: the left button before the right; Shift,
// Ctrl and Alt as 1, 2 and 4.
#include <windows.h>

#include <cstdint>

#include "ui/picture_box.h"

namespace qs::win {

inline std::int16_t MouseButtonOf(WPARAM keys) {
    if ((keys & MK_LBUTTON) != 0) return ui::LeftButton;
    if ((keys & MK_RBUTTON) != 0) return ui::RightButton;
    return 0;
}

inline std::int16_t ShiftStateOf(WPARAM keys) {
    std::int16_t shift = 0;
    if ((keys & MK_SHIFT) != 0) shift |= 1;
    if ((keys & MK_CONTROL) != 0) shift |= 2;
    if ((::GetKeyState(VK_MENU) & 0x8000) != 0) shift |= 4;
    return shift;
}

}  // namespace qs::win
