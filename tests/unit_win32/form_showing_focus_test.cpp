// A form that stands beside another shows without taking the keyboard focus;
// every other form takes it when it shows. Real windows, under a window
// manager when the tests run in one.
#include <gtest/gtest.h>
#include <windows.h>

#include "backend_test_form.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::test::PumpUntil;
using qs::test::TestForm;

// Runs the messages for a while, so that an activation a window manager
// makes after ShowWindow has returned has arrived.
void Settle() {
    const DWORD until = ::GetTickCount() + 500;
    while (::GetTickCount() < until) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        qs::test::Pump();
    }
}

class FormShowingFocusTest : public ::testing::Test {
protected:
    void SetUp() override {
        qs::test::Pump();
        bar.SetBackend(&backend);
        bar.Load();
        bar.Show();
        barEdit = qs::test::EditOfShownForm(backend, bar);
        ASSERT_NE(barEdit, nullptr);
        ::SetForegroundWindow(backend.WindowOf(bar));
        bar.Box.SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == barEdit; }));
        pane.SetBackend(&backend);
        pane.Move(1500, 3000, 6000, 600);
        pane.SetCaption(L"QuillstartFocusTestPane");
        pane.Load();
    }
    void TearDown() override {
        pane.Unload();
        bar.Unload();
        qs::test::Pump();
    }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    TestForm bar;
    TestForm pane;
    HWND barEdit = nullptr;
};

TEST_F(FormShowingFocusTest, AFormBesideTheBarShowsWithoutTakingTheFocus) {
    pane.SetTakesFocusWhenShown(false);
    pane.Show();
    ASSERT_TRUE(::IsWindowVisible(backend.WindowOf(pane)));
    Settle();
    EXPECT_EQ(::GetFocus(), barEdit);
    EXPECT_EQ(::GetActiveWindow(), backend.WindowOf(bar));
}

TEST_F(FormShowingFocusTest, AFormShownAgainAfterTheUserWorkedInItStillLeavesTheFocus) {
    pane.SetTakesFocusWhenShown(false);
    pane.Show();
    // The user clicks into the pane: it becomes active as usual.
    ::SetForegroundWindow(backend.WindowOf(pane));
    pane.Box.SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return ::GetActiveWindow() == backend.WindowOf(pane); }));
    pane.Hide();
    bar.Box.SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == barEdit; }));
    pane.Show();
    Settle();
    EXPECT_EQ(::GetFocus(), barEdit);
}

TEST_F(FormShowingFocusTest, AFormThatTakesTheFocusTakesItWhenItShows) {
    pane.Show();
    const HWND paneWindow = backend.WindowOf(pane);
    EXPECT_TRUE(PumpUntil([&] {
        const HWND focus = ::GetFocus();
        return focus == paneWindow || ::IsChild(paneWindow, focus);
    }));
    EXPECT_EQ(::GetActiveWindow(), paneWindow);
}

TEST_F(FormShowingFocusTest, AHiddenControlLeavesTheFocusToTheFormsNextControl) {
    bar.Box.SetVisible(false);
    const HWND focus = ::GetFocus();
    EXPECT_NE(focus, barEdit);
    // Windows alone would leave it on the form's own window, where no key
    // reaches a control.
    EXPECT_TRUE(::IsChild(backend.WindowOf(bar), focus));
    EXPECT_TRUE(::IsWindowVisible(focus));
}

}  // namespace
