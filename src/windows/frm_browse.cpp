#include "windows/frm_browse.h"

#include "common/application.h"
#include "windows/press_pictures.h"

namespace qs {

FrmBrowse::FrmBrowse(Application& app)
    : ui::Form(L"frmBrowse", ui::FormStyle::Dialog),
      PictureBrowse(*this, L"PictureBrowse"),
      PictureAddCancel(*this, L"PictureAddCancel"),
      LabelAddCancel(*this, L"LabelAddCancel", L"Close"),
      FrameHideWindow(*this, L"FrameHideWindow", L"", false),
      PictureNo(*this, L"PictureNo"),
      FrameBrowseOption(*this, L"FrameBrowseOption", L"Select Item To Add :"),
      OptionBrowse(*this, L"OptionBrowse", 6),
      DriveWork(*this, L"DriveWork", app.sys),
      TimerFindPath(*this, L"TimerFindPath", 100),
      FrameFindPath(*this, L"FrameFindPath", L"Add Running Program :"),
      PictureFindPath(*this, L"PictureFindPath"),
      LabelFindPath(*this, L"LabelFindPath", L"Find Program Path"),
      FrameAddToList(*this, L"FrameAddToList", L"Type Launch Name Here :"),
      TextAddName(*this, L"TextAddName"),
      PictureAddOK(*this, L"PictureAddOK"),
      FrameAddPath(*this, L"FrameAddPath", L"Program Path:"),
      TextAddPath(*this, L"TextAddPath"),
      LabelAddPath(*this, L"LabelAddPath", L"Do Not Type - Select Program"),
      DirWork(*this, L"DirWork", app.sys),
      FileWork(*this, L"FileWork", app.sys),
      FrameSelect(*this, L"FrameSelect"),
      PictureSelectOK(*this, L"PictureSelectOK"),
      LabelOpen(*this, L"LabelOpen", L"Open"),
      LabelAddSelectA(*this, L"LabelAddSelectA", L"Single click to select"),
      LabelBrowseBack(*this, L"LabelBrowseBack", L"Add Item :"),
      app_(app) {
    Move(0, 0, BrowseWidth, BrowseHeight);
    SetWindowWaitsForShow(true);
    // It stands beside the bar: typing goes on in the Command box.
    SetTakesFocusWhenShown(false);
    Layout();
    WireEvents();
}

void FrmBrowse::Layout() {
    // The background picture only measures the face: the form's own picture
    // paints it.
    PictureBrowse.SetVisible(false);
    LabelBrowseBack.Move(240, 180, 3300, 315);
    LabelBrowseBack.SetFont(10, true);
    LabelAddCancel.Move(3930, 225, 600, 255);
    PictureAddCancel.Move(4590, 165, 330, 330);
    PictureAddCancel.SetToolTipText(L"Close");
    FrameHideWindow.Move(120, 540, 4920, 90);
    // Takes the focus away from the boxes; it has no size and no look.
    PictureNo.Move(0, 0, 0, 0);

    // The options (Add Item) and the Open button (Open) share one place.
    FrameBrowseOption.Move(240, 660, 4800, 1020);
    const wchar_t* captions[] = {L"Program", L"File", L"Folder", L"Email", L"Web URL", L"Pic"};
    for (std::int16_t i = 0; i < 6; ++i) {
        ui::OptionButton& option = OptionBrowse(i);
        option.SetCaption(captions[i]);
        FrameBrowseOption.Place(option, 180 + (i % 3) * 1560, 330 + (i / 3) * 345, 1440, 285);
    }
    OptionBrowse(5).SetVisible(false);
    FrameSelect.Move(240, 660, 4800, 1020);
    FrameSelect.Place(LabelAddSelectA, 180, 420, 3000, 255);
    FrameSelect.Place(PictureSelectOK, 3600, 300, 420, 420);
    FrameSelect.Place(LabelOpen, 4110, 390, 600, 255);

    DriveWork.Move(240, 1800, 4800, 315);
    DriveWork.SetToolTipText(L"Select Drive");
    DirWork.Move(240, 2235, 4800, 1560);
    DirWork.SetToolTipText(L"Double Click To Select");
    FileWork.Move(240, 3915, 4800, 1560);
    FileWork.SetToolTipText(L"Single click to select");
    FileWork.SetPattern(L"*.exe");

    FrameAddPath.Move(240, 5640, 4800, 900);
    FrameAddPath.Place(TextAddPath, 180, 270, 4440, 315);
    FrameAddPath.Place(LabelAddPath, 180, 615, 4440, 225);
    FrameAddToList.Move(240, 6645, 4800, 660);
    FrameAddToList.Place(TextAddName, 180, 255, 3900, 315);
    FrameAddToList.Place(PictureAddOK, 4230, 195, 390, 390);
    PictureAddOK.SetToolTipText(L"OK");
    // No item yet: no name can be typed and nothing confirmed.
    TextAddName.SetEnabled(false);
    PictureAddOK.SetEnabled(false);
    PictureSelectOK.SetEnabled(false);
    FrameFindPath.Move(240, 7410, 4800, 600);
    FrameFindPath.Place(PictureFindPath, 180, 195, 330, 330);
    FrameFindPath.Place(LabelFindPath, 600, 240, 3000, 255);
    PictureFindPath.SetToolTipText(
        L"Left click on \"Find Program Path\" green button, keep the mouse button down, place cursor on the open "
        L"Window of the Program that you want to add and release mouse button. Program file path should appear in "
        L"\"Program File Path\" Text box.");
}

void FrmBrowse::WireEvents() {
    LoadEvent = [this] { FormLoad(); };
    OptionBrowse.OnEach(&ui::OptionButton::Click, [this](std::int16_t i) { OptionBrowseClick(i); });
    DriveWork.Change = [this] { DriveWorkChange(); };
    DirWork.Change = [this] { DirWorkChange(); };
    FileWork.Click = [this] { FileWorkClick(); };
    TextAddName.Change = [this] { TextAddNameChange(); };
    TextAddPath.Change = [this] { TextAddPathChange(); };
    TextAddName.KeyPress = [this](std::int16_t& key) { TextAddKeyPress(key); };
    TextAddPath.KeyPress = [this](std::int16_t& key) { TextAddKeyPress(key); };
    PictureAddOK.Click = [this] { PictureAddOKClick(); };
    SetPressPictures(
        PictureAddOK, [this] { return app_.theme.ImageZeroOver; },
        [this] { return PictureAddOK.Enabled() ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroBlank; });
    PictureSelectOK.Click = [this] { PictureSelectOKClick(); };
    SetPressPictures(
        PictureSelectOK, [this] { return app_.theme.ImageZeroOver; },
        [this] { return PictureSelectOK.Enabled() ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroBlank; });
    PictureAddCancel.Click = [this] { PictureAddCancelClick(); };
    PictureFindPath.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureFindPathMouseDown();
    };
    PictureFindPath.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureFindPathMouseUp();
    };
    TimerFindPath.Tick = [this] { TimerFindPathTick(); };
    PictureAddCancel.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureAddCancelMouse();
    };
    PictureAddCancel.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureAddCancelMouse();
    };
    PictureAddCancel.KeyPress = [this](std::int16_t& key) {
        if (key == 13) PictureAddCancelClick();
    };
    LabelAddCancel.Click = [this] { PictureAddCancelClick(); };
    LabelAddCancel.MouseMove = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        LabelAddCancelMouseMove();
    };
    FrameHideWindow.MouseMove = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        FrameHideWindowMouseMove();
    };
}

void FrmBrowse::SetOKButton(ui::PictureBox& button, bool enabled) {
    button.SetEnabled(enabled);
    button.SetPicture(enabled ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroBlank);
}

}  // namespace qs
