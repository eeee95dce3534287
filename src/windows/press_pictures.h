#pragma once
// A picture button of a pane that swaps its picture when pressed and
// released. Each picture is read from the theme at that moment, so a theme
// switch between press and release is honoured.
#include <functional>

#include "ui/picture.h"
#include "ui/picture_box.h"

namespace qs {

using PictureOf = std::function<ui::PictureRef()>;

inline void SetPressPictures(ui::PictureBox& button, PictureOf down, PictureOf up) {
    button.MouseDown = [&button, down = std::move(down)](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        button.SetPicture(down());
    };
    button.MouseUp = [&button, up = std::move(up)](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        button.SetPicture(up());
    };
}

}  // namespace qs
