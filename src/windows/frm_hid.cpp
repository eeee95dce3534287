#include "windows/frm_hid.h"

namespace qs {

FrmHid::FrmHid()
    : ui::Form(L"frmHid", ui::FormStyle::Borderless),
      ComboHDDItemName(*this, L"ComboHDDItemName", 3, true),
      ComboHDDItemPath(*this, L"ComboHDDItemPath", 3, false),
      ComboUSBItemName(*this, L"ComboUSBItemName", 3, true),
      ComboUSBItemPath(*this, L"ComboUSBItemPath", 3, false) {
    // The holder is never shown: its lists live in memory and need no window.
    SetWindowWaitsForShow(true);
    for (std::int16_t group = 0; group < ComboHDDItemName.Count(); ++group) {
        ComboHDDItemName(group).SetVisible(false);
        ComboHDDItemPath(group).SetVisible(false);
        ComboUSBItemName(group).SetVisible(false);
        ComboUSBItemPath(group).SetVisible(false);
    }
}

}  // namespace qs
