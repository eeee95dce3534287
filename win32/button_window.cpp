#include "control_kinds.h"

namespace qs::win {

void ButtonWindow::Create() {
    // A hidden button is clicked by code only: its window, and the library
    // that draws it, wait until it shows.
    if (!button_.Shown() || Handle() != nullptr) return;
    CreateChild(L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP);
}

void ButtonWindow::OnChanged(ui::Property what) {
    if (what == ui::Property::Visible && button_.Shown() && Handle() == nullptr) Create();
}

void ButtonWindow::OnCommand(WORD code) {
    if (code == BN_CLICKED) button_.SetValue(true);
}

}  // namespace qs::win
