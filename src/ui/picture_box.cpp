#include "ui/picture_box.h"

namespace qs::ui {

void PictureBox::SetPicture(std::wstring picture) {
    picture_ = std::move(picture);
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

void PictureBox::Press() {
    if (!Visible() || !Enabled()) return;
    UserMouseDown(LeftButton, 0, 0, 0);
    UserMouseUp(LeftButton, 0, 0, 0);
    UserClick();
}

}  // namespace qs::ui
