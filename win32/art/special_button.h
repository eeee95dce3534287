#pragma once
// The small special button beside the bar's "W": a lamp that is red or green
// while the QuickLauncher is closed, a lit ring while it is open, brighter
// under the pointer and sunk while pressed.
#include "art/palette.h"
#include "pixel_image.h"

namespace qs::win::art {

enum class LampLook { ClosedRed, ClosedGreen, Open, OverOpen, Pressed };

PixelImage RenderLamp(int width, int height, double scale, LampLook look, const ThemeArt& theme);

}  // namespace qs::win::art
