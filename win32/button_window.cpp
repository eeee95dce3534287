#include "control_kinds.h"

namespace qs::win {

void ButtonWindow::Create() { CreateChild(L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP); }

void ButtonWindow::OnCommand(WORD code) {
    if (code == BN_CLICKED) button_.SetValue(true);
}

}  // namespace qs::win
