// A control's window is made only once the control shows on its form:
// hidden, or lying beyond the form's width, it has none, and it gets one,
// written from the control's state, when it comes into sight.
#include <gtest/gtest.h>

#include <windows.h>

#include "backend_test_form.h"

namespace qs::test {
namespace {

// Loads the form, or shows it, and gives its window, checking that no child
// window of the class has been made on it yet; null when the form got none.
HWND WindowWithoutChild(win::Win32Backend& backend, TestForm& pane, const wchar_t* childClass, bool show = false) {
    pane.SetBackend(&backend);
    if (show) {
        pane.Show();
    } else {
        pane.Load();
    }
    const HWND shown = backend.WindowOf(pane);
    if (shown != nullptr) EXPECT_EQ(::FindWindowExW(shown, nullptr, childClass, nullptr), nullptr) << childClass;
    return shown;
}

TEST_F(Win32BackendTest, AHiddenControlGetsItsWindowWhenItShowsWithWhatWasWrittenMeanwhile) {
    TestForm pane;
    pane.SetCaption(L"QuillstartHiddenLabel");
    pane.Caption.SetVisible(false);
    const HWND shown = WindowWithoutChild(backend, pane, L"STATIC");
    ASSERT_NE(shown, nullptr);
    pane.Caption.SetCaption(L"Count 99");
    pane.Caption.SetVisible(true);
    const HWND label = ::FindWindowExW(shown, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(TextOf(label), L"Count 99");
    EXPECT_TRUE(::IsWindowVisible(label) || !::IsWindowVisible(shown));
    pane.Unload();
}

TEST_F(Win32BackendTest, AControlBeyondTheFormsWidthGetsItsWindowWhenTheFormWidens) {
    TestForm pane;
    pane.SetCaption(L"QuillstartNarrowForm");
    pane.Button.Move(7000, 0, 900, 300);
    const HWND shown = WindowWithoutChild(backend, pane, L"BUTTON");
    ASSERT_NE(shown, nullptr);
    pane.Move(pane.Left(), pane.Top(), 9000, pane.Height());
    EXPECT_NE(::FindWindowExW(shown, nullptr, L"BUTTON", nullptr), nullptr);
    pane.Unload();
}

TEST_F(Win32BackendTest, AControlMovedIntoTheFormsWidthGetsItsWindow) {
    TestForm pane;
    pane.SetCaption(L"QuillstartMovedIn");
    pane.Button.Move(7000, 0, 900, 300);
    const HWND shown = WindowWithoutChild(backend, pane, L"BUTTON");
    ASSERT_NE(shown, nullptr);
    pane.Button.Move(3000, 0, 900, 300);
    EXPECT_NE(::FindWindowExW(shown, nullptr, L"BUTTON", nullptr), nullptr);
    pane.Unload();
}

TEST_F(Win32BackendTest, ABoxBeyondTheFormsWidthGivenTheFocusGetsItsWindowAndTheFocus) {
    TestForm pane;
    pane.SetCaption(L"QuillstartFocusBeyond");
    pane.Box.Move(7000, 0, 1812, 372);
    const HWND shown = WindowWithoutChild(backend, pane, L"EDIT", true);
    ASSERT_NE(shown, nullptr);
    pane.Box.SetFocus();
    const HWND box = ::FindWindowExW(shown, nullptr, L"EDIT", nullptr);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(::GetFocus(), box);
    pane.Unload();
}

TEST_F(Win32BackendTest, ATimerTicksWhereverItsControlLies) {
    TestForm pane;
    pane.SetCaption(L"QuillstartTimerBeyond");
    pane.Tick.Move(9000, 0, 100, 100);
    int ticks = 0;
    pane.Tick.Tick = [&ticks] { ++ticks; };
    pane.Tick.SetEnabled(true);
    pane.SetBackend(&backend);
    pane.Load();
    for (int i = 0; i < 100 && ticks == 0; ++i) {
        ::Sleep(10);
        Pump();
    }
    EXPECT_GT(ticks, 0);
    pane.Unload();
}

}  // namespace
}  // namespace qs::test
