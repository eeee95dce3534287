// Real windows for a dialog form: a face without caption or close box,
// picture buttons that paint their slot and report presses, a check box, a
// read-only message box, labels in their own font, the tab order, and a
// modal loop that a picture's click ends.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "dialog_look.h"
#include "dpi.h"
#include "handles.h"
#include "ui/check_box.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "win32_backend.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::TextOf;

class DialogForm : public qs::ui::Form {
public:
    DialogForm()
        : Form(L"frmDialogTest", qs::ui::FormStyle::Dialog),
          Title(*this, L"LabelTitle", L"New Message"),
          Message(*this, L"TextMessage", true),
          First(*this, L"TextFirst"),
          Second(*this, L"TextSecond"),
          Again(*this, L"CheckAgain", L"Do not show this message again."),
          Image(*this, L"ImageOK"),
          Tick(*this, L"Timer1", 30) {
        SetCaption(L"QuillstartDialogTest");
        Move(1500, 1500, 5400, 4500);
        Title.Move(240, 180, 4920, 300);
        Message.Move(240, 600, 4920, 1500);
        Message.SetLocked(true);
        First.Move(240, 2250, 1500, 330);
        Second.Move(1920, 2250, 1500, 330);
        Again.Move(240, 2700, 4920, 300);
        Image.Move(1200, 3300, 480, 480);
    }
    qs::ui::Label Title;
    qs::ui::TextBox Message;
    qs::ui::TextBox First;
    qs::ui::TextBox Second;
    qs::ui::CheckBox Again;
    qs::ui::PictureBox Image;
    qs::ui::Timer Tick;
};

LPARAM At(int x, int y) { return MAKELPARAM(x, y); }

int Blue(COLORREF c) { return GetBValue(c); }
int Red(COLORREF c) { return GetRValue(c); }

class Win32DialogTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
        form.Load();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
        picture = ::FindWindowExW(window, nullptr, qs::win::kPictureClass, nullptr);
        ASSERT_NE(picture, nullptr);
        check = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
        ASSERT_NE(check, nullptr);
        dpi = qs::win::WindowDpi(window);
        form.Image.MouseDown = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
            events.push_back(L"down " + std::to_wstring(button) + L" " + std::to_wstring(shift) + L" " +
                             std::to_wstring(x) + L"," + std::to_wstring(y));
        };
        form.Image.MouseUp = [this](std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
            events.push_back(L"up " + std::to_wstring(button));
        };
        form.Image.Click = [this] { events.push_back(L"click"); };
    }
    void TearDown() override {
        if (form.IsLoaded()) form.Unload();
        Pump();
    }
    // The colour in the middle of the picture as it is on screen.
    COLORREF PictureCentre() {
        ::InvalidateRect(picture, nullptr, FALSE);
        ::UpdateWindow(picture);
        RECT r{};
        ::GetClientRect(picture, &r);
        qs::win::WindowDc dc(picture);
        return ::GetPixel(dc.Get(), r.right / 2, r.bottom / 2);
    }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    DialogForm form;
    HWND window = nullptr;
    HWND picture = nullptr;
    HWND check = nullptr;
    UINT dpi = USER_DEFAULT_SCREEN_DPI;
    std::vector<std::wstring> events;
};

TEST_F(Win32DialogTest, DialogHasNeitherCaptionNorCloseBox) {
    wchar_t className[64] = {};
    ::GetClassNameW(window, className, 64);
    EXPECT_STREQ(className, qs::win::kDialogClass);
    const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_STYLE);
    EXPECT_EQ(style & WS_CAPTION, 0);
    EXPECT_EQ(style & WS_SYSMENU, 0);
    EXPECT_NE(style & WS_POPUP, 0);
    EXPECT_EQ(TextOf(window), L"QuillstartDialogTest");
}

