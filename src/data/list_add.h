#pragma once
// The checks an item passes on its way into the Launch List, and the add of
// a Web URL item from the bar's web pane.
#include <string>

#include "ui/list_box.h"

namespace qs {

struct Application;

// "" or "MessagePathAlreadyListed": the path is compared exactly with each
// entry of `paths`; on a match the name at that position is kept for the
// message's text.
std::wstring ActionConfirmAddPath(Application& app, const std::wstring& path, ui::ListBox& paths, ui::ListBox& names);
// "" or "MessageNameAlreadyListed": the name is compared with each entry of
// `names` without regard to case.
std::wstring ActionConfirmAddName(Application& app, const std::wstring& name, ui::ListBox& names);
// Adds a Web URL item to the merged lists and empties the web boxes and
// TextMain.
void ActionListAddWeb(Application& app, const std::wstring& name, const std::wstring& url);

}  // namespace qs
