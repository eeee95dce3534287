#include "control_kinds.h"

namespace qs::win {

void ListBoxWindow::Create() {
    CreateChild(L"LISTBOX", WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, WS_EX_CLIENTEDGE);
    if (Handle() == nullptr) return;
    WriteItems();
}

}  // namespace qs::win
