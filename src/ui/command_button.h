#pragma once
// A command button. Setting Value to true clicks it synchronously, which is
// how one window asks another to perform a click.
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class CommandButton : public Control {
public:
    CommandButton(Form& owner, std::wstring name) : Control(owner, ControlKind::CommandButton, std::move(name)) {}

    std::function<void()> Click;

    void SetValue(bool value) {
        if (value && Click) Click();
    }
};

}  // namespace qs::ui
