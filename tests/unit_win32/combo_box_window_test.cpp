// The drop-down peer on a real COMBOBOX: the whole list written once when
// the window is made, then item by item; the choice mirrored both ways; the
// typed keys through KeyPress.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <utility>

#include "ui/combo_box.h"
#include "ui/form.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;

class ComboForm : public qs::ui::Form {
public:
    ComboForm() : Form(L"frmComboTest", qs::ui::FormStyle::Borderless), Names(*this, L"Combo1", false) {
        SetCaption(L"QuillstartComboTest");
        Move(1500, 1500, 6000, 3000);
        Names.Move(120, 120, 3000, 315);
    }
    qs::ui::ComboBox Names;
};

class ComboBoxWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
    }
    void TearDown() override { form.Unload(); }

    void LoadShown() {
        form.Load();
        form.Show();
        Pump();
        combo = ::FindWindowExW(backend.WindowOf(form), nullptr, L"COMBOBOX", nullptr);
        ASSERT_NE(combo, nullptr);
    }

    std::wstring ItemOf(int index) const {
        const auto length = ::SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
        if (length == CB_ERR) return L"<none>";
        std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
        ::SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        return text;
    }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    ComboForm form;
    HWND combo = nullptr;
};

TEST_F(ComboBoxWindowTest, AHiddenDropDownHasNoWindowUntilItShowsThenHoldsTheWholeList) {
    form.Names.SetVisible(false);
    for (int i = 0; i < 32767; ++i) form.Names.AddItem(L"Name " + std::to_wstring(i));
    form.Load();
    form.Show();
    Pump();
    const HWND window = backend.WindowOf(form);
    EXPECT_EQ(::FindWindowExW(window, nullptr, L"COMBOBOX", nullptr), nullptr);
    form.Names.SetVisible(true);
    combo = ::FindWindowExW(window, nullptr, L"COMBOBOX", nullptr);
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 32767);
    EXPECT_EQ(ItemOf(0), L"Name 0");
    EXPECT_EQ(ItemOf(32766), L"Name 32766");
    form.Names.RemoveItem(100);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 32766);
    EXPECT_EQ(ItemOf(99), L"Name 99");
    EXPECT_EQ(ItemOf(100), L"Name 101");
}

// The whole list reaches the box's own list window in one go: the box
// knows every entry, shows the chosen one closed, steps through them by
// key, and follows later changes as before.
TEST_F(ComboBoxWindowTest, AWholeListWrittenAtTheMakingIsTheBoxsOwnInEveryWay) {
    for (const wchar_t* name : {L"alpha", L"beta", L"gamma", L"delta"}) form.Names.AddItem(name);
    form.Names.SetListIndex(1);
    LoadShown();
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
    EXPECT_EQ(::SendMessageW(info.hwndList, LB_GETCOUNT, 0, 0), 4);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 4);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCURSEL, 0, 0), 1);
    wchar_t shown[32] = {};
    ::GetWindowTextW(combo, shown, 32);
    EXPECT_STREQ(shown, L"beta");
    EXPECT_EQ(::SendMessageW(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"delta")), 3);
    ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(form.Names.ListIndex(), 2);
    ::GetWindowTextW(combo, shown, 32);
    EXPECT_STREQ(shown, L"gamma");
    form.Names.AddItem(L"epsilon");
    EXPECT_EQ(ItemOf(4), L"epsilon");
    EXPECT_EQ(::SendMessageW(info.hwndList, LB_GETCOUNT, 0, 0), 5);
}

TEST_F(ComboBoxWindowTest, TheListIsFollowedItemByItem) {
    form.Names.AddItem(L"one");
    LoadShown();
    form.Names.AddItem(L"zero", 0);
    form.Names.AddItem(L"two");
    ASSERT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(ItemOf(0), L"zero");
    EXPECT_EQ(ItemOf(2), L"two");
    form.Names.SetList(1, L"One");
    EXPECT_EQ(ItemOf(1), L"One");
    form.Names.Clear();
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 0);
}

TEST_F(ComboBoxWindowTest, TheChoiceIsMirroredBothWays) {
    for (const wchar_t* name : {L"alpha", L"beta", L"gamma"}) form.Names.AddItem(name);
    LoadShown();
    form.Names.SetListIndex(2);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCURSEL, 0, 0), 2);
    int clicks = 0;
    form.Names.Click = [&] { ++clicks; };
    // Up moves the choice in the closed box as a person's key does.
    ::SendMessageW(combo, WM_KEYDOWN, VK_UP, 0);
    EXPECT_EQ(form.Names.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ComboBoxWindowTest, TypedKeysReachKeyPressFirstAndASwallowedKeyGoesNoFurther) {
    for (const wchar_t* name : {L"alpha", L"beta", L"gamma"}) form.Names.AddItem(name);
    LoadShown();
    form.Names.SetListIndex(0);
    std::int16_t seen = 0;
    form.Names.KeyPress = [&](std::int16_t& key) {
        seen = key;
        if (key == L'g') key = 0;
    };
    // A typed letter chooses the first entry it starts, unless swallowed.
    ::SendMessageW(combo, WM_CHAR, L'g', 0);
    EXPECT_EQ(seen, L'g');
    EXPECT_EQ(::SendMessageW(combo, CB_GETCURSEL, 0, 0), 0);
    ::SendMessageW(combo, WM_CHAR, L'b', 0);
    EXPECT_EQ(seen, L'b');
    EXPECT_EQ(::SendMessageW(combo, CB_GETCURSEL, 0, 0), 1);
    EXPECT_EQ(form.Names.ListIndex(), 1);
}

TEST_F(ComboBoxWindowTest, TheDroppedListHasRoomForSeveralRows) {
    form.Names.AddItem(L"alpha");
    LoadShown();
    ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    const auto rowHeight = ::SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0);
    RECT field{};
    ::GetWindowRect(combo, &field);
    RECT whole{};
    ::SendMessageW(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&whole));
    EXPECT_GE((whole.bottom - whole.top) - (field.bottom - field.top), rowHeight * 10);
    ::SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
}

TEST_F(ComboBoxWindowTest, TheBoxAndItsDroppedListTakeTheControlsColours) {
    form.Names.AddItem(L"alpha");
    form.Names.SetBackColor(qs::ui::Rgb(10, 20, 30));
    form.Names.SetForeColor(qs::ui::Rgb(200, 210, 220));
    LoadShown();
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
    const HWND window = backend.WindowOf(form);
    for (const auto& [message, part] : {std::pair{UINT{WM_CTLCOLOREDIT}, combo},
                                        std::pair{UINT{WM_CTLCOLORLISTBOX}, info.hwndList}}) {
        const HDC dc = ::GetDC(part);
        const auto brush =
            ::SendMessageW(window, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(part));
        EXPECT_NE(brush, 0);
        EXPECT_EQ(::GetBkColor(dc), RGB(10, 20, 30));
        EXPECT_EQ(::GetTextColor(dc), RGB(200, 210, 220));
        ::ReleaseDC(part, dc);
    }
}

}  // namespace
