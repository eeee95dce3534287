#pragma once
// A picture button: it shows one picture, a reference into the holders,
// swaps pictures on MouseDown and MouseUp and acts on Click. A picture box
// can also be a strip that other controls lie on.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"
#include "ui/picture.h"

namespace qs::ui {

// Mouse buttons as the mouse events report them.
inline constexpr std::int16_t LeftButton = 1;
inline constexpr std::int16_t RightButton = 2;

class PictureBox : public Control {
public:
    PictureBox(Form& owner, std::wstring name) : Control(owner, ControlKind::PictureBox, std::move(name)) {}

    // The picture shown; an empty reference shows the form beneath.
    const PictureRef& Picture() const { return picture_; }
    void SetPicture(PictureRef picture);

    std::function<void()> Click;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseDown;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseUp;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseMove;
    std::function<void(std::int16_t& key)> KeyPress;

    // Input as a real window reports it (used by window backends).
    void UserMouseDown(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void UserMouseUp(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void UserClick();
    void UserMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    // A key typed while the picture has the focus; returns the key left.
    std::int16_t UserKeyPress(wchar_t key);

    // A left click as a person makes it: MouseDown, MouseUp, then Click. A
    // hidden or disabled picture takes no input.
    void Press();

private:
    PictureRef picture_;
};

}  // namespace qs::ui
