#pragma once
// Text dragged from another program (a URL from a browser, a line from an
// editor) and dropped on a text box lands in the box as the user's own edit.
#include <windows.h>
#include <ole2.h>

#include "ui/text_box.h"

namespace qs::win {

// OLE for the calling thread for the scope; drag and drop needs it.
class OleScope {
public:
    OleScope() : result_(::OleInitialize(nullptr)) {}
    OleScope(const OleScope&) = delete;
    OleScope& operator=(const OleScope&) = delete;
    ~OleScope() {
        if (SUCCEEDED(result_)) ::OleUninitialize();
    }

private:
    HRESULT result_;
};

class TextDropTarget;

// The edit window registered as a drop target for the scope.
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
