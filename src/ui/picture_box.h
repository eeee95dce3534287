#pragma once
// A picture button: it shows one picture, named by the slot it was taken
// from, swaps pictures on MouseDown and MouseUp and acts on Click.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

// Mouse buttons as the mouse events report them.
inline constexpr std::int16_t LeftButton = 1;
inline constexpr std::int16_t RightButton = 2;

class PictureBox : public Control {
public:
    PictureBox(Form& owner, std::wstring name) : Control(owner, ControlKind::PictureBox, std::move(name)) {}

    // The name of the picture slot shown, such as "frmBut.ImageMU(2)"; a
    // window backend draws the picture that the slot names.
    const std::wstring& Picture() const { return picture_; }
    void SetPicture(std::wstring picture);

    std::function<void()> Click;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseDown;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseUp;

    // Input as a real window reports it (used by window backends).
    void UserMouseDown(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void UserMouseUp(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void UserClick();

    // A left click as a person makes it: MouseDown, MouseUp, then Click. A
    // hidden or disabled picture takes no input.
    void Press();

private:
    std::wstring picture_;
};

}  // namespace qs::ui
