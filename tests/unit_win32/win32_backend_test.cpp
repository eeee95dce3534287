// Real windows for a form: properties mirrored, input fed back, timers,
// the modal loop.
#include "win32_backend.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "backend_test_form.h"
#include "dpi.h"
#include "handles.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/list_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "win32_system.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::TextOf;

using qs::test::TestForm;
using qs::test::Win32BackendTest;

TEST_F(Win32BackendTest, WindowCarriesTheCaptionAndTheBorderlessClass) {
    EXPECT_EQ(TextOf(window), L"QuillstartBackendTest");
    wchar_t className[64] = {};
    ::GetClassNameW(window, className, 64);
    EXPECT_STREQ(className, qs::win::kBorderlessClass);
    form.SetCaption(L"Renamed");
    EXPECT_EQ(TextOf(window), L"Renamed");
}

TEST_F(Win32BackendTest, GeometryIsConvertedFromTwips) {
    const UINT dpi = qs::win::WindowDpi(window);
    RECT r{};
    ::GetWindowRect(window, &r);
    EXPECT_EQ(r.left, qs::win::TwipsToPixels(1500, dpi));
    EXPECT_EQ(r.right - r.left, qs::win::TwipsToPixels(6000, dpi));
    form.Move(3000, 1500, 6360, 348);
    ::GetWindowRect(window, &r);
    EXPECT_EQ(r.left, qs::win::TwipsToPixels(3000, dpi));
    EXPECT_EQ(r.bottom - r.top, qs::win::TwipsToPixels(348, dpi));
}

TEST_F(Win32BackendTest, VisibilityFollowsTheForm) {
    EXPECT_FALSE(::IsWindowVisible(window));
    form.Show();
    EXPECT_TRUE(::IsWindowVisible(window));
    form.Hide();
    EXPECT_FALSE(::IsWindowVisible(window));
}

