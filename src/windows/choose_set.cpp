// Opening the window of three panes with one of them in front, and hiding it.
#include "common/application.h"
#include "data/report_bug.h"
#include "windows/frm_choose.h"
#include "windows/pane_placing.h"

namespace qs {

void ActionSetChoose(Application& app, std::int16_t& pane) {
    try {
        FrmChoose& window = app.frmChoose;
        app.SavedMainTop = -1;
        app.frmBrowse.Hide();
        if (pane != -1) {
            window.Load();
            if (pane == 2) window.List.Prepare();
            // A fresh opening shows no note; a pending change still shows
            // its call to Save.
            if (pane == 4) window.Preferences.FrameOptionSave(0).SetVisible(false);
            window.PictureList.SetVisible(pane == 2);
            window.PictureCode.SetVisible(pane == 3);
            window.PictureTool.SetVisible(pane == 4);
            // The window is named after the pane in front, for the task
            // list and screen readers.
            window.SetCaption(pane == 2 ? L"Launch List" : pane == 3 ? L"Code And Command" : L"Preferences");
            PlacePaneByTheBar(app, window);
            window.Show();
        } else {
            window.Hide();
        }
        ui::TextBox& box = app.frmMain.TextMain;
        if (app.frmMain.Visible() && box.Visible() && box.Enabled()) box.SetFocus();
    } catch (const std::exception&) {
        ReportBug(app, L"ActionSetChoose");
    }
}

}  // namespace qs