TEST_F(Win32DialogTest, LabelsAndBoxesTakeTheDialogColours) {
    HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    qs::win::WindowDc dc(label);
    const auto brush = reinterpret_cast<HBRUSH>(
        ::SendMessageW(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(label)));
    LOGBRUSH info{};
    ASSERT_NE(::GetObjectW(brush, sizeof(info), &info), 0);
    EXPECT_EQ(info.lbColor, RGB(0xF3, 0xF5, 0xF8));
    HWND message = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
    ASSERT_NE(message, nullptr);
    const auto field = reinterpret_cast<HBRUSH>(::SendMessageW(
        window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(message)));
    ASSERT_NE(::GetObjectW(field, sizeof(info), &info), 0);
    EXPECT_EQ(info.lbColor, RGB(0xFF, 0xFF, 0xFF));
}

TEST_F(Win32DialogTest, LeftPressAndReleaseOverThePictureAreMouseDownMouseUpThenClick) {
    ::SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, At(4, 6));
    ::SendMessageW(picture, WM_LBUTTONUP, 0, At(5, 6));
    const std::wstring x = std::to_wstring(qs::win::PixelsToTwips(4, dpi));
    const std::wstring y = std::to_wstring(qs::win::PixelsToTwips(6, dpi));
    EXPECT_EQ(events, (std::vector<std::wstring>{L"down 1 1 " + x + L"," + y, L"up 1", L"click"}));
}

TEST_F(Win32DialogTest, ReleaseAwayFromThePictureIsNoClick) {
    ::SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON, At(4, 4));
    ::SendMessageW(picture, WM_LBUTTONUP, 0, At(-20, 4));
    EXPECT_EQ(events, (std::vector<std::wstring>{L"down 1 0 " + std::to_wstring(qs::win::PixelsToTwips(4, dpi)) +
                                                     L"," + std::to_wstring(qs::win::PixelsToTwips(4, dpi)),
                                                 L"up 1"}));
}

TEST_F(Win32DialogTest, RightButtonIsButtonTwoAndNoClick) {
    ::SendMessageW(picture, WM_RBUTTONDOWN, MK_RBUTTON | MK_CONTROL, At(0, 0));
    ::SendMessageW(picture, WM_RBUTTONUP, 0, At(0, 0));
    EXPECT_EQ(events, (std::vector<std::wstring>{L"down 2 2 0,0", L"up 2"}));
}

TEST_F(Win32DialogTest, HiddenPictureTakesNoPress) {
    form.Image.SetVisible(false);
    ::SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON, At(4, 4));
    ::SendMessageW(picture, WM_LBUTTONUP, 0, At(4, 4));
    EXPECT_TRUE(events.empty());
}

TEST_F(Win32DialogTest, PicturePaintsTheButtonItsSlotNamesAndNothingForABlank) {
    form.Show();
    Pump();
    form.Image.SetPicture({qs::ui::PictureSlot::ImageMU, 2});
    const COLORREF up = PictureCentre();
    EXPECT_GT(Blue(up), Red(up) + 40) << std::hex << up;
    form.Image.SetPicture({qs::ui::PictureSlot::ImageMD, 0});
    const COLORREF down = PictureCentre();
    EXPECT_GT(Blue(down), Red(down) + 40) << std::hex << down;
    EXPECT_NE(down, up);
    form.Image.SetPicture({qs::ui::PictureSlot::ImageMZ, 0});
    EXPECT_EQ(PictureCentre(), RGB(0xF3, 0xF5, 0xF8));
    form.Image.SetPicture({});
    EXPECT_EQ(PictureCentre(), RGB(0xF3, 0xF5, 0xF8));
}

