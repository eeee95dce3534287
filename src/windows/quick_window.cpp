// The QuickLauncher as a window: its two heights and two widths, the drag
// by its surface within the work area, and the button that asks the bar to
// hide it.
#include "common/application.h"
#include "common/failure.h"
#include "windows/frm_quick.h"
#include "windows/work_area_clamp.h"

namespace qs {

void FrmQuick::ImageQuickHeightClick() {
    QuickItemClicked = -1;
    const std::int32_t height = Height() == QuickHeightHalf ? QuickHeightFull : QuickHeightHalf;
    SetHeight(height);
    // Below the bar the window keeps the Top it was shown at, pulled up when
    // the full height would pass the work area's bottom; above the bar it
    // goes to the top of the screen.
    std::int32_t top = 0;
    if (Top() > app_.frmMain.Top()) {
        top = QuickTop;
        const double ty = app_.sys.TwipsPerPixelY();
        if (height == QuickHeightFull && ToInt16(QuickTop + QuickHeightFull) / ty > app_.place.WorkAreaBottom) {
            top = app_.sys.TwipsPerPixelY() * app_.place.WorkAreaBottom - QuickHeightFull;
        }
    }
    SetTop(top);
    ImageQuickHeight.SetPicture(height == QuickHeightFull ? app_.theme.ImageQuickOpen : app_.theme.ImageQuickClosed);
}

void FrmQuick::ImageQuickZeroClick() {
    SetWidth(Width() == QuickWidthWide ? QuickWidthZero : QuickWidthWide);
    const bool wide = Width() == QuickWidthWide;
    ImageQuickZero.SetPicture(ZeroRestPicture());
    ImageQuickZero.SetToolTipText(wide ? L"Minimize On Screen" : L"QuickLauncher");
}

void FrmQuick::FormMouseMove(std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
    if (button == ui::LeftButton) app_.sys.DragBySurface(*this);
    KeepInWorkArea(app_, *this, Width(), Height());
    // Any move over the bare surface fixes the place for the rest of the
    // run, dragged or not.
    QuickPosKnown = true;
    QuickTop = ToInt16(Top());
    QuickLeft = ToInt16(Left());
}

void FrmQuick::ImageHideQuickClick() {
    // The bar's own button hides the window, so QuickOpen and its picture
    // stay right.
    app_.PendingClick = 5;
    app_.frmMain.CommandMainClick.SetValue(true);
}

}  // namespace qs
