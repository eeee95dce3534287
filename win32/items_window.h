#pragma once
// What a list box and a drop-down share: a window told of its list entry by
// entry (inserted at i, removed at i, reset), written whole only when it is
// first made, and the user's choice sent back to the list. The two kinds
// differ only in their window messages, given as a table.
#include <windows.h>

#include <cstdint>
#include <string>

#include "control_window.h"
#include "ui/list_box.h"

namespace qs::win {

struct ItemMessages {
    UINT reset;
    UINT initStorage;
    UINT add;
    UINT insert;
    UINT remove;
    UINT setChoice;
    UINT getChoice;
    WORD choiceChanged;
    LRESULT error;
};

inline constexpr ItemMessages kListBoxMessages{LB_RESETCONTENT, LB_INITSTORAGE, LB_ADDSTRING,  LB_INSERTSTRING, LB_DELETESTRING,
                                               LB_SETCURSEL,    LB_GETCURSEL,   LBN_SELCHANGE, LB_ERR};
inline constexpr ItemMessages kComboBoxMessages{CB_RESETCONTENT, CB_INITSTORAGE, CB_ADDSTRING,  CB_INSERTSTRING, CB_DELETESTRING,
                                                CB_SETCURSEL,    CB_GETCURSEL,   CBN_SELCHANGE, CB_ERR};

class ItemsWindow : public ControlWindow {
public:
    ItemsWindow(FormWindow& form, ui::ListBox& list, int id, const ItemMessages& messages)
        : ControlWindow(form, list, id), list_(list), messages_(messages) {}

    void OnCommand(WORD code) override;
    COLORREF DefaultTextColor() const override { return ::GetSysColor(COLOR_WINDOWTEXT); }
    HBRUSH DefaultBackground(HDC) override { return nullptr; }
    void ItemInserted(std::int32_t index) override;
    void ItemRemoved(std::int32_t index) override;
    void ItemChanged(std::int32_t index) override;
    void ItemsCleared() override;

protected:
    void OnChanged(ui::Property what) override;
    // Puts the text the window shows for an entry into `text`, whose room a
    // whole list's writing reuses from entry to entry.
    virtual void ItemText(std::int32_t index, std::wstring& text) const { text.assign(list_.List(index)); }
    // The window that takes the entries of a whole list, and the message
    // that adds one there.
    virtual HWND ListWindow(UINT& add) const {
        add = messages_.add;
        return Handle();
    }
    // Writes the whole list into a window just made.
    void WriteItems();

private:
    void WriteIndex();

    ui::ListBox& list_;
    const ItemMessages& messages_;
};

}  // namespace qs::win