TEST_F(Win32BackendTest, TopMostFollowsTheForm) {
    form.SetTopMost(true);
    EXPECT_NE(::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    form.SetTopMost(false);
    EXPECT_EQ(::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(Win32BackendTest, TextWrittenByCodeReachesTheWindowWithoutAnEcho) {
    int changes = 0;
    form.Box.Change = [&] { ++changes; };
    form.Box.SetText(L"p-myPlayer");
    EXPECT_EQ(TextOf(edit), L"p-myPlayer");
    EXPECT_EQ(changes, 1);
    form.Box.SetSelStart(4);
    form.Box.SetSelLength(6);
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 4u);
    EXPECT_EQ(end, 10u);
}

TEST_F(Win32BackendTest, TypedCharacterGoesThroughKeyPressThenChange) {
    std::vector<std::wstring> events;
    form.Box.KeyPress = [&](std::int16_t& key) { events.push_back(L"key " + std::to_wstring(key)); };
    form.Box.Change = [&] { events.push_back(L"change " + form.Box.Text()); };
    ::SendMessageW(edit, WM_CHAR, L'w', 1);
    ::SendMessageW(edit, WM_CHAR, L';', 1);
    ASSERT_EQ(events.size(), 4u);
    EXPECT_EQ(events[0], L"key 119");
    EXPECT_EQ(events[1], L"change w");
    EXPECT_EQ(events[3], L"change w;");
    EXPECT_EQ(form.Box.Text(), L"w;");
    EXPECT_EQ(form.Box.SelStart(), 2);
}

TEST_F(Win32BackendTest, SwallowedKeyNeverReachesTheWindow) {
    form.Box.KeyPress = [](std::int16_t& key) {
        if (key == L'x') key = 0;
    };
    ::SendMessageW(edit, WM_CHAR, L'x', 1);
    ::SendMessageW(edit, WM_CHAR, L'y', 1);
    EXPECT_EQ(TextOf(edit), L"y");
    EXPECT_EQ(form.Box.Text(), L"y");
}

TEST_F(Win32BackendTest, KeyPressMayChangeTheKey) {
    form.Box.KeyPress = [](std::int16_t& key) { key = L'Z'; };
    ::SendMessageW(edit, WM_CHAR, L'a', 1);
    EXPECT_EQ(form.Box.Text(), L"Z");
}

TEST_F(Win32BackendTest, EnterReachesKeyPressAndLeavesTheTextAlone) {
    int enters = 0;
    form.Box.KeyPress = [&](std::int16_t& key) {
        if (key == 13) {
            ++enters;
            form.Box.SetText(L"");
        }
    };
    ::SendMessageW(edit, WM_CHAR, L'a', 1);
    ::SendMessageW(edit, WM_CHAR, 13, 1);
    EXPECT_EQ(enters, 1);
    EXPECT_EQ(TextOf(edit), L"");
    EXPECT_EQ(form.Box.Text(), L"");
}

TEST_F(Win32BackendTest, ChangeHandlerMayRewriteTheTextAndSelectTheTail) {
    // What auto-fill does: complete the typed text and select the added part.
    form.Box.Change = [&] {
        if (form.Box.Text() == L"p-m") {
            form.Box.SetText(L"p-myPlayer");
            form.Box.SetSelStart(3);
            form.Box.SetSelLength(7);
        }
    };
    ::SendMessageW(edit, WM_CHAR, L'p', 1);
    ::SendMessageW(edit, WM_CHAR, L'-', 1);
    ::SendMessageW(edit, WM_CHAR, L'm', 1);
    EXPECT_EQ(TextOf(edit), L"p-myPlayer");
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 3u);
    EXPECT_EQ(end, 10u);
    EXPECT_EQ(form.Box.SelStart(), 3);
    EXPECT_EQ(form.Box.SelLength(), 7);
    // Typing over the selection replaces it, as in any edit control.
    ::SendMessageW(edit, WM_CHAR, L'a', 1);
    EXPECT_EQ(form.Box.Text(), L"p-ma");
}

TEST_F(Win32BackendTest, SelectionMovedInTheWindowIsReported) {
    form.Box.SetText(L"abcdef");
    ::SendMessageW(edit, WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(form.Box.SelStart(), 6);
    EXPECT_EQ(form.Box.SelLength(), 0);
}

TEST_F(Win32BackendTest, DoubleClickFiresDblClick) {
    int clicks = 0;
    form.Box.DblClick = [&] { ++clicks; };
    ::SendMessageW(edit, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(2, 2));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Win32BackendTest, LockedBoxIsReadOnly) {
    form.Box.SetLocked(true);
    EXPECT_NE(::GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY, 0);
    form.Box.SetLocked(false);
    EXPECT_EQ(::GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY, 0);
}

TEST_F(Win32BackendTest, ButtonClickReachesClick) {
    int clicks = 0;
    form.Button.Click = [&] { ++clicks; };
    HWND button = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
    ASSERT_NE(button, nullptr);
    ::SendMessageW(button, BM_CLICK, 0, 0);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Win32BackendTest, HiddenListHasNoWindow) {
    EXPECT_EQ(::FindWindowExW(window, nullptr, L"LISTBOX", nullptr), nullptr);
    form.HiddenList.AddItem(L"b");
    form.HiddenList.AddItem(L"a");
    form.HiddenList.SetVisible(true);
    HWND list = ::FindWindowExW(window, nullptr, L"LISTBOX", nullptr);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(::SendMessageW(list, LB_GETCOUNT, 0, 0), 2);
    wchar_t first[8] = {};
    ::SendMessageW(list, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(first));
    EXPECT_STREQ(first, L"a");
}

TEST_F(Win32BackendTest, EnabledTimerTicksFromTheMessageLoop) {
    int ticks = 0;
    form.Tick.Tick = [&] { ++ticks; };
    form.Tick.SetEnabled(true);
    const DWORD until = ::GetTickCount() + 2000;
    while (ticks < 2 && ::GetTickCount() < until) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        Pump();
    }
    EXPECT_GE(ticks, 2);
    form.Tick.SetEnabled(false);
    Pump();
    const int stopped = ticks;
    ::Sleep(100);
    Pump();
    EXPECT_EQ(ticks, stopped);
}

TEST_F(Win32BackendTest, ModalLoopRunsUntilTheFormHidesWithTimersFiring) {
    form.Show();
    TestForm dialog(qs::ui::FormStyle::Dialog);
    dialog.SetBackend(&backend);
    int ticks = 0;
    HWND owner = nullptr;
    dialog.Tick.Tick = [&] {
        owner = ::GetWindow(backend.WindowOf(dialog), GW_OWNER);
        if (++ticks == 3) dialog.Hide();
    };
    dialog.Tick.SetEnabled(true);
    dialog.ShowModal();
    EXPECT_EQ(ticks, 3);
    EXPECT_FALSE(dialog.Visible());
    // The dialog belonged to the window it was opened from.
    EXPECT_EQ(owner, window);
    // The other window was disabled during the loop and is enabled again.
    EXPECT_TRUE(::IsWindowEnabled(window));
    dialog.Unload();
}

TEST_F(Win32BackendTest, UnloadDestroysTheWindowAndDetachesThePeers) {
    form.Unload();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(backend.WindowOf(form), nullptr);
    EXPECT_EQ(form.Peer(), nullptr);
    EXPECT_EQ(form.Box.Peer(), nullptr);
    // The model still works without a window.
    form.Box.SetText(L"still here");
    EXPECT_EQ(form.Box.Text(), L"still here");
    // The last form gone, the program's loop is told to end.
    MSG message;
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Win32BackendTest, AFormLoadedWithoutAWindowKeepsTheProgramGoingWhenTheLastWindowGoes) {
    TestForm holder;
    holder.SetWindowWaitsForShow(true);
    holder.SetBackend(&backend);
    holder.Load();
    form.Unload();
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    holder.Unload();
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Win32BackendTest, UserMoveIsReportedInTwips) {
    form.Show();
    const UINT dpi = qs::win::WindowDpi(window);
    ::SetWindowPos(window, nullptr, 40, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(form.Left(), qs::win::PixelsToTwips(40, dpi));
    EXPECT_EQ(form.Top(), qs::win::PixelsToTwips(50, dpi));
}

TEST_F(Win32BackendTest, SurfaceShowsAHiddenFormWithTheFocusInItsTextBox) {
    form.Show();
    form.Hide();
    ::SetFocus(nullptr);
    ::SendMessageW(window, ::RegisterWindowMessageW(qs::win::kSurfaceMessage), 0, 0);
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ(::GetFocus(), edit);
}

TEST_F(Win32BackendTest, SecondCopyFindsTheBarByItsCaptionAndSurfacesIt) {
    form.SetCaption(qs::win::kBarCaption);
    form.Show();
    form.Hide();
    qs::win::Win32System sys;
    EXPECT_TRUE(sys.SurfaceRunningCopy());
    EXPECT_TRUE(form.Visible());
    EXPECT_TRUE(::IsWindowVisible(window));
}

// The tip window of this thread, or none.
HWND ThreadToolTips() {
    HWND tips = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND candidate, LPARAM found) -> BOOL {
            wchar_t className[64] = {};
            ::GetClassNameW(candidate, className, 64);
            if (std::wstring(className) != TOOLTIPS_CLASSW) return TRUE;
            *reinterpret_cast<HWND*>(found) = candidate;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&tips));
    return tips;
}

