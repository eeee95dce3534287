#include "items_window.h"

namespace qs::win {

void ItemsWindow::OnChanged(ui::Property what) {
    if (what == ui::Property::ListIndex && Handle() != nullptr) WriteIndex();
}

void ItemsWindow::ItemInserted(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    std::wstring item;
    ItemText(index, item);
    ::SendMessageW(Handle(), messages_.insert, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item.c_str()));
}

void ItemsWindow::ItemRemoved(std::int32_t index) {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), messages_.remove, static_cast<WPARAM>(index), 0);
}

void ItemsWindow::ItemChanged(std::int32_t index) {
    ItemRemoved(index);
    ItemInserted(index);
    if (Handle() != nullptr && list_.ListIndex() == index) WriteIndex();
}

void ItemsWindow::ItemsCleared() {
    if (Detached() || Handle() == nullptr) return;
    ::SendMessageW(Handle(), messages_.reset, 0, 0);
}

void ItemsWindow::WriteItems() {
    // Only when the window is first made; after that it follows change by
    // change. The room for every entry is asked for at once, so a list of
    // 32,767 names fills without growing step by step.
    const HWND window = Handle();
    const std::int32_t count = list_.ListCount();
    std::size_t chars = 0;
    for (std::int32_t i = 0; i < count; ++i) chars += list_.List(i).size() + 1;
    ::SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageW(window, messages_.reset, 0, 0);
    ::SendMessageW(window, messages_.initStorage, static_cast<WPARAM>(count),
                   static_cast<LPARAM>(chars * sizeof(wchar_t)));
    UINT add = 0;
    const HWND list = ListWindow(add);
    std::wstring item;
    for (std::int32_t i = 0; i < count; ++i) {
        ItemText(i, item);
        ::SendMessageW(list, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
    }
    WriteIndex();
    ::SendMessageW(window, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(window, nullptr, TRUE);
}

void ItemsWindow::WriteIndex() {
    ::SendMessageW(Handle(), messages_.setChoice, static_cast<WPARAM>(list_.ListIndex()), 0);
}

void ItemsWindow::OnCommand(WORD code) {
    if (code != messages_.choiceChanged || Handle() == nullptr) return;
    const LRESULT index = ::SendMessageW(Handle(), messages_.getChoice, 0, 0);
    list_.UserSelected(index == messages_.error ? -1 : static_cast<std::int32_t>(index));
}

}  // namespace qs::win
