#include "control_kinds.h"

namespace qs::win {

void ListBoxWindow::Create() {
    CreateChild(L"LISTBOX", WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, WS_EX_CLIENTEDGE);
    if (Handle() == nullptr) return;
    WriteItems();
}

void ListBoxWindow::OnChanged(ui::Property what) {
    if (what == ui::Property::ListIndex && Handle() != nullptr) WriteIndex();
}

void ListBoxWindow::ItemInserted(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), LB_INSERTSTRING, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(ItemText(index).c_str()));
}

void ListBoxWindow::ItemRemoved(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), LB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

void ListBoxWindow::ItemChanged(std::int32_t index) {
    ItemRemoved(index);
    ItemInserted(index);
    if (Handle() != nullptr && list_.ListIndex() == index) WriteIndex();
}

void ListBoxWindow::ItemsCleared() {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), LB_RESETCONTENT, 0, 0);
}

void ListBoxWindow::WriteItems() {
    // Only when the window is first made; after that it follows change by change.
    ::SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(Handle(), LB_RESETCONTENT, 0, 0);
    const std::int32_t count = list_.ListCount();
    ::SendMessageW(Handle(), LB_INITSTORAGE, static_cast<WPARAM>(count), 0);
    for (std::int32_t i = 0; i < count; ++i) {
        ::SendMessageW(Handle(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ItemText(i).c_str()));
    }
    WriteIndex();
    ::SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(Handle(), nullptr, TRUE);
}

void ListBoxWindow::WriteIndex() { ::SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0); }

void ListBoxWindow::OnCommand(WORD code) {
    if (code != LBN_SELCHANGE || Handle() == nullptr) return;
    const LRESULT index = ::SendMessageW(Handle(), LB_GETCURSEL, 0, 0);
    list_.UserSelected(index == LB_ERR ? -1 : static_cast<std::int32_t>(index));
}

}  // namespace qs::win