TEST_F(Win32BackendTest, ToolTipTextBecomesATipOfTheControlsWindowOnceTheFormHasShown) {
    form.Box.SetToolTipText(L"Type a Command");
    form.Button.SetToolTipText(L"Taken back before the showing");
    form.Button.SetToolTipText(L"");
    EXPECT_EQ(ThreadToolTips(), nullptr);
    form.Show();
    ASSERT_TRUE(qs::test::PumpUntil([] { return ThreadToolTips() != nullptr; }));
    const HWND tips = ThreadToolTips();
    EXPECT_EQ(::SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 1);
    wchar_t text[80] = {};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(edit);
    tool.lpszText = text;
    ::SendMessageW(tips, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(text, L"Type a Command");
    form.Box.SetToolTipText(L"");
    EXPECT_EQ(::SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 0);
}

TEST_F(Win32BackendTest, DpiChangeTakesTheSuggestedPlaceAndTheFormsSizeAtTheNewDpi) {
    form.Show();
    RECT suggested{200, 100, 200 + 636, 100 + 35};
    ::SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
    RECT r{};
    ::GetWindowRect(window, &r);
    EXPECT_EQ(r.left, 200);
    EXPECT_EQ(r.top, 100);
    EXPECT_EQ(r.right - r.left, qs::win::TwipsToPixels(6000, 144));
    EXPECT_EQ(r.bottom - r.top, qs::win::TwipsToPixels(600, 144));
    // The form learns where the system put it, in twips at the new DPI.
    EXPECT_EQ(form.Left(), qs::win::PixelsToTwips(200, 144));
    EXPECT_EQ(form.Top(), qs::win::PixelsToTwips(100, 144));
    // The text box is placed and lettered for the new DPI too.
    RECT box{};
    ::GetWindowRect(edit, &box);
    EXPECT_EQ(box.left - r.left, qs::win::TwipsToPixels(720, 144));
    EXPECT_EQ(box.right - box.left, qs::win::TwipsToPixels(1812, 144));
}

TEST_F(Win32BackendTest, FailureInAHandlerStopsAtTheWindowBoundary) {
    form.Box.KeyPress = [](std::int16_t&) { throw std::runtime_error("handler failed"); };
    EXPECT_NO_THROW(::SendMessageW(edit, WM_CHAR, L'a', 1));
    form.Button.Click = [] { throw std::runtime_error("handler failed"); };
    HWND button = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
    EXPECT_NO_THROW(::SendMessageW(button, BM_CLICK, 0, 0));
    // The window still works afterwards.
    form.Box.KeyPress = nullptr;
    ::SendMessageW(edit, WM_CHAR, L'b', 1);
    EXPECT_EQ(form.Box.Text(), L"b");
}

TEST_F(Win32BackendTest, LabelShowsItsCaptionOverThePartOfThePictureItCovers) {
    HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(TextOf(label), L"Count 1234");
    form.Caption.SetCaption(L"7");
    EXPECT_EQ(TextOf(label), L"7");
    form.SetPicture({qs::ui::PictureSlot::ImageBack, 0});
    form.Show();
    ::UpdateWindow(window);
    // The label's background brush is the form's own picture, not a hollow
    // brush that would leave the old caption standing.
    qs::win::WindowDc dc(label);
    const auto brush = reinterpret_cast<HBRUSH>(
        ::SendMessageW(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(label)));
    ASSERT_NE(brush, nullptr);
    EXPECT_NE(brush, static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH)));
    LOGBRUSH info{};
    ::GetObjectW(brush, sizeof(info), &info);
    // Systems differ in how they report a brush made from a DIB section.
    EXPECT_TRUE(info.lbStyle == BS_PATTERN || info.lbStyle == BS_DIBPATTERN || info.lbStyle == BS_DIBPATTERNPT)
        << info.lbStyle;
}

