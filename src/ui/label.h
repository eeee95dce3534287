#pragma once
// A static caption, in the form's font or in a size and weight of its own.
#include <cstdint>
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

    // The size in points, 0 for the form's own size, and the weight.
    std::int16_t FontSize() const { return fontSize_; }
    bool FontBold() const { return fontBold_; }
    void SetFont(std::int16_t size, bool bold) {
        fontSize_ = size;
        fontBold_ = bold;
        Notify(Property::Font);
    }

private:
    std::wstring caption_;
    std::int16_t fontSize_ = 0;
    bool fontBold_ = false;
};

}  // namespace qs::ui
