// The message dialog on a real window: Enter and Esc typed in its message
// box, and a click on a button's caption, reach the dialog and answer it.
#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "test_app.h"
#include "startup/active_message.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::test::TestApp;

// What the timer of the running test does once the dialog is up.
std::function<void()> g_act;
// The dialog of the running test, and whether it had to be closed by force
// because nothing the test did answered it.
qs::ui::Form* g_dialog = nullptr;
bool g_forced = false;
UINT_PTR g_forceTimer = 0;

void CALLBACK CloseByForce(HWND, UINT, UINT_PTR id, DWORD) {
    ::KillTimer(nullptr, id);
    if (g_dialog != nullptr && g_dialog->IsLoaded()) {
        g_forced = true;
        g_dialog->Unload();
    }
}

void CALLBACK ActOnDialog(HWND, UINT, UINT_PTR id, DWORD) {
    ::KillTimer(nullptr, id);
    if (g_act) g_act();
}

class Win32MessageKeysTest : public ::testing::Test {
protected:
    void SetUp() override {
        qs::test::Pump();
        t.app.frmMessage.SetBackend(&backend);
        g_dialog = &t.app.frmMessage;
        g_forced = false;
    }
    void TearDown() override {
        EXPECT_FALSE(g_forced) << "the dialog did not answer";
        if (g_forceTimer != 0) ::KillTimer(nullptr, std::exchange(g_forceTimer, 0));
        g_act = nullptr;
        g_dialog = nullptr;
        if (t.app.frmMessage.IsLoaded()) t.app.frmMessage.Unload();
        qs::test::Pump();
    }
    HWND Dialog() const { return backend.WindowOf(t.app.frmMessage); }
    HWND MessageBox() const {
        for (HWND child = ::FindWindowExW(Dialog(), nullptr, L"EDIT", nullptr); child != nullptr;
             child = ::FindWindowExW(Dialog(), child, L"EDIT", nullptr)) {
            if ((::GetWindowLongPtrW(child, GWL_STYLE) & ES_MULTILINE) != 0) return child;
        }
        return nullptr;
    }
    HWND Caption(const std::wstring& text) const {
        return ::FindWindowExW(Dialog(), nullptr, L"STATIC", text.c_str());
    }
    // Shows the bug dialog and, once it is up, does what act says; should
    // the dialog still stand a while later, it is closed so the test ends.
    void ShowBugAnd(std::function<void()> act) {
        g_act = [act] {
            act();
            g_forceTimer = ::SetTimer(nullptr, 0, 3000, CloseByForce);
        };
        ::SetTimer(nullptr, 0, 50, ActOnDialog);
        t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
        qs::MessageBug(t.app);
    }
    std::size_t MailLaunches() const {
        std::size_t count = 0;
        for (const auto& launch : t.sys.launches)
            if (launch.target.rfind(L"mailto:", 0) == 0) ++count;
        return count;
    }
    void PressKey(HWND window, WPARAM key) {
        ::PostMessageW(window, WM_KEYDOWN, key, 1);
        ::PostMessageW(window, WM_KEYUP, key, 0xC0000001);
    }

    TestApp t;
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
};

TEST_F(Win32MessageKeysTest, EnterInTheMessageBoxAnswersYes) {
    bool found = false;
    ShowBugAnd([this, &found] {
        const HWND box = MessageBox();
        found = box != nullptr;
        if (found) PressKey(box, VK_RETURN);
    });
    EXPECT_TRUE(found);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(MailLaunches(), 1u);
}

TEST_F(Win32MessageKeysTest, EscInTheMessageBoxAnswersNo) {
    bool found = false;
    ShowBugAnd([this, &found] {
        const HWND box = MessageBox();
        found = box != nullptr;
        if (found) PressKey(box, VK_ESCAPE);
    });
    EXPECT_TRUE(found);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(MailLaunches(), 0u);
    EXPECT_EQ(t.app.MessageToShow, L"");
}

TEST_F(Win32MessageKeysTest, ClickOnTheNoCaptionAnswersNo) {
    bool found = false;
    ShowBugAnd([this, &found] {
        const HWND no = Caption(L"No");
        found = no != nullptr;
        if (found) {
            ::PostMessageW(no, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
            ::PostMessageW(no, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
        }
    });
    EXPECT_TRUE(found);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(MailLaunches(), 0u);
}

TEST_F(Win32MessageKeysTest, ClickOnTheYesCaptionSendsTheReport) {
    bool found = false;
    ShowBugAnd([this, &found] {
        const HWND yes = Caption(L"Yes");
        found = yes != nullptr;
        if (found) {
            ::PostMessageW(yes, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
            ::PostMessageW(yes, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
        }
    });
    EXPECT_TRUE(found);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(MailLaunches(), 1u);
}

}  // namespace
