#include "ui/option_button.h"

#include "ui/form.h"

namespace qs::ui {

void OptionButton::SetCaption(std::wstring caption) {
    caption_ = std::move(caption);
    Notify(Property::Text);
}

void OptionButton::SetValue(bool value) {
    if (!value) {
        if (!value_) return;
        value_ = false;
        Notify(Property::Value);
        return;
    }
    if (value_) return;
    for (Control* c : Owner().Controls()) {
        if (c == this || c->Kind() != ControlKind::OptionButton || c->Container() != Container()) continue;
        static_cast<OptionButton*>(c)->SetValue(false);
    }
    value_ = true;
    Notify(Property::Value);
    if (Click) Click();
}

void OptionButton::UserClicked() {
    if (!Shown() || !Enabled()) return;
    SetValue(true);
}

}  // namespace qs::ui
