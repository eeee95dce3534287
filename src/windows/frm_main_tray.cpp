// The bar in the tray and back, dragged by its surface and kept in the work
// area, and the two once-a-second timers of the topmost state.
#include "common/application.h"
#include "common/failure.h"
#include "startup/always_on_top.h"
#include "windows/frm_main.h"
#include "windows/work_area_clamp.h"

namespace qs {

void FrmMain::PictureHideClick() {
    if (app_.OpenMenuIndex != -1) PictureMenuClick(app_.OpenMenuIndex);
    if (TimerOnTop.Enabled()) {
        TimerOnTop.SetEnabled(false);
        ActionAlwaysOnTopOff(app_);
    }
    TimerWatchOnTop.SetEnabled(true);
    TrayIconRecord = BarTrayIconData();
    app_.sys.TrayIconAdd(*this, TrayIconRecord);
    Hide();
}

void FrmMain::FormMouseMove(std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
    if (!Visible()) {
        // The tray icon was touched: the bar comes back and the icon goes.
        Show();
        app_.sys.TrayIconDelete(*this, TrayIconRecord);
        return;
    }
    if (button == ui::LeftButton) app_.sys.DragBySurface(*this);
    KeepInWorkArea(app_, *this, app_.MainWidth, MainHeight);
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

void FrmMain::TimerWatchOnTopTimer() {
    if (!Visible()) return;
    TimerWatchOnTop.SetEnabled(false);
    TimerOnTop.SetEnabled(app_.settings.OptionAlwaysOnTop != 0);
    FocusTextMain();
}

}  // namespace qs
