#include "startup/always_on_top.h"

#include "common/application.h"
#include "startup/active_message.h"

namespace qs {

void ActionAlwaysOnTopOn(Application& app) {
    try {
        app.frmMain.SetTopMost(true);
    } catch (const std::exception&) {
        app.MessageToShow = L"Quillstart:Bug:ActionAlwaysOnTopOn";
        MessageBug(app);
    }
}

void ActionAlwaysOnTopOff(Application& app) {
    try {
        app.frmMain.SetTopMost(false);
    } catch (const std::exception&) {
        app.MessageToShow = L"Quillstart:Bug:ActionAlwaysOnTopOff";
        MessageBug(app);
    }
}

}  // namespace qs
