#include "combo_box_window.h"

#include "form_window.h"
#include "window_hook.h"

namespace qs::win {

void ComboBoxWindow::Create() {
    CreateChild(L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP);
    if (Handle() == nullptr) return;
    HookWindow(Handle(), ComboProc, this);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    if (::GetComboBoxInfo(Handle(), &info)) droppedList_ = info.hwndList;
    WriteItems();
}

HWND ComboBoxWindow::ListWindow(UINT& add) const {
    if (droppedList_ == nullptr) return ItemsWindow::ListWindow(add);
    add = LB_ADDSTRING;
    return droppedList_;
}

RECT ComboBoxWindow::PixelRect() const {
    // A combo box's own height is set by its font; the height it is given
    // is the room of its dropped list.
    RECT r = ControlWindow::PixelRect();
    r.bottom += LineHeight() * DroppedRows();
    return r;
}

LRESULT ComboBoxWindow::HandleChar(HWND window, WPARAM wParam, LPARAM lParam) {
    auto key = static_cast<std::int16_t>(wParam);
    combo_.UserKeyPress(key);
    // KeyPress may have swallowed the key, or closed the form.
    if (key == 0 || Detached()) return 0;
    return CallOwnProcedure(window, WM_CHAR, static_cast<WPARAM>(static_cast<std::uint16_t>(key)), lParam);
}

LRESULT ComboBoxWindow::ComboProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self) {
    auto* combo = static_cast<ComboBoxWindow*>(self);
    if (message == WM_CHAR && combo != nullptr && !combo->Detached()) return combo->HandleChar(window, wParam, lParam);
    return CallOwnProcedure(window, message, wParam, lParam);
}

}  // namespace qs::win
