// The bar's controls: where each lies, what its tooltip says, and which
// handler each event reaches.
#include "windows/frm_main.h"

#include <cmath>

#include "common/application.h"
#include "common/text_main_busy.h"

namespace qs {

TrayIconData BarTrayIconData() {
    TrayIconData data;
    data.cbSize = 88;
    data.uID = 1;
    // Message, icon and tip.
    data.uFlags = 7;
    // WM_MOUSEMOVE: any movement over the icon arrives as the form's own
    // mouse move.
    data.uCallbackMessage = 512;
    const char tip[] = "Quillstart";
    for (std::size_t i = 0; i < sizeof(tip); ++i) data.szTip[i] = tip[i];
    return data;
}

FrmMain::FrmMain(Application& app)
    : ui::Form(L"frmMain", ui::FormStyle::Borderless),
      CommandMainClick(*this, L"CommandMainClick"),
      PictureZero(*this, L"PictureZero"),
      TextMain(*this, L"TextMain"),
      PictureMenu(*this, L"PictureMenu", 5),
      PictureHelp(*this, L"PictureHelp"),
      PictureWeb(*this, L"PictureWeb"),
      PictureShowQuick(*this, L"PictureShowQuick"),
      PictureHide(*this, L"PictureHide"),
      PictureExit(*this, L"PictureExit"),
      LabelWebURL(*this, L"LabelWebURL", L"URL"),
      TextWebUrl(*this, L"TextWebUrl"),
      LabelWebName(*this, L"LabelWebName", L"Launch Name"),
      TextWebName(*this, L"TextWebName"),
      ImageApp(*this, L"ImageApp"),
      PictureBackZero(*this, L"PictureBackZero"),
      PictureBackMain(*this, L"PictureBackMain"),
      PictureBackWeb(*this, L"PictureBackWeb"),
      PictureNo(*this, L"PictureNo"),
      TimerMouseOver(*this, L"TimerMouseOver", 100),
      TimerOnTop(*this, L"TimerOnTop", 1000),
      TimerWatchOnTop(*this, L"TimerWatchOnTop", 1000),
      app_(app) {
    SetCaption(L"Quillstart");
    Move(0, 0, MainWidthCommand, MainHeight);
    // The window is made at the first showing, once the theme has given the
    // bar its look: a picture the theme makes a strip never gets a window.
    SetWindowWaitsForShow(true);
    PlaceControls();
    WireEvents();
}

void FrmMain::PlaceControls() {
    CommandMainClick.Move(7200, 0, 372, 252);
    CommandMainClick.SetVisible(false);

    PictureBackZero.Move(BackZeroLeft, 0, 480, 372);
    PictureZero.Move(BackZeroLeft + 144, 72, 168, 168);
    PictureZero.SetToolTipText(L"Minimize Window On Screen");

    PictureBackMain.Move(BackMainLeft, 0, 5640, 372);
    TextMain.Move(BackMainLeft + 120, 0, 1812, 372);
    TextMain.SetAcceptsTextDrop(true);
    // The first keys of a start with full lists are taken at once.
    TextMain.SetKeysPassInputWork(true);
    static const wchar_t* const menuTips[] = {
        L"Add Items To Launch List",
        L"Browse To Open File | Run Program",
        L"Show|HIde   Launch List",
        L"Show|Hide   Command Code|Predefined Launch Names",
        L"Show|Hide    Preferences Window",
    };
    for (std::int16_t i = 0; i < PictureMenu.Count(); ++i) {
        PictureMenu(i).Move(BackMainLeft + 2040 + 360 * i, 30, 235, 235);
        PictureMenu(i).SetToolTipText(menuTips[i]);
    }
    PictureHelp.Move(BackMainLeft + 3840, 30, 235, 235);
    PictureHelp.SetToolTipText(L"Show|Hide Help");
    PictureWeb.Move(BackMainLeft + 4200, 30, 235, 235);
    PictureWeb.SetToolTipText(L"Show|Hide   Add Web URL Window");
    PictureShowQuick.Move(BackMainLeft + 4615, 90, 120, 120);
    PictureShowQuick.SetToolTipText(L"Show|Hide QuickLauncher");
    PictureHide.Move(BackMainLeft + 4920, 30, 235, 235);
    PictureHide.SetToolTipText(L"Hide Window In Tray");
    PictureExit.Move(BackMainLeft + 5280, 30, 235, 235);
    PictureExit.SetToolTipText(L"Exit");

    PictureBackWeb.Move(BackWebLeft, 0, 5940, 372);
    LabelWebURL.Move(BackWebLeft + 120, 24, 372, 192);
    TextWebUrl.Move(BackWebLeft + 600, 0, 2400, 300);
    TextWebUrl.SetAcceptsTextDrop(true);
    LabelWebName.Move(BackWebLeft + 3240, 24, 1140, 192);
    TextWebName.Move(BackWebLeft + 4440, 0, 1092, 300);
    TextWebName.SetVisible(false);
    ImageApp.Move(BackWebLeft + 5550, 0, 336, 336);
    ImageApp.SetPicture(ui::HolderPicture(ui::PictureSlot::ImageApp, 0));

    PictureNo.Move(960, 0, 360, 372);
    TimerMouseOver.SetEnabled(true);
}

void FrmMain::WireEvents() {
    LoadEvent = [this] { FormLoad(); };
    UnloadEvent = [this] { FormUnload(); };
    MouseMove = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        FormMouseMove(button, shift, x, y);
    };
    TimerOnTop.Tick = [this] { TimerOnTopTimer(); };
    TimerWatchOnTop.Tick = [this] { TimerWatchOnTopTimer(); };
    TimerMouseOver.Tick = [this] { TimerMouseOverTimer(); };
    TextMain.KeyPress = [this](std::int16_t& key) { TextMainKeyPress(key); };
    TextMain.Change = [this] { TextMainChange(); };
    TextMain.DblClick = [this] { TextMainDblClick(); };
    CommandMainClick.Click = [this] { CommandMainClickClick(); };
    PictureMenu.OnEach(&ui::PictureBox::Click, [this](std::int16_t i) { PictureMenuClick(i); });
    PictureHelp.Click = [this] { PictureHelpClick(); };
    PictureWeb.Click = [this] { PictureWebClick(); };
    PictureZero.Click = [this] { PictureZeroClick(); };
    PictureZero.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { PictureZeroMouseDown(); };
    PictureZero.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { PictureZeroMouseUp(); };
    PictureShowQuick.Click = [this] { PictureShowQuickClick(); };
    PictureShowQuick.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureShowQuickMouseDown();
    };
    PictureShowQuick.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        PictureShowQuickMouseUp();
    };
    PictureHide.Click = [this] { PictureHideClick(); };
    PictureExit.Click = [this] { PictureExitClick(); };
    TextWebUrl.Change = [this] { TextWebUrlChange(); };
    TextWebUrl.KeyPress = [this](std::int16_t& key) { TextWebKeyPress(key); };
    TextWebName.KeyPress = [this](std::int16_t& key) { TextWebKeyPress(key); };
}

void FrmMain::SetTextMainQuietly(const std::wstring& text) {
    const TextMainBusyScope busy(app_);
    TextMain.SetText(text);
}

void FrmMain::ApplyMainWidth() {
    SetWidth(app_.MainWidth);
    if (app_.MainWidth != 0) {
        const double perPixel = app_.sys.TwipsPerPixelX();
        app_.MainWidthPixels = static_cast<std::int32_t>(std::lround(app_.MainWidth / perPixel));
    }
}

void FrmMain::FocusTextMain() {
    if (TextMain.Visible()) TextMain.SetFocus();
}

void FrmMain::TextMainDblClick() { SetTextMainQuietly(L""); }

}  // namespace qs
