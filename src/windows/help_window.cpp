// Help as a window: closing it, its two links, and the drag by its surface
// within the work area.
#include "common/application.h"
#include "common/failure.h"
#include "common/maker.h"
#include "command/launchers.h"
#include "startup/active_message.h"
#include "windows/frm_help.h"
#include "windows/work_area_clamp.h"

namespace qs {

void FrmHelp::CloseHelp() {
    app_.HelpOpen = false;
    Unload();
}

void FrmHelp::LabelHelpExitClick() { CloseHelp(); }

void FrmHelp::LabelHelpOnlineClick() {
    CloseHelp();
    app_.MessageToShow = ActionProgramStartA(app_, maker::OnlineHelpPage);
    if (!app_.MessageToShow.empty()) MessageBug(app_);
}

void FrmHelp::LabelHelpExtraDClick() {
    app_.MessageToShow = ActionProgramStartA(app_, maker::WebSite);
    // MessageProcess knows no failure tag, so a site that did not open
    // shows nothing.
    if (!app_.MessageToShow.empty()) MessageProcess(app_);
}

void FrmHelp::FormMouseMove(std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
    if (button == ui::LeftButton) app_.sys.DragBySurface(*this);
    KeepInWorkArea(app_, *this, Width(), Height());
    // Any move over the bare surface fixes the place for the rest of the
    // run, dragged or not.
    HelpPosKnown = true;
    HelpTop = ToInt16(Top());
    HelpLeft = ToInt16(Left());
}

}  // namespace qs
