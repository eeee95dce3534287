#pragma once
// The indexing rules of the picture holders: where the picture of theme t
// lies in each control array of frmBut, frmHid and frmBack.
#include <cstdint>

#include "theme/dark_theme.h"
#include "ui/picture.h"

namespace qs {

// The nine-per-theme button arrays (ImageMenu, ImageDown): t * 20 + i.
inline ui::PictureRef ButtonOfTheme(ui::PictureSlot slot, std::int16_t t, std::int16_t i) {
    return ui::HolderPicture(slot, t * 20 + i);
}
// The five-per-theme arrays (ImageMQChoice, ImageBU, ImageMU, ImageSU): t * 5 + i.
inline ui::PictureRef FiveOfTheme(ui::PictureSlot slot, std::int16_t t, std::int16_t i) {
    return ui::HolderPicture(slot, t * 5 + i);
}
// The two-way arrays (ImageBD, ImageMD, ImageSD): t * 2 + 1 for the dark
// themes, t * 2 for the light ones.
inline ui::PictureRef TwoWayOfTheme(ui::PictureSlot slot, std::int16_t t) {
    return ui::HolderPicture(slot, IsDarkTheme(t) ? t * 2 + 1 : t * 2);
}
// One picture a theme (the blanks, the special button, the strips, ...).
inline ui::PictureRef OneOfTheme(ui::PictureSlot slot, std::int16_t t) { return ui::HolderPicture(slot, t); }

}  // namespace qs
