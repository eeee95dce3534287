#pragma once
// A static caption.
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

private:
    std::wstring caption_;
};

}  // namespace qs::ui
