// The bar in the tray and back, dragged by its surface and kept in the work
// area, and the two once-a-second timers of the topmost state.
#include "common/application.h"
#include "common/failure.h"
#include "startup/always_on_top.h"
#include "windows/frm_main.h"

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
    ClampToWorkArea();
}

void FrmMain::ClampToWorkArea() {
    const ProgramPlace& p = app_.place;
    const std::int32_t tx = app_.sys.TwipsPerPixelX();
    const std::int32_t ty = app_.sys.TwipsPerPixelY();
    // The top limit is worked out with the horizontal ratio, as the bar
    // always has.
    const std::int32_t topLimit = p.WorkAreaTop == 0 ? 0 : ToInt16(p.WorkAreaTop * tx);
    const std::int32_t leftLimit = p.WorkAreaLeft == 0 ? 0 : ToInt16(p.WorkAreaLeft * tx);
    const std::int32_t bottomLimit = ToInt16(ty * p.WorkAreaBottom - MainHeight);
    const std::int32_t rightLimit = ToInt16(tx * p.WorkAreaRight - app_.MainWidth);
    if (Left() < leftLimit) {
        SetLeft(leftLimit);
    } else if (Left() > rightLimit) {
        SetLeft(rightLimit);
    }
    if (Top() < topLimit) {
        SetTop(topLimit);
    } else if (Top() > bottomLimit) {
        SetTop(bottomLimit);
    }
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
