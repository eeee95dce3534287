#pragma once
// A frame: a caption with a border around a group of controls. Controls are
// placed in it by Place, which gives them the frame as their container and
// their place in the form's coordinates (frames do not move after their
// contents are placed). Hiding the frame hides what it holds on screen;
// each control keeps its own Visible.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class Frame : public Control {
public:
    // A frame without a border is an invisible area that only groups.
    Frame(Form& owner, std::wstring name, std::wstring caption = L"", bool bordered = true)
        : Control(owner, ControlKind::Frame, std::move(name)), caption_(std::move(caption)), bordered_(bordered) {}

    const std::wstring& Caption() const { return caption_; }
    void SetCaption(std::wstring caption) {
        caption_ = std::move(caption);
        Notify(Property::Text);
    }
    bool Bordered() const { return bordered_; }

    // Puts `control` in the frame at (left, top) of the frame's corner.
    void Place(Control& control, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
        control.SetContainer(this);
        control.Move(Left() + left, Top() + top, width, height);
    }

    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseMove;

    void UserMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        if (MouseMove) MouseMove(button, shift, x, y);
    }

private:
    std::wstring caption_;
    bool bordered_;
};

}  // namespace qs::ui
