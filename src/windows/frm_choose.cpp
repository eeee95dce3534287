#include "windows/frm_choose.h"

#include "common/application.h"
#include "data/launch_list.h"
#include "theme/holders.h"
#include "windows/press_pictures.h"

namespace qs {

FrmChoose::FrmChoose(Application& app)
    : ui::Form(L"frmChoose", ui::FormStyle::Borderless),
      ComboListItemName(*this, L"ComboListItemName", 5, true),
      ComboListItemPath(*this, L"ComboListItemPath", 5, false),
      PictureList(*this, L"PictureList", L"", false),
      PictureCode(*this, L"PictureCode", L"", false),
      PictureTool(*this, L"PictureTool", L"", false),
      PictureHideList(*this, L"PictureHideList"),
      PictureHideCode(*this, L"PictureHideCode"),
      PictureHideTool(*this, L"PictureHideTool"),
      List(app, *this),
      Code(app, *this),
      Preferences(app, *this),
      app_(app) {
    for (ui::PictureBox* hide : {&PictureHideList, &PictureHideCode, &PictureHideTool}) {
        hide->Click = [this] { PictureHideClick(); };
        SetPressPictures(
            *hide, [this] { return OneOfTheme(ui::PictureSlot::ImageMStar, app_.settings.ThemeIndex); },
            [this] { return OneOfTheme(ui::PictureSlot::ImageMX, app_.settings.ThemeIndex); });
        hide->KeyPress = [this, hide](std::int16_t& key) { PictureButtonKeyPress(*hide, key); };
    }
    // The pane's window is made when it first shows: the start only needs
    // its lists, which live in memory.
    SetWindowWaitsForShow(true);
    // It stands beside the bar: typing goes on in the Command box.
    SetTakesFocusWhenShown(false);
    LoadEvent = [this] {
        ChooseSetUp();
        Preferences.SetEditCopies();
        LaunchListLoad(app_);
    };
}

void FrmChoose::ChooseSetUp() {
    Move(Left(), Top(), ChooseWidth, ChooseHeight);
    struct Pane {
        ui::Frame& picture;
        ui::PictureBox& hide;
    };
    for (const Pane& pane : {Pane{PictureList, PictureHideList}, Pane{PictureCode, PictureHideCode},
                             Pane{PictureTool, PictureHideTool}}) {
        pane.picture.Move(120, 120, 5160, 8412);
        pane.picture.Place(pane.hide, 4680, 105, 330, 330);
        pane.hide.SetToolTipText(L"Close");
    }
    List.SetUp();
    Preferences.SetUp();
    Code.SetUp();
    // The panes' own areas come last in the tab order: an area lies
    // beneath what it holds.
    std::int16_t next = 1000;
    for (ui::Control* hide : {&PictureHideList, &PictureHideCode, &PictureHideTool}) hide->SetTabIndex(next++);
    for (ui::Control* area : {&PictureList, &PictureCode, &PictureTool}) area->SetTabIndex(next++);
}

void FrmChoose::PictureHideClick() {
    app_.PendingClick = app_.OpenMenuIndex;
    app_.frmMain.CommandMainClick.SetValue(true);
}

void FrmChoose::ClosePane() {
    Hide();
    app_.OpenMenuIndex = -1;
    if (app_.SavedMainTop != -1) {
        app_.frmMain.SetTop(app_.SavedMainTop);
        app_.SavedMainTop = -1;
    }
    ui::TextBox& box = app_.frmMain.TextMain;
    if (app_.frmMain.Visible() && box.Visible() && box.Enabled()) box.SetFocus();
    app_.frmMain.TimerOnTop.SetEnabled(app_.settings.OptionAlwaysOnTop != 0);
}

void FrmChoose::PictureButtonKeyPress(ui::PictureBox& button, std::int16_t& key) {
    if (key == 27) {
        key = 0;
        PictureHideClick();
    } else if (key == 13 || key == 32) {
        key = 0;
        button.Press();
    }
}

}  // namespace qs
