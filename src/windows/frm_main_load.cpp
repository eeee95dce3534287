// The bar's Load and Unload, and the exit button that unloads it.
#include <algorithm>

#include "common/application.h"
#include "data/active_family.h"
#include "data/control_data.h"
#include "data/launch_list.h"
#include "windows/frm_browse.h"
#include "windows/frm_main.h"

namespace qs {

void FrmMain::FormLoad() {
    // PictureNo only ever holds the focus: it shows no picture.
    PictureNo.SetPicture({});
    ImageApp.Move(BackWebLeft + 5550, 0, ImageApp.Width(), ImageApp.Height());
    PictureShowQuick.Move(BackMainLeft + 4615, 90, PictureShowQuick.Width(), PictureShowQuick.Height());
    PictureBackZero.Move(BackZeroLeft, 0, PictureBackZero.Width(), PictureBackZero.Height());
    PictureBackMain.Move(BackMainLeft, 0, PictureBackMain.Width(), PictureBackMain.Height());
    PictureBackWeb.Move(BackWebLeft, 0, PictureBackWeb.Width(), PictureBackWeb.Height());

    const Settings& s = app_.settings;
    WebPaneAtStart = s.OptionShowAddUrlBox != 0;
    if (WebPaneAtStart) {
        app_.MainWidth = MainWidthWeb;
    } else if (s.OptionStartMinimized == 1) {
        app_.MainWidth = MainWidthZero;
    } else {
        app_.MainWidth = MainWidthCommand;
    }
    LastWideWidth = app_.MainWidth;
    WebSavedLeft = -1;
    ZeroSavedLeft = -1;
    ApplyMainWidth();
    Move(s.MainLeft, s.MainTop, app_.MainWidth, MainHeight);

    LabelWebName.Move(LabelWebName.Left(), 24, LabelWebName.Width(), LabelWebName.Height());
    LabelWebURL.Move(LabelWebURL.Left(), 24, LabelWebURL.Width(), LabelWebURL.Height());

    const bool webBold = s.OptionAddUrlFontBold != 0;
    TextWebUrl.SetFont(0, webBold);
    TextWebName.SetFont(0, webBold);
    TextMain.SetFont(std::max<std::int16_t>(s.FontSizeSetting, 8), s.OptionMainFontBold != 0);

    SetTextMainQuietly(L"Quillstart");
    app_.PendingClick = -1;
}

void FrmMain::FormUnload() {
    // An end of the session may come before the lists are whole; the save
    // must never write half of them.
    LaunchListSettle(app_);
    // The Add Item pane's boxes set LastFolder, which the save writes.
    app_.frmBrowse.LoadBoxes();
    // The position is kept in 16 bits; a bar placed beyond their reach keeps
    // the last position that fitted rather than losing the whole save.
    if (Left() >= INT16_MIN && Left() <= INT16_MAX && Top() >= INT16_MIN && Top() <= INT16_MAX) {
        app_.settings.MainLeft = static_cast<std::int16_t>(Left());
        app_.settings.MainTop = static_cast<std::int16_t>(Top());
    }
    LaunchListSaveAtExit(app_, {[this] { ControlUSBDataSave(app_); }, [this] { ControlDataSave(app_); },
                                [this] { ControlComDataSave(app_); }});
    FamAASaveFamilyInfo(app_);
    app_.sys.EndProgram();
}

void FrmMain::PictureExitClick() { Unload(); }

}  // namespace qs
