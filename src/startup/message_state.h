#pragma once
// The state of the one message at a time that the program shows: what the
// dialog is to say, how it ends, and the provision for a do-not-show box.
#include <string>

namespace qs {

struct MessageState {
    // Heading, body, button set ("OK", "YesNo", "OKCancel", "Cancel") and
    // input ("Input012" for the name boxes, else "") of the dialog.
    std::wstring MessageCaption;
    std::wstring MessageBody;
    std::wstring MessageButtons;
    std::wstring MessageInput;
    // A fatal message is on screen; never cleared, the program ends.
    bool MessageWillEnd = false;
    // The dialog is a bug report: its "Yes" sends the report.
    bool MessageIsBug = false;
    // The name prompt of the first start is up before the bar exists.
    bool MessageBeforeMainWindow = false;
    // Launch Name of the item found already listed.
    std::wstring DuplicateItemName;
    // The do-not-show box: nothing sets these, so the box never shows.
    bool DoNotShowVisible = false;
    bool DoNotShowChecked = false;
};

}  // namespace qs
