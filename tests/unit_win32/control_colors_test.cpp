// Each control answers for its own colours and font, and a form's face is
// its colour or picture with the strips on it: strips have no window, and
// the buttons lying on them show the strip beneath.
#include <gtest/gtest.h>

#include <windows.h>

#include <memory>
#include <type_traits>

#include <vector>

#include "dpi.h"
#include "handles.h"
#include "picture_cache.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"
#include "win32_backend.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::ui::PictureSlot;
using qs::ui::Rgb;

class BarLikeForm : public qs::ui::Form {
public:
    BarLikeForm()
        : Form(L"frmColorTest", qs::ui::FormStyle::Borderless),
          Strip(*this, L"PictureBackMain"),
          Box(*this, L"TextMain"),
          Button(*this, L"PictureExit"),
          Caption(*this, L"LabelWebURL", L"URL") {
        SetCaption(L"QuillstartColorTest");
        Move(1500, 1500, 7200, 600);
        Strip.Move(600, 0, 5640, 372);
        Box.Move(720, 0, 1812, 372);
        Button.Move(5880, 30, 235, 235);
        Caption.Move(6400, 30, 600, 240);
    }
    qs::ui::PictureBox Strip;
    qs::ui::TextBox Box;
    qs::ui::PictureBox Button;
    qs::ui::Label Caption;
};

