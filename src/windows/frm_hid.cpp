#include "windows/frm_hid.h"

namespace qs {

FrmHid::FrmHid() : ui::Form(L"frmHid", ui::FormStyle::Borderless) {
    // The holder is never shown: its lists live in memory and need no window.
    SetWindowWaitsForShow(true);
    for (std::size_t group = 0; group < ComboHDDItemName.size(); ++group) {
        ComboHDDItemName[group] = std::make_unique<ui::ListBox>(*this, L"ComboHDDItemName", true);
        ComboHDDItemPath[group] = std::make_unique<ui::ListBox>(*this, L"ComboHDDItemPath", false);
        ComboUSBItemName[group] = std::make_unique<ui::ListBox>(*this, L"ComboUSBItemName", true);
        ComboUSBItemPath[group] = std::make_unique<ui::ListBox>(*this, L"ComboUSBItemPath", false);
        ComboHDDItemName[group]->SetVisible(false);
        ComboHDDItemPath[group]->SetVisible(false);
        ComboUSBItemName[group]->SetVisible(false);
        ComboUSBItemPath[group]->SetVisible(false);
    }
}

}  // namespace qs
