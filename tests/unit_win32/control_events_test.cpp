// Every event a control declares reaches it from its real window: each test
// sends the message a person's input makes to the control's child window
// and sees the control's event fire.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "backend_test_form.h"
#include "dpi.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "win32_backend.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::Win32BackendTest;

struct MouseEvent {
    int count = 0;
    std::int16_t button = -1;
    std::int16_t shift = -1;
    std::int32_t x = -1;
    std::int32_t y = -1;
};

TEST_F(Win32BackendTest, ThePointerMovingOverALabelIsItsMouseMoveInTwips) {
    const HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    MouseEvent seen;
    form.Caption.MouseMove = [&](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        seen = {seen.count + 1, button, shift, x, y};
    };
    ::SendMessageW(label, WM_MOUSEMOVE, MK_LBUTTON | MK_SHIFT, MAKELPARAM(10, 5));
    const UINT dpi = qs::win::WindowDpi(window);
    EXPECT_EQ(seen.count, 1);
    EXPECT_EQ(seen.button, qs::ui::LeftButton);
    EXPECT_EQ(seen.shift, 1);
    EXPECT_EQ(seen.x, qs::win::PixelsToTwips(10, dpi));
    EXPECT_EQ(seen.y, qs::win::PixelsToTwips(5, dpi));
    ::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(seen.count, 2);
    EXPECT_EQ(seen.button, 0);
}

class PictureForm : public qs::ui::Form {
public:
    PictureForm() : Form(L"frmPictureTest", qs::ui::FormStyle::Borderless), Close(*this, L"Picture1") {
        SetCaption(L"QuillstartPictureTest");
        Move(1500, 1500, 4000, 1500);
        Close.Move(120, 120, 480, 480);
    }
    qs::ui::PictureBox Close;
};

class PictureEventsTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
        form.Load();
        form.Show();
        Pump();
        picture = ::FindWindowExW(backend.WindowOf(form), nullptr, qs::win::kPictureClass, nullptr);
        ASSERT_NE(picture, nullptr);
    }
    void TearDown() override { form.Unload(); }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    PictureForm form;
    HWND picture = nullptr;
};

TEST_F(PictureEventsTest, EnterAndSpaceOnAPictureThatHoldsTheFocusAreItsKeyPress) {
    std::wstring keys;
    form.Close.KeyPress = [&](std::int16_t& key) { keys += static_cast<wchar_t>(key); };
    form.Close.SetFocus();
    ASSERT_EQ(::GetFocus(), picture);
    // As a person types them: key down, turned into characters by the loop.
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_SPACE}}) {
        const LPARAM scan = static_cast<LPARAM>(::MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC)) << 16;
        ::PostMessageW(picture, WM_KEYDOWN, key, scan | 1);
        ::PostMessageW(picture, WM_KEYUP, key, scan | 1 | (LPARAM{3} << 30));
    }
    Pump();
    EXPECT_EQ(keys, L"\r ");
}

TEST_F(PictureEventsTest, APressAndReleaseOverThePictureAreMouseDownMouseUpAndClick) {
    std::wstring events;
    form.Close.MouseDown = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"D"; };
    form.Close.MouseUp = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"U"; };
    form.Close.Click = [&] { events += L"C"; };
    MouseEvent moved;
    form.Close.MouseMove = [&](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        moved = {moved.count + 1, button, shift, x, y};
    };
    ::SendMessageW(picture, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    ::SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    ::SendMessageW(picture, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(moved.count, 1);
    EXPECT_EQ(events, L"DUC");
}

TEST_F(Win32BackendTest, AHandlerThatThrowsEndsOnlyItsOwnEventAndTheNextOneStillFires) {
    const HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    const HWND button = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
    ASSERT_NE(label, nullptr);
    ASSERT_NE(button, nullptr);
    int moves = 0;
    form.Caption.MouseMove = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        if (++moves == 1) throw std::runtime_error("handler failed");
    };
    int clicks = 0;
    form.Button.Click = [&] {
        if (++clicks == 1) throw std::runtime_error("handler failed");
    };
    // A label's window is hooked; a button's click comes through the form's window.
    EXPECT_NO_THROW(::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(2, 2)));
    EXPECT_NO_THROW(::SendMessageW(button, BM_CLICK, 0, 0));
    ::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    ::SendMessageW(button, BM_CLICK, 0, 0);
    EXPECT_EQ(moves, 2);
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(::IsWindow(label));
}

TEST_F(PictureEventsTest, AKeyPressThatThrowsLeavesThePictureTakingKeys) {
    int presses = 0;
    form.Close.KeyPress = [&](std::int16_t&) {
        if (++presses == 1) throw std::runtime_error("handler failed");
    };
    EXPECT_NO_THROW(::SendMessageW(picture, WM_CHAR, VK_RETURN, 1));
    ::SendMessageW(picture, WM_CHAR, VK_RETURN, 1);
    EXPECT_EQ(presses, 2);
}

TEST_F(PictureEventsTest, ThePicturesWindowTextIsItsTipOrElseItsAccessibleName) {
    using qs::test::TextOf;
    EXPECT_EQ(TextOf(picture), L"");
    form.Close.SetAccessibleName(L"Close");
    EXPECT_EQ(TextOf(picture), L"Close");
    form.Close.SetToolTipText(L"Close the pane");
    EXPECT_EQ(TextOf(picture), L"Close the pane");
    form.Close.SetAccessibleName(L"Shut");
    EXPECT_EQ(TextOf(picture), L"Close the pane");
    form.Close.SetToolTipText(L"");
    EXPECT_EQ(TextOf(picture), L"Shut");
}

TEST_F(Win32BackendTest, AListsWindowTextIsItsAccessibleNameFromTheMomentItIsMade) {
    form.HiddenList.SetAccessibleName(L"Launch Names");
    form.HiddenList.SetVisible(true);
    const HWND list = ::FindWindowExW(window, nullptr, L"LISTBOX", nullptr);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(qs::test::TextOf(list), L"Launch Names");
    form.HiddenList.SetAccessibleName(L"Names");
    EXPECT_EQ(qs::test::TextOf(list), L"Names");
}

}  // namespace
