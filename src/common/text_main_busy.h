#pragma once
// TextMainBusy held up for one write of code: while it stands, TextMain's
// Change takes the new text for code's and does not auto-fill it. Leaving
// the scope lowers the flag on every path, a throw included, so a failure
// can never leave the bar deaf to the user's typing.
#include "common/application.h"

namespace qs {

class TextMainBusyScope {
public:
    explicit TextMainBusyScope(Application& app) : busy_(app.TextMainBusy) { busy_ = true; }
    ~TextMainBusyScope() { busy_ = false; }
    TextMainBusyScope(const TextMainBusyScope&) = delete;
    TextMainBusyScope& operator=(const TextMainBusyScope&) = delete;

private:
    bool& busy_;
};

}  // namespace qs
