// Opening a Launch List item from its panel: the pane closes first, then
// the item opens by its group's kind.
#include "command/launchers.h"
#include "common/application.h"
#include "startup/active_message.h"
#include "windows/choose_list_pane.h"
#include "windows/frm_choose.h"

namespace qs {

void LaunchListPane::ImageListOpenClick(std::int16_t index) {
    form_.ClosePane();

    ui::ComboBox& paths = form_.ComboListItemPath(index);
    const std::wstring path(paths.List(paths.ListIndex()));
    app_.MessageToShow = LaunchListItem(app_, index, path);
    if (!app_.MessageToShow.empty()) MessageBug(app_);
}

}  // namespace qs
