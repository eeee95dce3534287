#pragma once
// The hidden holder window. It owns the two sides of the File, Folder and
// Program groups: the computer's items and the flash drive's items, which
// the list files are written from. It is never shown.
#include <array>
#include <memory>

#include "ui/form.h"
#include "ui/list_box.h"

namespace qs {

class FrmHid : public ui::Form {
public:
    FrmHid();

    // Index is the group: 0 File, 1 Folder, 2 Program. Names are sorted;
    // paths follow their names position by position.
    std::array<std::unique_ptr<ui::ListBox>, 3> ComboHDDItemName;
    std::array<std::unique_ptr<ui::ListBox>, 3> ComboHDDItemPath;
    std::array<std::unique_ptr<ui::ListBox>, 3> ComboUSBItemName;
    std::array<std::unique_ptr<ui::ListBox>, 3> ComboUSBItemPath;
};

}  // namespace qs
