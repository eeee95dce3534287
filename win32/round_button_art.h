#pragma once
// The reply buttons of the message window: a calm round button drawn at any
// size, pixel by pixel with 4 x 4 samples per pixel, so its edge is smooth at
// every DPI. The picture slot a control names chooses the look.
#include <cstdint>

#include "pencil_art.h"
#include "ui/picture.h"

namespace qs::win {

enum class ButtonLook { None, Up, Hover, Down };

// A medium round button (ImageMU) is a button at rest, a pressed one
// (ImageMD) the pressed look; a blank (ImageMZ) or no picture shows nothing.
ButtonLook LookOfPicture(const ui::PictureRef& picture);

// The button centred in a width x height image of premultiplied 0xAARRGGBB
// pixels, transparent around it, so it lies on whatever the form shows
// there; scale is DPI / 96. ButtonLook::None gives a transparent image.
PixelImage RenderRoundButton(int width, int height, double scale, ButtonLook look);

}  // namespace qs::win
