#include "common/application.h"

#include "data/list_load_pending.h"

namespace qs {

Application::Application(System& system) : sys(system), frmMain(*this), frmBrowse(*this), frmChoose(*this), frmQuick(*this), frmHelp(*this), frmMessage(*this) {}

Application::~Application() = default;

void Application::AttachBackend(ui::Backend* windows) {
    backend = windows;
    frmHid.SetBackend(windows);
    frmMain.SetBackend(windows);
    frmBrowse.SetBackend(windows);
    frmChoose.SetBackend(windows);
    frmQuick.SetBackend(windows);
    frmHelp.SetBackend(windows);
    frmMessage.SetBackend(windows);
}

}  // namespace qs
