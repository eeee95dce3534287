#include "control_kinds.h"

namespace qs::win {

void LabelWindow::Create() {
    CreateChild(L"STATIC", SS_LEFT | SS_NOPREFIX);
    if (Handle() != nullptr) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

void LabelWindow::OnChanged(ui::Property what) {
    if (what == ui::Property::Text && Handle() != nullptr) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

}  // namespace qs::win