TEST_F(Win32BackendTest, TabMovesTheFocusToTheNextControlAndBack) {
    form.Show();
    ::SetFocus(edit);
    HWND button = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
    MSG tab{edit, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_TRUE(backend.MoveFocusByKey(tab));
    EXPECT_EQ(::GetFocus(), button);
    tab.hwnd = button;
    EXPECT_TRUE(backend.MoveFocusByKey(tab));
    EXPECT_EQ(::GetFocus(), edit);
    // Any other key goes its ordinary way.
    MSG other{edit, WM_KEYDOWN, 'A', 0, 0, {}};
    EXPECT_FALSE(backend.MoveFocusByKey(other));
}

}  // namespace

// Work that input waits for (the lists of a start) runs when the thread
// that finished it wakes the loop, even with no input at all.
TEST_F(Win32BackendTest, WorkForInputRunsWhenTheWakerCallsFromAnotherThread) {
    bool ran = false;
    backend.RunBeforeInput([&ran] { ran = true; });
    EXPECT_FALSE(ran);
    const std::function<void()> waker = backend.PendingWorkWaker();
    std::thread([waker] { waker(); }).join();
    ::PostQuitMessage(0);
    backend.RunMessageLoop();
    EXPECT_TRUE(ran);
}

TEST_F(Win32BackendTest, WorkForInputRunsBeforeAKeystrokeThatCameFirstIsTaken) {
    std::wstring boxWhenRun = L"not run";
    backend.RunBeforeInput([this, &boxWhenRun] { boxWhenRun = form.Box.Text(); });
    ::PostMessageW(edit, WM_CHAR, L'z', 1);
    ::PostQuitMessage(0);
    backend.RunMessageLoop();
    EXPECT_EQ(boxWhenRun, L"");
    EXPECT_EQ(form.Box.Text(), L"z");
}
