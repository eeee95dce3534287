#include "control_kinds.h"

namespace qs::win {

void CheckBoxWindow::Create() {
    CreateChild(L"BUTTON", BS_CHECKBOX | WS_TABSTOP);
    if (Handle() == nullptr) return;
    WriteCaption();
    WriteValue();
}

void CheckBoxWindow::OnChanged(ui::Property what) {
    if (Handle() == nullptr) return;
    if (what == ui::Property::Text) WriteCaption();
    if (what == ui::Property::Value) WriteValue();
}

void CheckBoxWindow::WriteCaption() { ::SetWindowTextW(Handle(), box_.Caption().c_str()); }

void CheckBoxWindow::WriteValue() {
    ::SendMessageW(Handle(), BM_SETCHECK, box_.Value() != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
}

void CheckBoxWindow::OnCommand(WORD code) {
    if (code == BN_CLICKED) box_.UserClicked();
}

}  // namespace qs::win
