#include "ui/text_box.h"

#include <algorithm>
#include <string_view>

namespace qs::ui {

TextBox::TextBox(Form& owner, std::wstring name, bool multiLine)
    : Control(owner, ControlKind::TextBox, std::move(name)), multiLine_(multiLine) {}

void TextBox::SetText(const std::wstring& text) {
    const bool changed = text != text_;
    text_ = text;
    // A written text puts the caret at its start, as the edit control does.
    selStart_ = 0;
    selLength_ = 0;
    Notify(Property::Text);
    if (changed) Fire(Change);
}

void TextBox::SetSelStart(std::int32_t start) {
    const auto size = static_cast<std::int32_t>(text_.size());
    selStart_ = std::clamp<std::int32_t>(start, 0, size);
    selLength_ = 0;
    Notify(Property::Selection);
}

void TextBox::SetSelLength(std::int32_t length) {
    const auto room = static_cast<std::int32_t>(text_.size()) - selStart_;
    selLength_ = std::clamp<std::int32_t>(length, 0, room);
    Notify(Property::Selection);
}

void TextBox::SetLocked(bool locked) {
    locked_ = locked;
    Notify(Property::Locked);
}

std::int16_t TextBox::UserKeyPress(wchar_t key) {
    auto code = static_cast<std::int16_t>(key);
    if (KeyPress) KeyPress(code);
    return code;
}

void TextBox::ReplaceSelection(const std::wstring& with) {
    // As UserEdited, but in place, since every key typed comes this way: the
    // text changes exactly when the selection did not already hold `with`.
    const auto start = static_cast<std::size_t>(selStart_);
    const auto length = static_cast<std::size_t>(selLength_);
    const bool changed = std::wstring_view(text_).substr(start, length) != with;
    text_.replace(start, length, with);
    selStart_ += static_cast<std::int32_t>(with.size());
    selLength_ = 0;
    if (changed) Fire(Change);
}

void TextBox::TypeKey(wchar_t key) {
    const std::int16_t passed = UserKeyPress(key);
    if (passed == 0 || locked_ || !Enabled()) return;
    if (passed == 8) {
        if (selLength_ > 0) {
            ReplaceSelection(L"");
        } else if (selStart_ > 0) {
            --selStart_;
            selLength_ = 1;
            ReplaceSelection(L"");
        }
        return;
    }
    // A single-line edit control ignores Enter and Esc and other control codes.
    if (passed < 32 && !(multiLine_ && passed == 13)) return;
    ReplaceSelection(std::wstring(1, passed == 13 ? L'\n' : static_cast<wchar_t>(passed)));
}

void TextBox::TypeText(const std::wstring& keys) {
    for (wchar_t key : keys) TypeKey(key);
}

void TextBox::PressDelete() {
    if (locked_ || !Enabled()) return;
    if (selLength_ == 0) {
        if (selStart_ >= static_cast<std::int32_t>(text_.size())) return;
        selLength_ = 1;
    }
    ReplaceSelection(L"");
}

void TextBox::DoubleClick() { Fire(DblClick); }

void TextBox::UserEdited(const std::wstring& text, std::int32_t selStart, std::int32_t selLength) {
    const bool changed = text != text_;
    text_ = text;
    selStart_ = selStart;
    selLength_ = selLength;
    if (changed) Fire(Change);
}

void TextBox::UserSelected(std::int32_t selStart, std::int32_t selLength) {
    selStart_ = selStart;
    selLength_ = selLength;
}

}  // namespace qs::ui
