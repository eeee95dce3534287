// Help on real windows: its topic captions are the window texts of its
// labels, a click on one shows the topic, the pointer over a link
// underlines its font, and the arrow keys and Esc pressed in the window
// reach the form before the control that holds the focus.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "test_app.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::TestApp;

class HelpWindowKeysTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        t.app.frmHelp.SetBackend(&backend);
        t.app.frmMain.PictureHelp.Press();
        window = backend.WindowOf(t.app.frmHelp);
        ASSERT_NE(window, nullptr);
    }
    void TearDown() override {
        if (t.app.frmHelp.IsLoaded()) t.app.frmHelp.Unload();
        Pump();
    }
    HWND Child(const wchar_t* className, const std::wstring& text) const {
        return ::FindWindowExW(window, nullptr, className, text.c_str());
    }
    HWND HelpEdit() const { return ::FindWindowExW(window, nullptr, L"EDIT", nullptr); }
    // A key pressed with the focus on `target`, as the message loop takes it
    // from the queue.
    MSG KeyPressedIn(HWND target, WPARAM key) {
        ::PostMessageW(target, WM_KEYDOWN, key, 1);
        MSG message{};
        EXPECT_TRUE(::PeekMessageW(&message, target, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
        return message;
    }
    bool Underlined(HWND child) const {
        const auto font = reinterpret_cast<HFONT>(::SendMessageW(child, WM_GETFONT, 0, 0));
        LOGFONTW logFont{};
        if (font == nullptr || ::GetObjectW(font, sizeof(logFont), &logFont) == 0) return false;
        return logFont.lfUnderline != FALSE;
    }

    TestApp t;
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    HWND window = nullptr;
};

TEST_F(HelpWindowKeysTest, EveryTopicAndLinkIsAWindowNamedByItsCaption) {
    for (const wchar_t* caption :
         {L"Introduction", L"Install,  Upgrade && Uninstall", L"Interface", L"Web URL", L"Program", L"All Item",
          L"View List", L"Type A Command", L"Code And Command", L"More Commands For URL", L"Quick Launcher",
          L"Things To Remember", L"About", L"Exit Help", L"a.Help"}) {
        EXPECT_NE(Child(L"STATIC", caption), nullptr) << std::string(caption, caption + wcslen(caption));
    }
    EXPECT_EQ(qs::test::TextOf(window), L"Help");
}

TEST_F(HelpWindowKeysTest, AClickOnATopicShowsItsHeadingAndText) {
    const HWND topic = Child(L"STATIC", L"Web URL");
    ASSERT_NE(topic, nullptr);
    ::SendMessageW(topic, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    ::SendMessageW(topic, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
    ASSERT_TRUE(qs::test::PumpUntil([&] { return t.app.frmHelp.HelpTopic() == 3; }));
    EXPECT_NE(Child(L"STATIC", L"Web URL"), nullptr);
    const HWND edit = HelpEdit();
    ASSERT_NE(edit, nullptr);
    EXPECT_TRUE(::IsWindowVisible(edit));
    EXPECT_EQ(qs::test::TextOf(edit).substr(0, 30), L"To add web URL in Launch List:");
}

TEST_F(HelpWindowKeysTest, ThePointerOverATopicUnderlinesItAndOverItsPanelClearsIt) {
    const HWND topic = Child(L"STATIC", L"View List");
    ASSERT_NE(topic, nullptr);
    EXPECT_FALSE(Underlined(topic));
    ::SendMessageW(topic, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(Underlined(topic));
    EXPECT_TRUE(t.app.frmHelp.LabelHelpTopic(6).FontUnderline());
    const HWND exitHelp = Child(L"STATIC", L"Exit Help");
    ::SendMessageW(exitHelp, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(Underlined(exitHelp));
    // The panel round the topics is the last window of their column.
    RECT topicRect{};
    ::GetWindowRect(topic, &topicRect);
    POINT beside{topicRect.left - 2, topicRect.top};
    ::ScreenToClient(window, &beside);
    const HWND panel = ::ChildWindowFromPointEx(window, beside, CWP_SKIPINVISIBLE);
    ASSERT_NE(panel, nullptr);
    ASSERT_NE(panel, window);
    ::SendMessageW(panel, WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    EXPECT_FALSE(Underlined(topic));
    EXPECT_FALSE(Underlined(exitHelp));
}

TEST_F(HelpWindowKeysTest, DownPressedInTheWindowChoosesTheFirstTopicAndGoesNoFurther) {
    EXPECT_TRUE(backend.PreviewKeyDown(KeyPressedIn(window, VK_DOWN)));
    EXPECT_EQ(t.app.frmHelp.HelpTopic(), 0);
    const HWND edit = HelpEdit();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(qs::test::TextOf(edit).substr(0, 10), L"Quillstart");
    // With the focus in the text box the arrows still walk the topics.
    EXPECT_TRUE(backend.PreviewKeyDown(KeyPressedIn(edit, VK_DOWN)));
    EXPECT_EQ(t.app.frmHelp.HelpTopic(), 1);
    EXPECT_TRUE(backend.PreviewKeyDown(KeyPressedIn(edit, VK_UP)));
    EXPECT_EQ(t.app.frmHelp.HelpTopic(), 0);
}

TEST_F(HelpWindowKeysTest, AKeyTheFormLeavesGoesOnToTheControl) {
    t.app.frmHelp.LabelHelpTopic(0).UserClick();
    EXPECT_FALSE(backend.PreviewKeyDown(KeyPressedIn(HelpEdit(), VK_NEXT)));
    EXPECT_EQ(t.app.frmHelp.HelpTopic(), 0);
}

TEST_F(HelpWindowKeysTest, EscPressedInTheWindowClosesHelp) {
    EXPECT_TRUE(backend.PreviewKeyDown(KeyPressedIn(window, VK_ESCAPE)));
    EXPECT_FALSE(t.app.HelpOpen);
    EXPECT_FALSE(t.app.frmHelp.IsLoaded());
    EXPECT_EQ(backend.WindowOf(t.app.frmHelp), nullptr);
}

}  // namespace
