// TextMainBusy stands only while code writes TextMain, and falls on every
// way out of that write.
#include <gtest/gtest.h>

#include <stdexcept>

#include "common/text_main_busy.h"
#include "data/list_add.h"
#include "shown_messages.h"
#include "test_app.h"

namespace {

using qs::test::TestApp;

TEST(TextMainBusyScope, RaisesTheFlagForTheScopeAndLowersItAfter) {
    TestApp t;
    bool seen = false;
    {
        const qs::TextMainBusyScope busy(t.app);
        seen = t.app.TextMainBusy;
    }
    EXPECT_TRUE(seen);
    EXPECT_FALSE(t.app.TextMainBusy);
}

TEST(TextMainBusyScope, AThrowInsideTheGuardedWriteLeavesTheFlagDown) {
    TestApp t;
    bool busyInChange = false;
    t.app.frmMain.TextMain.Change = [&] {
        busyInChange = t.app.TextMainBusy;
        throw std::runtime_error("a failing handler");
    };
    EXPECT_THROW(t.app.frmMain.SetTextMainQuietly(L"p-x"), std::runtime_error);
    EXPECT_TRUE(busyInChange);
    EXPECT_FALSE(t.app.TextMainBusy);
}

TEST(TextMainBusyScope, AFailingChangeWhileAnAddEmptiesTheBarLeavesTheBarTyping) {
    TestApp t;
    t.app.frmMain.SetTextMainQuietly(L"w-x");
    t.app.frmMain.TextMain.Change = [] { throw std::runtime_error("a failing handler"); };
    qs::ActionListAddWeb(t.app, L"news", L"http://news.example/");
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionListAddWeb"));
    EXPECT_FALSE(t.app.TextMainBusy);
}

}  // namespace
