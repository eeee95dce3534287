#pragma once
// Keeps a borderless window inside the work area by its own size: the rule
// the bar, the QuickLauncher and Help follow after every mouse move over
// their surface.
#include <cstdint>

#include "ui/form.h"

namespace qs {

struct Application;

// Moves `form` back inside the work area, taking `width` and `height` as
// its size. Limits are worked in twips; sums are 16-bit, so a limit past
// 32767 twips is an Overflow.
void KeepInWorkArea(Application& app, ui::Form& form, std::int32_t width, std::int32_t height);

}  // namespace qs
