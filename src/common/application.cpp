#include "common/application.h"

namespace qs {

Application::Application(System& system) : sys(system), frmMain(*this), frmBrowse(*this), frmChoose(*this), frmMessage(*this) {}

void Application::AttachBackend(ui::Backend* backend) {
    frmHid.SetBackend(backend);
    frmMain.SetBackend(backend);
    frmBrowse.SetBackend(backend);
    frmChoose.SetBackend(backend);
    frmMessage.SetBackend(backend);
}

}  // namespace qs