class ControlColorsTest : public ::testing::Test {
protected:
    void SetUp() override {
        qs::test::Pump();
        form.SetBackend(&backend);
        form.Load();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
        edit = ::FindWindowExW(window, nullptr, L"EDIT", nullptr);
        label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
        ASSERT_NE(edit, nullptr);
        ASSERT_NE(label, nullptr);
        dpi = qs::win::WindowDpi(window);
    }
    void TearDown() override {
        if (form.IsLoaded()) form.Unload();
        qs::test::Pump();
    }
    HBRUSH Ask(UINT message, HWND child, HDC dc) {
        return reinterpret_cast<HBRUSH>(
            ::SendMessageW(window, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(child)));
    }
    COLORREF BrushColor(HBRUSH brush) {
        LOGBRUSH info{};
        EXPECT_NE(::GetObjectW(brush, sizeof(info), &info), 0);
        return info.lbColor;
    }
    void PaintNow() {
        form.Show();
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    COLORREF OnScreen(HWND of, int x, int y) {
        qs::win::WindowDc dc(of);
        return ::GetPixel(dc.Get(), x, y);
    }
    int Px(int twips) const { return qs::win::TwipsToPixels(twips, dpi); }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    BarLikeForm form;
    HWND window = nullptr;
    HWND edit = nullptr;
    HWND label = nullptr;
    UINT dpi = USER_DEFAULT_SCREEN_DPI;
};

TEST_F(ControlColorsTest, TextBoxAnswersWithItsOwnBackAndForeColour) {
    form.Box.SetBackColor(Rgb(75, 75, 240));
    form.Box.SetForeColor(Rgb(230, 230, 230));
    qs::win::WindowDc dc(edit);
    const HBRUSH brush = Ask(WM_CTLCOLOREDIT, edit, dc.Get());
    ASSERT_NE(brush, nullptr);
    EXPECT_EQ(BrushColor(brush), RGB(75, 75, 240));
    EXPECT_EQ(::GetBkColor(dc.Get()), RGB(75, 75, 240));
    EXPECT_EQ(::GetTextColor(dc.Get()), RGB(230, 230, 230));
}

TEST_F(ControlColorsTest, TextBoxWithoutAColourKeepsTheFieldLookOfItsKind) {
    qs::win::WindowDc dc(edit);
    EXPECT_EQ(BrushColor(Ask(WM_CTLCOLOREDIT, edit, dc.Get())), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(ControlColorsTest, SystemColoursAreTheSystemsOwn) {
    form.Box.SetBackColor(qs::ui::SystemButtonText);
    qs::win::WindowDc dc(edit);
    EXPECT_EQ(BrushColor(Ask(WM_CTLCOLOREDIT, edit, dc.Get())), ::GetSysColor(COLOR_BTNTEXT));
}

TEST_F(ControlColorsTest, BrushIsMadeAgainOnlyWhenTheColourChangesAndTheOldOneIsFreed) {
    qs::win::WindowDc dc(edit);
    form.Box.SetBackColor(Rgb(1, 2, 3));
    const HBRUSH first = Ask(WM_CTLCOLOREDIT, edit, dc.Get());
    EXPECT_EQ(Ask(WM_CTLCOLOREDIT, edit, dc.Get()), first);
    form.Box.SetForeColor(Rgb(9, 9, 9));
    EXPECT_EQ(Ask(WM_CTLCOLOREDIT, edit, dc.Get()), first);
    // Two hundred colour changes leave one brush of the box's alive.
    std::vector<HBRUSH> seen;
    for (int i = 0; i < 200; ++i) {
        form.Box.SetBackColor(Rgb(static_cast<std::uint8_t>(i), 40, 80));
        seen.push_back(Ask(WM_CTLCOLOREDIT, edit, dc.Get()));
    }
    int alive = 0;
    for (const HBRUSH brush : seen) alive += ::GetObjectType(brush) == OBJ_BRUSH ? 1 : 0;
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(::GetObjectType(first), 0u);
    EXPECT_EQ(BrushColor(seen.back()), RGB(199, 40, 80));
}

TEST_F(ControlColorsTest, LabelShowsTheFaceBeneathInItsOwnForeColour) {
    form.SetBackColor(Rgb(91, 132, 148));
    form.Caption.SetForeColor(Rgb(0, 255, 0));
    qs::win::WindowDc dc(label);
    const HBRUSH brush = Ask(WM_CTLCOLORSTATIC, label, dc.Get());
    ASSERT_NE(brush, nullptr);
    EXPECT_EQ(::GetTextColor(dc.Get()), RGB(0, 255, 0));
    EXPECT_EQ(::GetBkMode(dc.Get()), TRANSPARENT);
    // The strip lies on the face, so the face is a picture now.
    form.Strip.SetPicture({PictureSlot::ImageBackMain, 5});
    LOGBRUSH info{};
    ::GetObjectW(Ask(WM_CTLCOLORSTATIC, label, dc.Get()), sizeof(info), &info);
    EXPECT_TRUE(info.lbStyle == BS_PATTERN || info.lbStyle == BS_DIBPATTERN || info.lbStyle == BS_DIBPATTERNPT)
        << info.lbStyle;
}

TEST_F(ControlColorsTest, TextBoxTakesItsOwnSizeAndWeight) {
    form.Box.SetFont(14, true);
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(edit, WM_GETFONT, 0, 0));
    LOGFONTW info{};
    ASSERT_NE(::GetObjectW(font, sizeof(info), &info), 0);
    EXPECT_EQ(info.lfWeight, FW_BOLD);
    EXPECT_EQ(info.lfHeight, -::MulDiv(14, static_cast<int>(dpi), 72));
    form.Box.SetFont(0, false);
    EXPECT_NE(reinterpret_cast<HFONT>(::SendMessageW(edit, WM_GETFONT, 0, 0)), font);
}

TEST_F(ControlColorsTest, FormPaintsItsBackColour) {
    form.SetBackColor(Rgb(100, 100, 50));
    PaintNow();
    EXPECT_EQ(OnScreen(window, 2, 2), RGB(100, 100, 50));
}

TEST_F(ControlColorsTest, AStripHasNoWindowAndIsPaintedAsPartOfTheFace) {
    form.SetBackColor(Rgb(30, 30, 160));
    form.Strip.SetPicture({PictureSlot::ImageBackMain, 4});
    form.Button.SetPicture({PictureSlot::ImageMenu, 4 * 20 + 8});
    PaintNow();
    // Only the button on the strip is a window.
    const HWND first = ::FindWindowExW(window, nullptr, qs::win::kPictureClass, nullptr);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(::FindWindowExW(window, first, qs::win::kPictureClass, nullptr), nullptr);
    // A point of the strip between the Command box and the button shows the
    // strip's own picture.
    const int stripWidth = Px(5640);
    const int stripHeight = Px(372);
    const auto& strip =
        qs::win::PictureCache::Shared().Get({PictureSlot::ImageBackMain, 4}, stripWidth, stripHeight, dpi);
    const int x = Px(3000);
    const int y = Px(120);
    const std::uint32_t pixel = strip.pixels[static_cast<std::size_t>(y) * stripWidth + x];
    EXPECT_EQ(OnScreen(window, Px(600) + x, y), RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF));
    // The gap before the strip shows the form's colour.
    EXPECT_EQ(OnScreen(window, Px(300), Px(100)), RGB(30, 30, 160));
    // The button's clear corner shows the strip beneath it, not the form.
    const int bx = Px(5880) - Px(600);
    const int by = Px(30);
    const std::uint32_t under = strip.pixels[static_cast<std::size_t>(by) * stripWidth + bx];
    EXPECT_EQ(OnScreen(first, 0, 0), RGB((under >> 16) & 0xFF, (under >> 8) & 0xFF, under & 0xFF));
}

TEST_F(ControlColorsTest, APictureBoxThatStopsShowingAStripGetsAWindow) {
    form.Strip.SetPicture({PictureSlot::ImageBackMain, 0});
    form.Button.SetPicture({PictureSlot::ImageMenu, 0});
    EXPECT_EQ(::FindWindowExW(window, ::FindWindowExW(window, nullptr, qs::win::kPictureClass, nullptr),
                              qs::win::kPictureClass, nullptr),
              nullptr);
    form.Strip.SetPicture({PictureSlot::ImageMU, 2});
    const HWND first = ::FindWindowExW(window, nullptr, qs::win::kPictureClass, nullptr);
    EXPECT_NE(::FindWindowExW(window, first, qs::win::kPictureClass, nullptr), nullptr);
}

}  // namespace

