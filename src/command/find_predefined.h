#pragma once
// Completion of predefined Launch Names while the user types. `code` is the
// box's first two characters as typed, `typed` the rest; `typed` is
// lower-cased in place.
#include <string>

namespace qs {

struct Application;

void ActionFindPanel(Application& app, std::wstring& code, std::wstring& typed);
void ActionFindSpecialApps(Application& app, std::wstring& code, std::wstring& typed);
void ActionFindSpecialFolder(Application& app, std::wstring& code, std::wstring& typed);
void ActionFindFeedbackMail(Application& app, std::wstring& code, std::wstring& typed);

}  // namespace qs
