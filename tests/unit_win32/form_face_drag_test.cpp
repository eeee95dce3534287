// A form dragged by its bare face: the press there holds the pointer's moves
// for the form until the release, even over the strips the pointer crosses,
// and a window beside the bar is not activated by it.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>

#include "dpi.h"
#include "theme/holders.h"
#include "ui/form.h"
#include "ui/picture_box.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;

// A borderless form with one strip along its left; the rest is bare face.
class StripForm : public qs::ui::Form {
public:
    StripForm() : Form(L"frmStripTest", qs::ui::FormStyle::Borderless), Strip(*this, L"Picture1") {
        SetCaption(L"QuillstartStripTest");
        Move(1500, 1500, 4500, 750);
        Strip.Move(0, 0, 1500, 750);
        Strip.SetPicture(qs::ui::HolderPicture(qs::ui::PictureSlot::ImageQBackS, 0));
    }
    qs::ui::PictureBox Strip;
};

class FormFaceDragTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
        form.MouseMove = [&](std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
            ++moves;
            lastButton = button;
        };
        form.Load();
        form.Show();
        Pump();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
        const UINT dpi = qs::win::WindowDpi(window);
        overStrip = MAKELPARAM(qs::win::TwipsToPixels(750, dpi), qs::win::TwipsToPixels(375, dpi));
        bare = MAKELPARAM(qs::win::TwipsToPixels(3000, dpi), qs::win::TwipsToPixels(375, dpi));
    }
    void TearDown() override {
        if (::GetCapture() == window) ::ReleaseCapture();
        form.Unload();
    }

    // Puts the pointer on the form at the client point packed in `at`.
    void PointerAt(LPARAM at) {
        POINT screen{static_cast<short>(LOWORD(at)), static_cast<short>(HIWORD(at))};
        ::ClientToScreen(window, &screen);
        ::SetCursorPos(screen.x, screen.y);
    }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    StripForm form;
    HWND window = nullptr;
    LPARAM overStrip = 0;
    LPARAM bare = 0;
    int moves = 0;
    std::int16_t lastButton = -1;
};

TEST_F(FormFaceDragTest, ThePointerOverAStripIsNoMoveOfTheForm) {
    ::SendMessageW(window, WM_MOUSEMOVE, 0, overStrip);
    EXPECT_EQ(moves, 0);
    ::SendMessageW(window, WM_MOUSEMOVE, 0, bare);
    EXPECT_EQ(moves, 1);
}

TEST_F(FormFaceDragTest, APressOnTheBareFaceHoldsTheMovesOverAStripUntilTheRelease) {
    ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, bare);
    EXPECT_EQ(::GetCapture(), window);
    ::SendMessageW(window, WM_MOUSEMOVE, 0, overStrip);
    EXPECT_EQ(moves, 1);
    ::SendMessageW(window, WM_LBUTTONUP, 0, overStrip);
    EXPECT_NE(::GetCapture(), window);
    ::SendMessageW(window, WM_MOUSEMOVE, 0, overStrip);
    EXPECT_EQ(moves, 1);
}

TEST_F(FormFaceDragTest, APressOnAStripHoldsNothing) {
    ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, overStrip);
    EXPECT_NE(::GetCapture(), window);
    ::SendMessageW(window, WM_LBUTTONUP, 0, overStrip);
    EXPECT_EQ(moves, 0);
}

TEST_F(FormFaceDragTest, AFormBesideTheBarIsNotActivatedByAPressOnItsBareFace) {
    form.SetTakesFocusWhenShown(false);
    const LPARAM press = MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN);
    PointerAt(bare);
    EXPECT_EQ(::SendMessageW(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(window), press), MA_NOACTIVATE);
    PointerAt(overStrip);
    EXPECT_NE(::SendMessageW(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(window), press), MA_NOACTIVATE);
}

TEST_F(FormFaceDragTest, AFormThatTakesTheFocusIsActivatedByAPressOnItsBareFace) {
    PointerAt(bare);
    const LPARAM press = MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN);
    EXPECT_NE(::SendMessageW(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(window), press), MA_NOACTIVATE);
}

}  // namespace