TEST_F(Win32DialogTest, CheckBoxMirrorsCaptionAndValueAndAClickTogglesIt) {
    EXPECT_EQ(TextOf(check), L"Do not show this message again.");
    EXPECT_EQ(::GetWindowLongPtrW(check, GWL_STYLE) & BS_TYPEMASK, BS_CHECKBOX);
    EXPECT_EQ(::SendMessageW(check, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    int clicks = 0;
    form.Again.Click = [&] { ++clicks; };
    form.Again.SetValue(1);
    EXPECT_EQ(::SendMessageW(check, BM_GETCHECK, 0, 0), BST_CHECKED);
    ::SendMessageW(check, BM_CLICK, 0, 0);
    EXPECT_EQ(form.Again.Value(), 0);
    EXPECT_EQ(::SendMessageW(check, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(clicks, 2);
    form.Again.SetCaption(L"Never again.");
    EXPECT_EQ(TextOf(check), L"Never again.");
}

TEST_F(Win32DialogTest, LockedMultiLineBoxIsReadOnlyWithAVerticalScrollBar) {
    HWND message = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
    ASSERT_NE(message, nullptr);
    const LONG_PTR style = ::GetWindowLongPtrW(message, GWL_STYLE);
    EXPECT_NE(style & ES_MULTILINE, 0);
    EXPECT_NE(style & ES_READONLY, 0);
    EXPECT_NE(style & WS_VSCROLL, 0);
    form.Message.SetText(L"one\r\ntwo");
    EXPECT_EQ(::SendMessageW(message, EM_GETLINECOUNT, 0, 0), 2);
}

TEST_F(Win32DialogTest, LabelTakesItsOwnSizeAndWeightAndGoesBackToTheFormsFont) {
    HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    HWND message = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
    const auto formFont = reinterpret_cast<HFONT>(::SendMessageW(message, WM_GETFONT, 0, 0));
    EXPECT_EQ(reinterpret_cast<HFONT>(::SendMessageW(label, WM_GETFONT, 0, 0)), formFont);
    form.Title.SetFont(12, true);
    const auto own = reinterpret_cast<HFONT>(::SendMessageW(label, WM_GETFONT, 0, 0));
    ASSERT_NE(own, formFont);
    LOGFONTW font{};
    ASSERT_NE(::GetObjectW(own, sizeof(font), &font), 0);
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    EXPECT_EQ(font.lfHeight, -::MulDiv(12, static_cast<int>(dpi), 72));
    form.Title.SetFont(0, false);
    EXPECT_EQ(reinterpret_cast<HFONT>(::SendMessageW(label, WM_GETFONT, 0, 0)), formFont);
}

TEST_F(Win32DialogTest, TabIndexPutsTheControlInThatPlaceAndTheOthersAroundIt) {
    HWND message = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
    HWND first = ::FindWindowExW(window, message, L"EDIT", nullptr);
    HWND second = ::FindWindowExW(window, first, L"EDIT", nullptr);
    ASSERT_NE(second, nullptr);
    // As the message window numbers them at its load: the message box
    // first, the name boxes after it; then the name boxes are numbered 0
    // and 1, which puts them in front of the message box.
    form.Message.SetTabIndex(0);
    form.First.SetTabIndex(1);
    form.Second.SetTabIndex(2);
    EXPECT_EQ(::GetNextDlgTabItem(window, message, FALSE), first);
    form.First.SetTabIndex(0);
    form.Second.SetTabIndex(1);
    EXPECT_EQ(::GetNextDlgTabItem(window, first, FALSE), second);
    EXPECT_EQ(::GetNextDlgTabItem(window, second, FALSE), message);
    EXPECT_EQ(::GetNextDlgTabItem(window, message, FALSE), check);
    // The first box in tab order is the one the focus goes to.
    EXPECT_EQ(::GetWindow(window, GW_CHILD), first);
}

TEST_F(Win32DialogTest, ModalLoopEndsWhenAPictureClickUnloadsTheForm) {
    form.Image.Click = [this] { form.Unload(); };
    form.Tick.Tick = [this] {
        form.Tick.SetEnabled(false);
        ::PostMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON, At(3, 3));
        ::PostMessageW(picture, WM_LBUTTONUP, 0, At(3, 3));
    };
    form.Tick.SetEnabled(true);
    form.ShowModal();
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_FALSE(::IsWindow(window));
}

}  // namespace
