// The QuickLauncher's Load, and which group buttons its lists allow.
#include "common/application.h"
#include "windows/frm_quick.h"

namespace qs {

void FrmQuick::FormLoad() {
    // The real place is set by the bar before each show.
    Move(0, 0, QuickWidthWide, QuickHeightFull);
    QuickPendingGroup = -1;
    QuickGroup = app_.settings.QuickDefaultItem;
    // The Preferences pane's edit copy starts from the saved group as well.
    app_.settings.QuickDefaultEdit = app_.settings.QuickDefaultItem;
    QuickGroupNames = {L"File", L"Directory (Folder)", L"Program", L"Email", L"Web URL"};
    ShowGroupsWithItems();
    for (std::int16_t i = 0; i < QuickPageSize; ++i) {
        ui::PictureBox& button = ImageQuick(i);
        button.Move(PictureQuickBack.Left() + 156 + 360 * i, PictureQuickBack.Top() + 60, button.Width(),
                    button.Height());
    }
}

void FrmQuick::ShowGroupsWithItems() {
    bool anyItem = false;
    for (std::int16_t g = 0; g < ImageQuickChoice.Count(); ++g) {
        const bool hasItems = GroupHasItems(g);
        ImageQuickChoice(g).SetVisible(hasItems);
        anyItem = anyItem || hasItems;
    }
    app_.frmMain.PictureShowQuick.SetEnabled(anyItem);
}

}  // namespace qs
