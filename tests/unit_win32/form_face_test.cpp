// The form's face is designed once and again only after something on it
// changed, however often the children ask for it as they paint.
#include <gtest/gtest.h>

#include <windows.h>

#include "backend_test_form.h"
#include "form_window.h"
#include "handles.h"
#include "ui/color.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::Win32BackendTest;

class FormFaceTest : public Win32BackendTest {
protected:
    // The colour request the label's window makes as it paints; the
    // background colour it is told.
    COLORREF AskColours() {
        qs::win::WindowDc dc(label);
        ::SendMessageW(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(label));
        return ::GetBkColor(dc.Get());
    }
    void AskManyTimes() {
        for (int i = 0; i < 300; ++i) AskColours();
    }

    HWND label = nullptr;
};

TEST_F(FormFaceTest, ManyColourRequestsWithoutChangesBuildNoFace) {
    label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    form.Show();
    Pump();
    AskColours();
    const std::uint64_t before = qs::win::FormWindow::FaceBuilds();
    AskManyTimes();
    EXPECT_EQ(qs::win::FormWindow::FaceBuilds(), before);
}

TEST_F(FormFaceTest, EachChangeOnTheFaceBuildsItOnceMoreAndShowsTheChange) {
    label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    form.Show();
    Pump();
    AskColours();
    const std::uint64_t before = qs::win::FormWindow::FaceBuilds();
    form.Caption.Move(4300, 0, 1400, 300);
    AskManyTimes();
    EXPECT_EQ(qs::win::FormWindow::FaceBuilds(), before + 1);
    form.SetBackColor(qs::ui::Rgb(200, 10, 10));
    EXPECT_EQ(AskColours(), RGB(200, 10, 10));
    AskManyTimes();
    EXPECT_EQ(qs::win::FormWindow::FaceBuilds(), before + 2);
    form.Button.SetVisible(false);
    AskManyTimes();
    EXPECT_EQ(qs::win::FormWindow::FaceBuilds(), before + 3);
    form.Caption.SetBackColor(qs::ui::Rgb(1, 2, 3));
    form.Caption.SetBackColor(qs::ui::DefaultColor);
    AskManyTimes();
    EXPECT_EQ(qs::win::FormWindow::FaceBuilds(), before + 4);
}

TEST_F(FormFaceTest, ChangesBeforeAPaintAskForItOnceAndAChangeAfterItAsksAgain) {
    form.Show();
    Pump();
    RECT update{};
    ASSERT_FALSE(::GetUpdateRect(window, &update, FALSE));
    const std::uint64_t before = qs::win::FormWindow::RepaintsAsked();
    // A theme switch writes every control's colours before anything paints.
    for (int i = 0; i < 50; ++i) {
        form.Caption.SetBackColor(qs::ui::Rgb(i, 2, 3));
        form.Caption.Move(4300 + 15 * i, 0, 1400, 300);
    }
    EXPECT_EQ(qs::win::FormWindow::RepaintsAsked(), before + 1);
    EXPECT_TRUE(::GetUpdateRect(window, &update, FALSE));
    ::UpdateWindow(window);
    EXPECT_FALSE(::GetUpdateRect(window, &update, FALSE));
    // The one repaint shows the last of the changes.
    label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(AskColours(), RGB(49, 2, 3));
    form.SetBackColor(qs::ui::Rgb(200, 10, 10));
    EXPECT_EQ(qs::win::FormWindow::RepaintsAsked(), before + 2);
    EXPECT_TRUE(::GetUpdateRect(window, &update, FALSE));
}

}  // namespace
