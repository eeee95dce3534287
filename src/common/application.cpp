#include "common/application.h"

namespace qs {

Application::Application(System& system) : sys(system), frmMain(*this), frmChoose(*this) {}

void Application::AttachBackend(ui::Backend* backend) {
    frmHid.SetBackend(backend);
    frmMain.SetBackend(backend);
    frmChoose.SetBackend(backend);
}

}  // namespace qs
