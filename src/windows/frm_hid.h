#pragma once
// The hidden holder window. It owns the two sides of the File, Folder and
// Program groups: the computer's items and the flash drive's items, which
// the list files are written from. It is never shown.
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/form.h"

namespace qs {

class FrmHid : public ui::Form {
public:
    FrmHid();

    // Index is the group: 0 File, 1 Folder, 2 Program. Names are sorted;
    // paths follow their names position by position.
    ui::ControlArray<ui::ComboBox> ComboHDDItemName;
    ui::ControlArray<ui::ComboBox> ComboHDDItemPath;
    ui::ControlArray<ui::ComboBox> ComboUSBItemName;
    ui::ControlArray<ui::ComboBox> ComboUSBItemPath;
};

}  // namespace qs
