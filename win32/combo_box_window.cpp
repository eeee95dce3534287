#include "combo_box_window.h"

#include <string>

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

RECT ComboBoxWindow::PixelRect() const {
    // A combo box's own height is set by its font; the height it is given
    // is the room of its dropped list.
    RECT r = ControlWindow::PixelRect();
    r.bottom += LineHeight() * DroppedRows();
    return r;
}

void ComboBoxWindow::OnChanged(ui::Property what) {
    if (what == ui::Property::ListIndex && Handle() != nullptr) WriteIndex();
}

void ComboBoxWindow::ItemInserted(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    const std::wstring item(combo_.List(index));
    ::SendMessageW(Handle(), CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item.c_str()));
}

void ComboBoxWindow::ItemRemoved(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), CB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

void ComboBoxWindow::ItemChanged(std::int32_t index) {
    ItemRemoved(index);
    ItemInserted(index);
    if (Handle() != nullptr && combo_.ListIndex() == index) WriteIndex();
}

void ComboBoxWindow::ItemsCleared() {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
}

void ComboBoxWindow::WriteItems() {
    // Only when the window is first made; after that it follows change by
    // change. The room for every entry is asked for at once, so a list of
    // 32,767 names fills without growing step by step.
    const HWND window = Handle();
    const std::int32_t count = combo_.ListCount();
    std::size_t chars = 0;
    for (std::int32_t i = 0; i < count; ++i) chars += combo_.List(i).size() + 1;
    ::SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(window, CB_RESETCONTENT, 0, 0);
    ::SendMessageW(window, CB_INITSTORAGE, static_cast<WPARAM>(count), static_cast<LPARAM>(chars * sizeof(wchar_t)));
    std::wstring item;
    for (std::int32_t i = 0; i < count; ++i) {
        item.assign(combo_.List(i));
        ::SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
    WriteIndex();
    ::SendMessageW(window, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(window, nullptr, TRUE);
}

void ComboBoxWindow::WriteIndex() {
    ::SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(combo_.ListIndex()), 0);
}

void ComboBoxWindow::OnCommand(WORD code) {
    if (code != CBN_SELCHANGE || Handle() == nullptr) return;
    const LRESULT index = ::SendMessageW(Handle(), CB_GETCURSEL, 0, 0);
    combo_.UserSelected(index == CB_ERR ? -1 : static_cast<std::int32_t>(index));
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
