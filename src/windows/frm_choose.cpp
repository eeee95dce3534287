#include "windows/frm_choose.h"

#include "data/launch_list.h"

namespace qs {

FrmChoose::FrmChoose(Application& app)
    : ui::Form(L"frmChoose", ui::FormStyle::Borderless),
      ComboListItemName(*this, L"ComboListItemName", 5, true),
      ComboListItemPath(*this, L"ComboListItemPath", 5, false),
      app_(app) {
    for (std::int16_t group = 0; group < ComboListItemName.Count(); ++group) {
        ComboListItemName(group).SetVisible(false);
        ComboListItemPath(group).SetVisible(false);
    }
    // The pane's window is made when it first shows: the start only needs
    // its lists, which live in memory.
    SetWindowWaitsForShow(true);
    // It stands beside the bar: typing goes on in the Command box.
    SetTakesFocusWhenShown(false);
    LoadEvent = [this] { LaunchListLoad(app_); };
}

}  // namespace qs
