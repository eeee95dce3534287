#pragma once
// The program's own picture, a pencil lying across a rounded tile (ImageApp,
// and in the theme's colours the Help window's picture ImageMe), and the
// calm face of the larger windows (ImageBack).
#include "art/palette.h"
#include "pixel_image.h"

namespace qs::win::art {

// theme < 0 draws the program's picture in its own colours.
PixelImage RenderEmblem(int width, int height, double scale, const ThemeArt* theme);

PixelImage RenderWindowFace(int width, int height, double scale, const ThemeArt& theme);

}  // namespace qs::win::art
