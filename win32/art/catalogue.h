#pragma once
// Every picture of the holders, drawn on demand: one switch over the slot
// picks the family, and the theme follows from the index by the holders'
// rules. Pictures are premultiplied 0xAARRGGBB, transparent where the form
// beneath is to show.
#include <cstdint>

#include "pixel_image.h"
#include "ui/picture.h"

namespace qs::win {

// The theme a picture belongs to, -1 for the pictures that are the same in
// every theme (ImageActive, ImageMQChoiceDown, ImageMQSelected, ImageApp).
std::int16_t ThemeOfPicture(const ui::PictureRef& picture);

// The strips of frmHid: a picture box showing one is part of its form's
// face, with the controls that lie on it drawn over it.
constexpr bool IsStripPicture(const ui::PictureRef& picture) {
    switch (picture.slot) {
        case ui::PictureSlot::ImageBackZero:
        case ui::PictureSlot::ImageBackMain:
        case ui::PictureSlot::ImageBackWeb:
        case ui::PictureSlot::ImageQBackS:
        case ui::PictureSlot::ImageQBackM:
        case ui::PictureSlot::ImageQBackB:
            return true;
        default:
            return false;
    }
}

// The picture drawn at width x height pixels; scale is DPI / 96. An empty
// reference gives an empty image.
PixelImage RenderPicture(const ui::PictureRef& picture, int width, int height, double scale);

}  // namespace qs::win
