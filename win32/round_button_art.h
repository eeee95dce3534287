#pragma once
// The reply buttons of the message window: a calm round button drawn at any
// size, pixel by pixel with 4 x 4 samples per pixel, so its edge is smooth at
// every DPI. The picture slot a control names chooses the look.
#include <cstdint>
#include <string_view>

#include "pencil_art.h"

namespace qs::win {

enum class ButtonLook { None, Up, Hover, Down };

// "frmBut.ImageMU(n)" and "ImageZeroSet(n)" are a button at rest,
// "frmBut.ImageMD(n)" and "ImageZeroOver" a pressed one; "frmBut.ImageMZ(n)",
// "ImageZeroBlank", "" and any other name show nothing.
ButtonLook LookOfPicture(std::wstring_view slot);

// The button centred in a width x height image of premultiplied 0xAARRGGBB
// pixels, transparent around it, so it lies on whatever the form shows
// there; scale is DPI / 96. ButtonLook::None gives a transparent image.
PixelImage RenderRoundButton(int width, int height, double scale, ButtonLook look);

}  // namespace qs::win
