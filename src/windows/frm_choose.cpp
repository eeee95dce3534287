#include "windows/frm_choose.h"

#include "data/launch_list.h"

namespace qs {

FrmChoose::FrmChoose(Application& app) : ui::Form(L"frmChoose", ui::FormStyle::Borderless), app_(app) {
    for (std::size_t group = 0; group < ComboListItemName.size(); ++group) {
        ComboListItemName[group] = std::make_unique<ui::ListBox>(*this, L"ComboListItemName", true);
        ComboListItemPath[group] = std::make_unique<ui::ListBox>(*this, L"ComboListItemPath", false);
        ComboListItemName[group]->SetVisible(false);
        ComboListItemPath[group]->SetVisible(false);
    }
    // The pane's window is made when it first shows: the start only needs
    // its lists, which live in memory.
    SetWindowWaitsForShow(true);
    LoadEvent = [this] { LaunchListLoad(app_); };
}

}  // namespace qs
