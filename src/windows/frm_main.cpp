#include "windows/frm_main.h"

#include <cmath>

#include "common/application.h"

namespace qs {

FrmMain::FrmMain(Application& app)
    : ui::Form(L"frmMain", ui::FormStyle::Borderless),
      TextMain(*this, L"TextMain"),
      CommandMainClick(*this, L"CommandMainClick"),
      TimerOnTop(*this, L"TimerOnTop", 1000),
      app_(app) {
    SetCaption(L"Quillstart");
    Move(0, 0, MainWidthCommand, MainHeight);
    // TextMain sits 120 twips into the main strip, which starts at 600.
    TextMain.Move(720, 0, 1812, 372);
    CommandMainClick.Move(7200, 0, 372, 252);
    CommandMainClick.SetVisible(false);

    LoadEvent = [this] { FormLoad(); };
    TextMain.KeyPress = [this](std::int16_t& key) { TextMainKeyPress(key); };
    TextMain.Change = [this] { TextMainChange(); };
    TextMain.DblClick = [this] { TextMainDblClick(); };
    CommandMainClick.Click = [this] { CommandMainClickClick(); };
}

void FrmMain::FormLoad() {
    app_.MainWidth = MainWidthCommand;
    LastWideWidth = MainWidthCommand;
    ApplyMainWidth();
    SetTextMainQuietly(L"Quillstart");
}

void FrmMain::SetTextMainQuietly(const std::wstring& text) {
    // Cleared on every path out, so a failure inside the nested Change can
    // never leave the guard standing.
    struct Busy {
        bool& flag;
        explicit Busy(bool& f) : flag(f) { flag = true; }
        ~Busy() { flag = false; }
    } busy(app_.TextMainBusy);
    TextMain.SetText(text);
}

void FrmMain::ApplyMainWidth() {
    SetWidth(app_.MainWidth);
    if (app_.MainWidth != 0) {
        const double perPixel = app_.sys.TwipsPerPixelX();
        app_.MainWidthPixels = static_cast<std::int32_t>(std::lround(app_.MainWidth / perPixel));
    }
}

void FrmMain::TextMainDblClick() { SetTextMainQuietly(L""); }

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

void FrmMain::PictureMenuClick(std::int16_t& index) {
    // The button of the open pane closes it; any other opens its own.
    app_.OpenMenuIndex = (app_.OpenMenuIndex == index) ? std::int16_t{-1} : index;
}

void FrmMain::PictureShowQuickClick() { app_.QuickOpen = !app_.QuickOpen; }

}  // namespace qs
