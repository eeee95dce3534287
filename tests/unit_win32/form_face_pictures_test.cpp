// A form whose window is made as it shows draws its picture buttons on its
// face at its first paint and gives them their windows at its first-shown
// moment, after that paint and the first keys: the window shows without
// waiting for a dozen child windows. Each picture then has its named window
// in the place where the face showed it, showing what the face showed; a
// picture given the focus before gets its window at once, and a form loaded
// hidden makes its pictures' windows at once as before.
#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

#include "dpi.h"
#include "ui/form.h"
#include "ui/picture_box.h"
#include "win32_backend.h"
#include "window_names.h"
#include "window_test_support.h"

namespace qs::test {
namespace {

using ui::PictureSlot;

class PicturesForm : public ui::Form {
public:
    PicturesForm()
        : Form(L"frmFacePicturesTest", ui::FormStyle::Borderless),
          Menu(*this, L"PictureMenu(0)"),
          Help(*this, L"PictureHelp") {
        SetCaption(L"QuillstartFacePicturesTest");
        SetBackColor(ui::Rgb(0x40, 0x30, 0x20));
        Move(1500, 1500, 3000, 600);
        Menu.Move(120, 60, 240, 240);
        Menu.SetPicture({PictureSlot::ImageMenu, 0});
        Menu.SetToolTipText(L"Menu");
        Menu.KeyPress = [](std::int16_t&) {};
        Help.Move(600, 60, 240, 240);
        Help.SetPicture({PictureSlot::ImageMenu, 1});
        Help.SetAccessibleName(L"Help");
    }
    ui::PictureBox Menu;
    ui::PictureBox Help;
};

HWND PictureNamed(HWND form, const wchar_t* name) { return ::FindWindowExW(form, nullptr, win::kPictureClass, name); }

// The colours of a grid of points over a window's client area, read from
// the window's own surface.
std::vector<COLORREF> Samples(HWND window, const RECT& area) {
    std::vector<COLORREF> colors;
    const HDC dc = ::GetDCEx(window, nullptr, DCX_CACHE);
    for (int y = area.top + 1; y < area.bottom; y += 3) {
        for (int x = area.left + 1; x < area.right; x += 3) colors.push_back(::GetPixel(dc, x, y));
    }
    ::ReleaseDC(window, dc);
    return colors;
}

// Where the form draws a control, in its window's pixels.
RECT PlaceOf(const ui::Control& control, HWND form) {
    const UINT dpi = win::WindowDpi(form);
    const int left = win::TwipsToPixels(control.Left(), dpi);
    const int top = win::TwipsToPixels(control.Top(), dpi);
    return {left, top, left + win::TwipsToPixels(control.Width(), dpi), top + win::TwipsToPixels(control.Height(), dpi)};
}

// The picture's window's client area as a rectangle of the form's.
RECT PlaceOnForm(HWND picture, HWND form) {
    RECT r{};
    ::GetClientRect(picture, &r);
    ::MapWindowPoints(picture, form, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

class FacePicturesTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
        form.SetWindowWaitsForShow(true);
    }
    void TearDown() override {
        if (form.IsLoaded()) form.Unload();
        Pump();
    }
    win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    PicturesForm form;
};

TEST_F(FacePicturesTest, ThePicturesShowOnTheFaceAtTheFirstPaintAndGetTheirNamedWindowsAfterIt) {
    form.Show();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(::FindWindowExW(window, nullptr, win::kPictureClass, nullptr), nullptr);
    ::SendMessageW(window, WM_PAINT, 0, 0);
    EXPECT_EQ(::FindWindowExW(window, nullptr, win::kPictureClass, nullptr), nullptr);
    const RECT place = PlaceOf(form.Menu, window);
    const std::vector<COLORREF> onFace = Samples(window, place);
    ASSERT_TRUE(PumpUntil([&] { return PictureNamed(window, L"Help") != nullptr; }));
    const HWND menu = PictureNamed(window, L"Menu");
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(::IsWindowVisible(menu));
    EXPECT_NE(::GetWindowLongPtrW(menu, GWL_STYLE) & WS_TABSTOP, 0);
    const RECT own = PlaceOnForm(menu, window);
    EXPECT_EQ(own.left, place.left);
    EXPECT_EQ(own.top, place.top);
    EXPECT_EQ(own.right, place.right);
    EXPECT_EQ(own.bottom, place.bottom);
    // What the face showed there is what the picture's window shows.
    ::UpdateWindow(menu);
    RECT client{};
    ::GetClientRect(menu, &client);
    const std::vector<COLORREF> onWindow = Samples(menu, client);
    EXPECT_EQ(onFace, onWindow);
    std::size_t drawn = 0;
    for (const COLORREF color : onFace) drawn += color != RGB(0x40, 0x30, 0x20) ? 1 : 0;
    EXPECT_GT(drawn, onFace.size() / 10);
}

TEST_F(FacePicturesTest, APictureGivenTheFocusBeforeItsWindowCameGetsItsWindowAndTheFocus) {
    form.Show();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    form.Menu.SetFocus();
    const HWND menu = PictureNamed(window, L"Menu");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(::GetFocus(), menu);
    EXPECT_EQ(PictureNamed(window, L"Help"), nullptr);
    EXPECT_TRUE(PumpUntil([&] { return PictureNamed(window, L"Help") != nullptr; }));
}

TEST_F(FacePicturesTest, AFormLoadedHiddenMakesItsPicturesWindowsAtOnce) {
    form.SetWindowWaitsForShow(false);
    form.Load();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    EXPECT_NE(PictureNamed(window, L"Menu"), nullptr);
    EXPECT_NE(PictureNamed(window, L"Help"), nullptr);
}

TEST_F(FacePicturesTest, TheNewWindowsTakeTheirPlacesInTheTabOrder) {
    form.Show();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(PumpUntil([&] { return PictureNamed(window, L"Help") != nullptr; }));
    const HWND first = ::GetWindow(window, GW_CHILD);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first, PictureNamed(window, L"Menu"));
    EXPECT_EQ(::GetWindow(first, GW_HWNDNEXT), PictureNamed(window, L"Help"));
}

}  // namespace
}  // namespace qs::test
