#pragma once
// Text dragged from another program (a URL from a browser, a line from an
// editor) and dropped on a text box lands in the box as the user's own edit.
#include <windows.h>
#include <ole2.h>

#include "ui/text_box.h"

namespace qs::win {

class TextDropTarget;

// The edit window registered as a drop target for the scope; OLE is started
// for it if it does not run yet.
class TextDropRegistration {
public:
    TextDropRegistration(HWND edit, ui::TextBox& box);
    TextDropRegistration(const TextDropRegistration&) = delete;
    TextDropRegistration& operator=(const TextDropRegistration&) = delete;
    ~TextDropRegistration();

private:
    HWND edit_;
    TextDropTarget* target_ = nullptr;
    bool registered_ = false;
};

}  // namespace qs::win
