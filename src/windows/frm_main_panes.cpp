// Opening and closing the panes that hang from the bar, Help, the
// QuickLauncher, and the hidden button through which other windows click
// the bar's buttons.
#include "common/application.h"
#include "common/failure.h"
#include "startup/always_on_top.h"
#include "windows/frm_browse.h"
#include "windows/frm_choose.h"
#include "windows/frm_main.h"

namespace qs {

namespace {

// The items of the whole Launch List, added up in 16 bits.
std::int16_t LaunchListItemCount(Application& app) {
    std::int16_t sum = 0;
    for (const std::size_t group : {2, 0, 1, 3, 4}) {
        sum = ToInt16(sum + app.frmChoose.ComboListItemName(group).ListCount());
    }
    return sum;
}

void UndoPushedTop(Application& app) {
    if (app.SavedMainTop == -1) return;
    app.frmMain.SetTop(app.SavedMainTop);
    app.SavedMainTop = -1;
}

}  // namespace

void FrmMain::PictureMenuClick(std::int16_t& index) {
    // The button of the open pane closes it; any other opens its own.
    app_.OpenMenuIndex = (app_.OpenMenuIndex == index) ? std::int16_t{-1} : index;
    app_.frmBrowse.Hide();
    app_.frmBrowse.SetHeight(BrowseHeight);
    app_.frmChoose.Hide();
    UndoPushedTop(app_);
    FocusTextMain();
    const bool paneOpen = app_.OpenMenuIndex != -1;
    TimerOnTop.SetEnabled(!paneOpen && app_.settings.OptionAlwaysOnTop != 0);
    if (!paneOpen) return;

    // The pane stands over the bar, so the bar leaves the topmost band.
    if (app_.settings.OptionAlwaysOnTop != 0) ActionAlwaysOnTopOff(app_);
    if (app_.OpenMenuIndex == 2 && LaunchListItemCount(app_) < 1) {
        // An empty Launch List has nothing to show: refused without a word.
        app_.OpenMenuIndex = -1;
        app_.frmBrowse.Hide();
        app_.frmChoose.Hide();
        UndoPushedTop(app_);
        FocusTextMain();
        return;
    }
    if (app_.OpenMenuIndex < 2) {
        ActionSetBrowse(app_, app_.OpenMenuIndex);
    } else {
        ActionSetChoose(app_, app_.OpenMenuIndex);
    }
}

void FrmMain::CloseOpenPane() {
    if (app_.OpenMenuIndex == -1) return;
    app_.OpenMenuIndex = -1;
    app_.frmBrowse.Hide();
    app_.frmChoose.Hide();
    UndoPushedTop(app_);
    FocusTextMain();
}

void FrmMain::PictureHelpClick() {
    PictureNo.SetFocus();
    app_.HelpOpen = !app_.HelpOpen;
    if (app_.HelpOpen) {
        CloseOpenPane();
        app_.frmHelp.Show();
    } else {
        app_.frmHelp.Unload();
    }
}

void FrmMain::PictureShowQuickClick() {
    app_.QuickOpen = !app_.QuickOpen;
    FrmQuick& quick = app_.frmQuick;
    if (app_.QuickOpen) {
        std::int32_t top = quick.QuickTop;
        std::int32_t left = quick.QuickLeft;
        if (!quick.QuickPosKnown) {
            // Below the bar when it fits above the work area's bottom, else
            // above it; at the bar's Left unless that passes the right edge.
            const double tx = app_.sys.TwipsPerPixelX();
            const double ty = app_.sys.TwipsPerPixelY();
            top = (Top() + Height() + quick.Height()) / ty < app_.place.WorkAreaBottom ? Top() + Height()
                                                                                     : Top() - quick.Height();
            left = (Left() + quick.Width()) / tx < app_.place.WorkAreaRight
                       ? Left()
                       : app_.sys.TwipsPerPixelX() * app_.place.WorkAreaRight - quick.Width();
        }
        if (app_.OpenMenuIndex != -1) PictureMenuClick(app_.OpenMenuIndex);
        if (!QuickListShown && app_.settings.QuickDefaultItem != QuickNoGroup) {
            quick.QuickPendingGroup = app_.settings.QuickDefaultItem;
            quick.CommandQuickClick.SetValue(true);
            QuickListShown = true;
        }
        quick.Move(left, top, quick.Width(), quick.Height());
        quick.QuickTop = ToInt16(top);
        // Shown beside the bar without taking the keyboard from the Command
        // box.
        quick.Show();
    } else {
        quick.Hide();
    }
    PictureShowQuick.SetPicture(QuickRestPicture());
}

void FrmMain::CommandMainClickClick() {
    if (app_.PendingClick == -1) return;
    if (app_.PendingClick >= 0 && app_.PendingClick <= 4) {
        std::int16_t index = app_.PendingClick;
        PictureMenuClick(index);
    } else if (app_.PendingClick == 5) {
        PictureShowQuickClick();
    }
    app_.PendingClick = -1;
}

}  // namespace qs
