// A QuickLauncher button launches its item at one click, without the
// Command run.
#include "command/launchers.h"
#include "common/application.h"
#include "common/failure.h"
#include "startup/active_message.h"
#include "windows/frm_quick.h"

namespace qs {

void FrmQuick::ImageQuickClick(std::int16_t index) {
    QuickItemClicked = index;
    const std::wstring path(app_.frmChoose.ComboListItemPath(QuickGroup).List(ToInt16(QuickFirst + index)));
    app_.MessageToShow = LaunchListItem(app_, QuickGroup, path);
    // A button clicked once stays gone until a page or group change draws
    // it again.
    ImageQuick(index).SetVisible(false);
    ImageQuick(index).SetPicture(BlankPicture());
    if (!app_.MessageToShow.empty()) MessageBug(app_);
}

}  // namespace qs
