#pragma once
// A program colour as GDI takes it: the program keeps red in the low byte as
// COLORREF does, and a system colour is looked up by its index.
#include <windows.h>

#include "ui/color.h"

namespace qs::win {

inline COLORREF ColorRefOf(ui::Color color) {
    if (ui::IsSystemColor(color)) return ::GetSysColor(ui::SystemColorIndex(color));
    return static_cast<COLORREF>(color & 0x00FFFFFFu);
}

}  // namespace qs::win
