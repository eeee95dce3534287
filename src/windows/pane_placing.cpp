#include "windows/pane_placing.h"

#include "common/application.h"
#include "common/failure.h"

namespace qs {

void PlacePaneByTheBar(Application& app, ui::Form& pane) {
    FrmMain& bar = app.frmMain;
    app.SavedMainTop = -1;
    pane.SetLeft(ToInt16(bar.Left() + 600));
    const std::int16_t t = ToInt16(bar.Top());
    const std::int16_t h = ToInt16(bar.Height());
    const std::int16_t p = ToInt16(pane.Height());
    const std::int32_t ty = app.sys.TwipsPerPixelY();
    const std::int16_t b = ToInt16(ty * app.place.WorkAreaBottom);
    if (ToInt16(ToInt16(ToInt16(t + h) + p) + 120) <= b) {
        pane.SetTop(ToInt16(ToInt16(t + h) + 120));
        return;
    }
    const std::int16_t above = ToInt16(t - ToInt16(p + 120));
    const std::int32_t workTop = app.place.WorkAreaTop;
    // A work area that starts at or above the screen's top stands as it is;
    // one below it is turned into twips.
    const std::int16_t w = ToInt16(workTop <= 0 ? workTop : workTop * ty);
    if (above < w) {
        app.SavedMainTop = t;
        bar.SetTop(w);
        pane.SetTop(ToInt16(ToInt16(w + h) + 120));
        return;
    }
    pane.SetTop(above);
}

}  // namespace qs
