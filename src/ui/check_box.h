#pragma once
// A check box with a caption. Value is 0 (clear) or 1 (ticked). A change of
// Value fires Click inside the write, whether the user's click toggled it or
// code wrote it.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class CheckBox : public Control {
public:
    CheckBox(Form& owner, std::wstring name, std::wstring caption = L"")
        : Control(owner, ControlKind::CheckBox, std::move(name)), caption_(std::move(caption)) {}

    const std::wstring& Caption() const { return caption_; }
    void SetCaption(std::wstring caption) {
        caption_ = std::move(caption);
        Notify(Property::Text);
    }

    std::int16_t Value() const { return value_; }
    void SetValue(std::int16_t value) {
        const std::int16_t next = value != 0 ? std::int16_t{1} : std::int16_t{0};
        const bool changed = next != value_;
        value_ = next;
        Notify(Property::Value);
        if (changed && Click) Click();
    }

    std::function<void()> Click;

    // The user clicked the box in the real control.
    void UserClicked() {
        if (!Visible() || !Enabled()) return;
        SetValue(value_ == 0 ? 1 : 0);
    }

private:
    std::wstring caption_;
    std::int16_t value_ = 0;
};

}  // namespace qs::ui
