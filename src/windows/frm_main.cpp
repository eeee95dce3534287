#include "windows/frm_main.h"

#include <cmath>

#include "common/application.h"
#include "common/failure.h"
#include "data/active_family.h"
#include "data/control_data.h"
#include "data/launch_list.h"
#include "startup/always_on_top.h"

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
    UnloadEvent = [this] { FormUnload(); };
    TimerOnTop.Tick = [this] { TimerOnTopTimer(); };
    TextMain.KeyPress = [this](std::int16_t& key) { TextMainKeyPress(key); };
    TextMain.Change = [this] { TextMainChange(); };
    TextMain.DblClick = [this] { TextMainDblClick(); };
    CommandMainClick.Click = [this] { CommandMainClickClick(); };
}

void FrmMain::FormLoad() {
    app_.MainWidth = MainWidthCommand;
    LastWideWidth = MainWidthCommand;
    ApplyMainWidth();
    Move(app_.settings.MainLeft, app_.settings.MainTop, Width(), MainHeight);
    SetTextMainQuietly(L"Quillstart");
    app_.PendingClick = -1;
}

void FrmMain::TimerOnTopTimer() {
    ActionAlwaysOnTopOn(app_);
    if (TextMain.Text().empty()) return;
    // Text left standing is wiped after a minute of text-bearing time, added
    // up over the run.
    IdleTicks = ToInt16(IdleTicks + 1);
    if (IdleTicks > 60) {
        IdleTicks = 0;
        SetTextMainQuietly(L"");
    }
}

void FrmMain::FormUnload() {
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
