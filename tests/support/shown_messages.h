#pragma once
// The dialogs shown during a test, in order, as the dialog backend recorded
// them.
#include <vector>

#include "test_app.h"

namespace qs::test {

inline const std::vector<MessageRequest>& ShownMessages(TestApp& t) { return t.dialogs.shown; }

inline bool BugShown(TestApp& t, const std::wstring& tag) {
    for (const auto& m : ShownMessages(t))
        if (m.entry == MessageEntry::Bug && m.key == tag) return true;
    return false;
}

}  // namespace qs::test
