#pragma once
// The message system: the three entry points through which the program
// speaks to the user, each reading the key or failure tag in MessageToShow,
// the routine that fills and shows frmMessage, and the two replies.
#include <string>

namespace qs {

struct Application;

// An ordinary message; a key the table does not hold shows nothing.
void MessageProcess(Application& app);
// A fatal message: the program ends when it is dismissed. Returns only for
// a key that the fatal table does not hold.
void MessageEnd(Application& app);
// The report-this-bug dialog for a failure tag.
void MessageBug(Application& app);

// Fills frmMessage with a heading, a body, a button set ("OK", "YesNo",
// "OKCancel", "Cancel") and an input ("Input012" or "") and shows it
// modally; returns when a reply has closed it.
void MessageAAAct(Application& app, std::wstring& caption, std::wstring& body, std::wstring& buttons,
                  std::wstring& input);

// What the dialog's two buttons run.
void MessageReplyOK(Application& app);
void MessageReplyCancel(Application& app);

}  // namespace qs
