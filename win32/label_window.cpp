#include "control_kinds.h"

namespace qs::win {

void LabelWindow::Create() {
    CreateChild(L"STATIC", SS_LEFT | SS_NOPREFIX | SS_NOTIFY);
    if (Handle() != nullptr) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

void LabelWindow::OnCommand(WORD code) {
    if (code == STN_CLICKED) label_.UserClick();
}

void LabelWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Text) ::SetWindowTextW(Handle(), label_.Caption().c_str());
}

}  // namespace qs::win
