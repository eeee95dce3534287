#include "windows/frm_browse.h"

#include "common/application.h"
#include "data/report_bug.h"
#include "windows/pane_placing.h"

namespace qs {

FrmBrowse::FrmBrowse(Application& app) : ui::Form(L"frmBrowse", ui::FormStyle::Dialog), app_(app) {
    Move(0, 0, BrowseWidth, BrowseHeight);
}

void ActionSetBrowse(Application& app, std::int16_t& mode) {
    try {
        FrmBrowse& pane = app.frmBrowse;
        app.SavedMainTop = -1;
        app.frmChoose.Hide();
        pane.SetCaption(mode == 0 ? L"Add Item" : L"Open");
        PlacePaneByTheBar(app, pane);
        if (mode != -1) {
            pane.Show();
        } else {
            pane.Hide();
        }
        if (app.frmMain.TextMain.Visible()) app.frmMain.TextMain.SetFocus();
    } catch (const std::exception&) {
        ReportBug(app, L"ActionSetBrowse");
    }
}

}  // namespace qs
