#pragma once
// An option button. The option buttons with the same container (a frame, or
// the form itself) form one group: turning one on turns the others off.
// Turning one on fires its Click when it was off, whether the user's click
// or code did it.
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class OptionButton : public Control {
public:
    OptionButton(Form& owner, std::wstring name, std::wstring caption = L"")
        : Control(owner, ControlKind::OptionButton, std::move(name)), caption_(std::move(caption)) {}

    const std::wstring& Caption() const { return caption_; }
    void SetCaption(std::wstring caption);

    bool Value() const { return value_; }
    void SetValue(bool value);

    std::function<void()> Click;

    // The user clicked the button in the real control.
    void UserClicked();

private:
    std::wstring caption_;
    bool value_ = false;
};

}  // namespace qs::ui
