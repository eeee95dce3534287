#pragma once
// A single-line (or multi-line, read-only) text box. Writing Text from code
// fires Change inside the write, as the program's handlers rely on.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class TextBox : public Control {
public:
    TextBox(Form& owner, std::wstring name, bool multiLine = false);

    const std::wstring& Text() const { return text_; }
    void SetText(const std::wstring& text);

    // Selection in code units; SelStart is also the caret.
    std::int32_t SelStart() const { return selStart_; }
    std::int32_t SelLength() const { return selLength_; }
    void SetSelStart(std::int32_t start);
    void SetSelLength(std::int32_t length);
    std::wstring SelText() const { return text_.substr(selStart_, selLength_); }

    bool Locked() const { return locked_; }
    void SetLocked(bool locked);
    bool MultiLine() const { return multiLine_; }
    // A multi-line box scrolls by a vertical scroll bar unless told that
    // its room holds all its text. Set before the form loads.
    bool VerticalScrollBar() const { return verticalScrollBar_; }
    void SetVerticalScrollBar(bool shown) { verticalScrollBar_ = shown; }

    // Text dragged from another program and dropped on the box lands in it
    // as the user's own edit, so Change fires. Set before the form loads.
    bool AcceptsTextDrop() const { return acceptsTextDrop_; }
    void SetAcceptsTextDrop(bool accepts) { acceptsTextDrop_ = accepts; }

    // Events. KeyPress may set the key to 0 to swallow it.
    std::function<void()> Change;
    std::function<void(std::int16_t& key)> KeyPress;
    std::function<void()> DblClick;

    // Input as a person makes it. The simulated ones act as a Windows edit
    // control does: KeyPress first, then the edit, then Change.
    void TypeKey(wchar_t key);
    void TypeText(const std::wstring& keys);
    void PressDelete();
    void DoubleClick();

    // Input as a real edit control reports it (used by window backends).
    std::int16_t UserKeyPress(wchar_t key);
    void UserEdited(const std::wstring& text, std::int32_t selStart, std::int32_t selLength);
    void UserSelected(std::int32_t selStart, std::int32_t selLength);

private:
    void ReplaceSelection(const std::wstring& with);
    void Fire(const std::function<void()>& event) {
        if (event) event();
    }

    std::wstring text_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool locked_ = false;
    bool multiLine_;
    bool acceptsTextDrop_ = false;
    bool verticalScrollBar_ = true;
};

}  // namespace qs::ui
