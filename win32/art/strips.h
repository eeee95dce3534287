#pragma once
// The strips that give the bar and the QuickLauncher their shape. Laid side
// by side at their places on the bar, the three bar strips read as one
// pencil: the point with its wooden cone (ImageBackZero), the painted body
// with the Command box's field (ImageBackMain), and the body with the web
// boxes' fields ending in a metal band and an eraser (ImageBackWeb). Their
// facing edges show the same body, so they join without a seam. The
// QuickLauncher's strips are short lengths of the same body with round ends.
#include "art/palette.h"
#include "pixel_image.h"

namespace qs::win::art {

enum class StripKind { BarPoint, BarCommand, BarWeb, Segment };

PixelImage RenderStrip(int width, int height, double scale, StripKind kind, const ThemeArt& theme);

}  // namespace qs::win::art
