#include "startup/always_on_top.h"

#include "common/application.h"
#include "data/report_bug.h"

namespace qs {

void ActionAlwaysOnTopOn(Application& app) {
    try {
        app.frmMain.SetTopMost(true);
    } catch (const std::exception&) {
        ReportBug(app, L"ActionAlwaysOnTopOn");
    }
}

void ActionAlwaysOnTopOff(Application& app) {
    try {
        app.frmMain.SetTopMost(false);
    } catch (const std::exception&) {
        ReportBug(app, L"ActionAlwaysOnTopOff");
    }
}

}  // namespace qs