namespace {

class FramedForm : public qs::ui::Form {
public:
    FramedForm()
        : Form(L"frmFramedTest", qs::ui::FormStyle::Dialog),
          Group(*this, L"FrameGroupMenu", L"Select"),
          Inside(*this, L"LabelListTotalA", L"3"),
          Outside(*this, L"LabelListCap", L"Launch List:") {
        SetCaption(L"QuillstartFramedTest");
        Move(1500, 1500, 4000, 3000);
        Group.Move(120, 600, 3600, 1800);
        Group.Place(Inside, 240, 300, 900, 255);
        Outside.Move(120, 120, 1800, 255);
    }
    qs::ui::Frame Group;
    qs::ui::Label Inside;
    qs::ui::Label Outside;
};

COLORREF ColorOfBrush(HBRUSH brush) {
    LOGBRUSH info{};
    ::GetObjectW(brush, sizeof(info), &info);
    return info.lbStyle == BS_SOLID ? info.lbColor : CLR_INVALID;
}

TEST(FramedControlColors, ALabelInAColouredFrameShowsTheFramesColourAndOneOutsideTheFace) {
    qs::test::Pump();
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    FramedForm form;
    form.SetBackend(&backend);
    form.Load();
    form.Show();
    form.Group.SetBackColor(Rgb(200, 150, 100));
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    HWND inside = nullptr;
    HWND outside = nullptr;
    for (HWND child = ::FindWindowExW(window, nullptr, L"STATIC", nullptr); child != nullptr;
         child = ::FindWindowExW(window, child, L"STATIC", nullptr)) {
        if (qs::test::TextOf(child) == L"3") inside = child;
        if (qs::test::TextOf(child) == L"Launch List:") outside = child;
    }
    ASSERT_NE(inside, nullptr);
    ASSERT_NE(outside, nullptr);
    qs::win::WindowDc dc(inside);
    const auto ask = [&](HWND child) {
        return reinterpret_cast<HBRUSH>(
            ::SendMessageW(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(child)));
    };
    EXPECT_EQ(ColorOfBrush(ask(inside)), RGB(200, 150, 100));
    EXPECT_NE(ColorOfBrush(ask(outside)), RGB(200, 150, 100));
    // A colour of its own still wins over the frame's.
    form.Inside.SetBackColor(Rgb(10, 20, 30));
    EXPECT_EQ(ColorOfBrush(ask(inside)), RGB(10, 20, 30));
    form.Unload();
    qs::test::Pump();
}

}  // namespace

namespace {

class SwatchForm : public qs::ui::Form {
public:
    SwatchForm() : Form(L"frmSwatchTest", qs::ui::FormStyle::Borderless), Swatch(*this, L"LabelColor") {
        SetCaption(L"QuillstartSwatchTest");
        Move(1500, 1500, 1500, 1500);
        Swatch.Move(300, 300, 480, 480);
        Swatch.SetBorderStyle(1);
    }
    qs::ui::Label Swatch;
};

TEST(LabelBorderTest, AnOutlinedLabelOfTheFormsOwnColourStillShowsItsEdge) {
    qs::test::Pump();
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    SwatchForm form;
    form.SetBackend(&backend);
    form.SetBackColor(Rgb(80, 80, 80));
    form.Swatch.SetBackColor(Rgb(80, 80, 80));
    form.Load();
    form.Show();
    const HWND window = backend.WindowOf(form);
    ASSERT_NE(window, nullptr);
    const HWND swatch = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(swatch, nullptr);
    EXPECT_NE(::GetWindowLongPtrW(swatch, GWL_STYLE) & WS_BORDER, 0);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    RECT r{};
    ::GetWindowRect(swatch, &r);
    {
        // The whole window's DC, border included.
        const auto release = [swatch](HDC dc) { ::ReleaseDC(swatch, dc); };
        const std::unique_ptr<std::remove_pointer_t<HDC>, decltype(release)> dc(::GetWindowDC(swatch), release);
        EXPECT_NE(::GetPixel(dc.get(), 0, (r.bottom - r.top) / 2), RGB(80, 80, 80));
        EXPECT_EQ(::GetPixel(dc.get(), (r.right - r.left) / 2, (r.bottom - r.top) / 2), RGB(80, 80, 80));
    }
    form.Unload();
    qs::test::Pump();
}

}  // namespace
