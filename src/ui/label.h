#pragma once
// A static caption, in the form's font or in a size and weight of its own.
// Click fires when the user clicks it.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class Label : public Control {
public:
    Label(Form& owner, std::wstring name, std::wstring caption = L"")
        : Control(owner, ControlKind::Label, std::move(name)), caption_(std::move(caption)) {}

    const std::wstring& Caption() const { return caption_; }
    void SetCaption(std::wstring caption) {
        caption_ = std::move(caption);
        Notify(Property::Text);
    }

    // 0: no border; 1: a single thin line around the label. Set at design,
    // before the label's window is made.
    std::int16_t BorderStyle() const { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) { borderStyle_ = style; }

    // A caption that shows "&&" as one "&", as a caption given as a menu's
    // is written. Set before the form loads.
    bool UseMnemonic() const { return useMnemonic_; }
    void SetUseMnemonic(bool use) { useMnemonic_ = use; }

    std::function<void()> Click;
    std::function<void(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y)> MouseMove;

    // Input as a real window reports it (used by window backends).
    void UserClick() {
        if (Visible() && Enabled() && Click) Click();
    }
    void UserMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        if (MouseMove) MouseMove(button, shift, x, y);
    }

private:
    std::wstring caption_;
    std::int16_t borderStyle_ = 0;
    bool useMnemonic_ = false;
};

}  // namespace qs::ui
