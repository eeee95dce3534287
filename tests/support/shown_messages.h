#pragma once
// What the message entry points were asked to show during a test, in order.
#include <vector>

#include "test_app.h"

namespace qs::test {

inline std::vector<MessageRequest> ShownMessages(TestApp& t) { return t.app.messageRequests; }

inline bool BugShown(TestApp& t, const std::wstring& tag) {
    for (const auto& m : ShownMessages(t))
        if (m.entry == MessageEntry::Bug && m.key == tag) return true;
    return false;
}

}  // namespace qs::test
