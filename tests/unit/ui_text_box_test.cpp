#include <gtest/gtest.h>

#include "common/failure.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/list_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"

namespace {

using qs::ui::Form;
using qs::ui::FormStyle;
using qs::ui::TextBox;

struct Box : ::testing::Test {
    Form form{L"frmTest", FormStyle::Borderless};
    TextBox box{form, L"TextTest"};
    int changes = 0;
    std::vector<std::int16_t> keys;
    void SetUp() override {
        box.Change = [this] { ++changes; };
        box.KeyPress = [this](std::int16_t& key) { keys.push_back(key); };
    }
};

TEST_F(Box, CodeWriteFiresChangeInsideTheWrite) {
    bool sawNewText = false;
    box.Change = [&] { sawNewText = box.Text() == L"abc"; };
    box.SetText(L"abc");
    EXPECT_TRUE(sawNewText);
}

TEST_F(Box, WritingTheSameTextFiresNoChange) {
    box.SetText(L"x");
    box.SetText(L"x");
    EXPECT_EQ(changes, 1);
}

TEST_F(Box, TypedKeyRunsKeyPressBeforeChange) {
    std::vector<std::string> order;
    box.KeyPress = [&](std::int16_t&) { order.push_back("key"); };
    box.Change = [&] { order.push_back("change"); };
    box.TypeKey(L'a');
    EXPECT_EQ(order, (std::vector<std::string>{"key", "change"}));
}

TEST_F(Box, SwallowedKeyLeavesTheText) {
    box.KeyPress = [](std::int16_t& key) { key = 0; };
    box.TypeText(L"abc");
    EXPECT_EQ(box.Text(), L"");
    EXPECT_EQ(changes, 0);
}

TEST_F(Box, TypingReplacesTheSelection) {
    box.SetText(L"p-myPlayer");
    box.SetSelStart(3);
    box.SetSelLength(7);
    box.TypeKey(L'u');
    EXPECT_EQ(box.Text(), L"p-mu");
    EXPECT_EQ(box.SelStart(), 4);
}

TEST_F(Box, TypingOverASelectionOfTheSameCharacterFiresNoChange) {
    box.SetText(L"abc");
    changes = 0;
    box.SetSelStart(1);
    box.SetSelLength(1);
    box.TypeKey(L'b');
    EXPECT_EQ(box.Text(), L"abc");
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 0);
    // The same key over a different selection of the same length changes it.
    box.SetSelStart(0);
    box.SetSelLength(1);
    box.TypeKey(L'b');
    EXPECT_EQ(box.Text(), L"bbc");
    EXPECT_EQ(changes, 1);
}

TEST_F(Box, ChangeOfATypedKeySeesTheNewTextAndCaret) {
    box.SetText(L"ac");
    box.SetSelStart(1);
    std::wstring seen;
    std::int32_t caret = -1;
    box.Change = [&] {
        seen = box.Text();
        caret = box.SelStart();
    };
    box.TypeKey(L'b');
    EXPECT_EQ(seen, L"abc");
    EXPECT_EQ(caret, 2);
}

TEST_F(Box, BackspaceRemovesSelectionOrCharacterBeforeCaret) {
    box.SetText(L"abcd");
    box.SetSelStart(2);
    box.SetSelLength(2);
    box.TypeKey(8);
    EXPECT_EQ(box.Text(), L"ab");
    box.SetSelStart(2);
    box.TypeKey(8);
    EXPECT_EQ(box.Text(), L"a");
}

TEST_F(Box, BackspaceInEmptyBoxFiresNoChange) {
    box.TypeKey(8);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(keys, (std::vector<std::int16_t>{8}));
}

TEST_F(Box, EnterAndEscReachKeyPressButDoNotEditASingleLineBox) {
    box.SetText(L"ab");
    changes = 0;
    box.TypeKey(13);
    box.TypeKey(27);
    EXPECT_EQ(box.Text(), L"ab");
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(keys, (std::vector<std::int16_t>{13, 27}));
}

TEST_F(Box, DeleteSkipsKeyPress) {
    box.SetText(L"ab");
    box.SetSelStart(0);
    box.PressDelete();
    EXPECT_EQ(box.Text(), L"b");
    EXPECT_TRUE(keys.empty());
}

TEST_F(Box, SelectionIsClampedToTheText) {
    box.SetText(L"abc");
    box.SetSelStart(10);
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    box.SetSelLength(10);
    EXPECT_EQ(box.SelLength(), 2);
}

TEST(CommandButton, SettingValueClicksSynchronously) {
    Form form{L"f", FormStyle::Borderless};
    qs::ui::CommandButton button{form, L"CommandX"};
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    button.SetValue(true);
    EXPECT_EQ(clicks, 1);
    button.SetValue(false);
    EXPECT_EQ(clicks, 1);
}

TEST(Timer, TicksOnlyWhileEnabled) {
    Form form{L"f", FormStyle::Borderless};
    qs::ui::Timer timer{form, L"TimerX", 100};
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    timer.Fire();
    EXPECT_EQ(ticks, 0);
    timer.SetEnabled(true);
    timer.Fire();
    EXPECT_EQ(ticks, 1);
}

TEST(FormLife, LoadFiresOnceAndUnloadHides) {
    Form form{L"f", FormStyle::Borderless};
    int loads = 0;
    int unloads = 0;
    form.LoadEvent = [&] { ++loads; };
    form.UnloadEvent = [&] { ++unloads; };
    form.Show();
    form.Show();
    EXPECT_EQ(loads, 1);
    EXPECT_TRUE(form.Visible());
    form.Unload();
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(form.IsLoaded());
}

TEST(ListBoxSorted, InsertsByTheCaseRuleAfterEqualItems) {
    Form form{L"f", FormStyle::Borderless};
    qs::ui::ListBox list{form, L"ComboX", true};
    list.AddItem(L"notes");
    list.AddItem(L"Notepad");
    list.AddItem(L"alpha");
    const auto at = list.AddItem(L"NOTES");
    EXPECT_EQ(at, 3);
    EXPECT_EQ(list.Items(), (std::vector<std::wstring>{L"alpha", L"Notepad", L"notes", L"NOTES"}));
}

TEST(ListBoxSorted, OutOfRangeIndexThrows) {
    Form form{L"f", FormStyle::Borderless};
    qs::ui::ListBox list{form, L"ComboX", false};
    list.AddItem(L"a");
    EXPECT_THROW(list.List(1), qs::SubscriptOutOfRange);
    EXPECT_THROW(list.RemoveItem(-1), qs::SubscriptOutOfRange);
}

}  // namespace
