#include "ui/control.h"

#include "ui/form.h"

namespace qs::ui {

Control::Control(Form& owner, ControlKind kind, std::wstring name)
    : owner_(owner), kind_(kind), name_(std::move(name)) {
    owner_.Register(*this);
}

void Control::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Notify(Property::Geometry);
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Notify(Property::Visible);
    NotifyContents();
}

void Control::NotifyContents() {
    for (Control* c : owner_.Controls()) {
        if (c->container_ != this) continue;
        c->Notify(Property::Visible);
        c->NotifyContents();
    }
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify(Property::Enabled);
}

void Control::SetToolTipText(std::wstring text) {
    toolTip_ = std::move(text);
    Notify(Property::ToolTip);
}

void Control::SetAccessibleName(std::wstring name) {
    if (accessibleName_ == name) return;
    accessibleName_ = std::move(name);
    Notify(Property::AccessibleName);
}

void Control::SetBackColor(Color color) {
    if (backColor_ == color) return;
    backColor_ = color;
    Notify(Property::Colors);
}

void Control::SetForeColor(Color color) {
    if (foreColor_ == color) return;
    foreColor_ = color;
    Notify(Property::Colors);
}

void Control::SetFont(std::int16_t size, bool bold) {
    fontSize_ = size;
    fontBold_ = bold;
    Notify(Property::Font);
}

void Control::SetFontUnderline(bool underline) {
    if (fontUnderline_ == underline) return;
    fontUnderline_ = underline;
    Notify(Property::Font);
}

void Control::SetFocus() { Notify(Property::Focus); }

void Control::SetTabIndex(std::int16_t index) {
    tabIndex_ = index;
    Notify(Property::TabIndex);
}

}  // namespace qs::ui
