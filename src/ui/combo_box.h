#pragma once
// A drop-down list: the list model of ListBox shown as a closed box that
// opens on its entries. Its text can't be typed into, only chosen from the
// list; every key reaches KeyPress first, where a handler may swallow it.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/list_box.h"

namespace qs::ui {

class ComboBox : public ListBox {
public:
    ComboBox(Form& owner, std::wstring name, bool sorted)
        : ListBox(owner, ControlKind::ComboBox, std::move(name), sorted) {}

    // The key the user typed; setting it to 0 swallows it.
    std::function<void(std::int16_t& key)> KeyPress;
    void UserKeyPress(std::int16_t& key) {
        if (KeyPress) KeyPress(key);
    }

protected:
    // For the kinds that are drop-downs with lists of their own (the drive box).
    ComboBox(Form& owner, ControlKind kind, std::wstring name, bool sorted)
        : ListBox(owner, kind, std::move(name), sorted) {}
};

}  // namespace qs::ui
