#include "ui/picture_box.h"

namespace qs::ui {

void PictureBox::SetPicture(PictureRef picture) {
    // Setting the picture shown already costs the window nothing.
    if (picture_ == picture) return;
    picture_ = picture;
    Notify(Property::Picture);
}

void PictureBox::UserMouseDown(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
    if (MouseDown) MouseDown(button, shift, x, y);
}

void PictureBox::UserMouseUp(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
    if (MouseUp) MouseUp(button, shift, x, y);
}

void PictureBox::UserClick() {
    if (Click) Click();
}

void PictureBox::UserMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
    if (MouseMove) MouseMove(button, shift, x, y);
}

std::int16_t PictureBox::UserKeyPress(wchar_t key) {
    auto code = static_cast<std::int16_t>(key);
    if (KeyPress) KeyPress(code);
    return code;
}

void PictureBox::Press() {
    if (!Visible() || !Enabled()) return;
    UserMouseDown(LeftButton, 0, 0, 0);
    UserMouseUp(LeftButton, 0, 0, 0);
    UserClick();
}

}  // namespace qs::ui
