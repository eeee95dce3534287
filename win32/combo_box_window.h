#pragma once
// A drop-down list as a COMBOBOX whose text is chosen from its list, never
// typed. The window is told of the list item by item; the whole list is
// written only when the window is first made, which for a hidden drop-down
// is when it first shows. Every key typed reaches the control's KeyPress
// first, which may swallow it; the arrows and the keys that open the list
// are not typed keys and always work.
#include <cstdint>

#include "items_window.h"
#include "ui/combo_box.h"

namespace qs::win {

class ComboBoxWindow : public ItemsWindow {
public:
    ComboBoxWindow(FormWindow& form, ui::ComboBox& combo, int id)
        : ItemsWindow(form, combo, id, kComboBoxMessages), combo_(combo) {}

    void Create() override;
    bool TakesFocus() const override { return Handle() != nullptr && Model().Shown() && Model().Enabled(); }
    bool OwnsPart(HWND window) const override { return window != nullptr && window == droppedList_; }

protected:
    // The window's height takes in the dropped list: this many rows.
    virtual int DroppedRows() const { return 12; }
    RECT PixelRect() const override;
    // A whole list goes straight to the dropped list window, which holds
    // the entries: the box would only pass each one on, and 32,767 entries
    // are written in half the time.
    HWND ListWindow(UINT& add) const override;

private:
    static LRESULT ComboProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* self);
    LRESULT HandleChar(HWND window, WPARAM wParam, LPARAM lParam);

    ui::ComboBox& combo_;
    // The list the box drops, which asks for its colours as the box does.
    HWND droppedList_ = nullptr;
};

}  // namespace qs::win
