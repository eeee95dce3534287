// Shell services, special folders, the screen, the date and the
// single-instance rule.
#include <gtest/gtest.h>

#include <windows.h>
#include <objbase.h>
#include <shlobj.h>
#include <shobjidl.h>

#include "com.h"
#include "common/failure.h"
#include "win32_system.h"

namespace {

std::wstring TempFolder() {
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = ::GetTempPathW(MAX_PATH, buffer);
    return std::wstring(buffer, length);
}

TEST(Win32Shell, OpeningAMissingFileFails) {
    qs::win::Win32System sys;
    EXPECT_LT(sys.ShellOpen(L"C:\\no\\such\\folder\\nothing-here.qsx"), 33);
}

TEST(Win32Shell, RunningAMissingProgramThrows) {
    qs::win::Win32System sys;
    EXPECT_THROW(sys.ShellRun(L"C:\\no\\such\\program-for-quillstart.exe /x"), qs::SystemCallFailed);
}

TEST(Win32Shell, RunningAProgramByItsBareNameStartsIt) {
    qs::win::Win32System sys;
    EXPECT_NO_THROW(sys.ShellRun(L"cmd.exe /c exit 0"));
}

TEST(Win32Shell, MyDocumentsIsAFolderAndAnUnknownKeyIsEmpty) {
    qs::win::Win32System sys;
    EXPECT_FALSE(sys.SpecialFolder(L"MyDocuments").empty());
    EXPECT_FALSE(sys.SpecialFolder(L"Desktop").empty());
    EXPECT_EQ(sys.SpecialFolder(L"Nope"), L"");
}

TEST(Win32Shell, WindowsDirectoryHasNoTrailingBackslash) {
    qs::win::Win32System sys;
    const std::wstring windows = sys.WindowsDirectory();
    ASSERT_GE(windows.size(), 3u);
    EXPECT_EQ(windows[1], L':');
    EXPECT_NE(windows.back(), L'\\');
}

TEST(Win32Shell, EnvironmentReadsSetVariablesAndEmptyForMissing) {
    qs::win::Win32System sys;
    ::SetEnvironmentVariableW(L"QUILLSTART_TEST_VAR", L"value 1");
    EXPECT_EQ(sys.Environment(L"QUILLSTART_TEST_VAR"), L"value 1");
    ::SetEnvironmentVariableW(L"QUILLSTART_TEST_VAR", nullptr);
    EXPECT_EQ(sys.Environment(L"QUILLSTART_TEST_VAR"), L"");
}

TEST(Win32Screen, TwipsFollowTheDpi) {
    qs::win::Win32System sys;
    const std::int32_t perPixel = sys.TwipsPerPixelX();
    EXPECT_GE(perPixel, 5);
    EXPECT_LE(perPixel, 15);
    EXPECT_EQ(sys.TwipsPerPixelY(), perPixel);
    EXPECT_EQ(sys.ScreenWidthTwips(), ::GetSystemMetrics(SM_CXSCREEN) * perPixel);
    EXPECT_EQ(sys.ScreenHeightTwips(), ::GetSystemMetrics(SM_CYSCREEN) * perPixel);
}

TEST(Win32Screen, WorkAreaLiesOnTheScreen) {
    qs::win::Win32System sys;
    const qs::PixelRect area = sys.WorkArea();
    EXPECT_LT(area.left, area.right);
    EXPECT_LT(area.top, area.bottom);
    EXPECT_LE(area.right, ::GetSystemMetrics(SM_CXVIRTUALSCREEN) + ::GetSystemMetrics(SM_XVIRTUALSCREEN));
}

TEST(Win32Clock, TodayIsTheLocalDate) {
    qs::win::Win32System sys;
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    const qs::CalendarDate today = sys.Today();
    EXPECT_EQ(today.year, now.wYear);
    EXPECT_EQ(today.month, now.wMonth);
    EXPECT_EQ(today.day, now.wDay);
}

TEST(Win32SingleInstance, SecondHolderSeesTheFirst) {
    qs::win::Win32System first;
    EXPECT_FALSE(first.AnotherCopyRunning());
    {
        qs::win::Win32System second;
        EXPECT_TRUE(second.AnotherCopyRunning());
    }
    // The answer is kept: asking again does not count oneself.
    EXPECT_FALSE(first.AnotherCopyRunning());
}

TEST(Win32Shortcut, SavedLinkHoldsEveryField) {
    qs::win::Win32System sys;
    const std::wstring folder = TempFolder();
    qs::ShortcutDetails shortcut;
    shortcut.linkPath = folder + L"QuillstartTest.lnk";
    shortcut.targetPath = L"C:\\windows\\notepad.exe";
    shortcut.windowStyle = 1;
    shortcut.hotkey = L"CTRL+SHIFT+L";
    shortcut.iconLocation = L"C:\\windows\\notepad.exe, 0";
    shortcut.description = L"Quillstart";
    shortcut.workingDirectory = L"C:\\windows\\";
    sys.CreateShortcut(shortcut);

    qs::win::ComScope com;
    qs::win::ComPtr<IShellLinkW> link;
    ASSERT_TRUE(SUCCEEDED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                             reinterpret_cast<void**>(link.Put()))));
    qs::win::ComPtr<IPersistFile> file;
    ASSERT_TRUE(SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Put()))));
    ASSERT_TRUE(SUCCEEDED(file->Load(shortcut.linkPath.c_str(), STGM_READ)));
    WORD hotkey = 0;
    link->GetHotkey(&hotkey);
    EXPECT_EQ(hotkey, MAKEWORD('L', HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    wchar_t text[MAX_PATH] = {};
    link->GetDescription(text, MAX_PATH);
    EXPECT_STREQ(text, L"Quillstart");
    link->GetWorkingDirectory(text, MAX_PATH);
    EXPECT_STREQ(text, L"C:\\windows\\");
    int iconIndex = -1;
    link->GetIconLocation(text, MAX_PATH, &iconIndex);
    EXPECT_STREQ(text, L"C:\\windows\\notepad.exe");
    EXPECT_EQ(iconIndex, 0);
    int show = 0;
    link->GetShowCmd(&show);
    EXPECT_EQ(show, SW_SHOWNORMAL);
    ::DeleteFileW(shortcut.linkPath.c_str());
}

TEST(Win32Shortcut, SavingIntoAMissingFolderThrows) {
    qs::win::Win32System sys;
    qs::ShortcutDetails shortcut;
    shortcut.linkPath = L"C:\\no\\such\\folder\\Quillstart.lnk";
    shortcut.targetPath = L"C:\\windows\\notepad.exe";
    EXPECT_THROW(sys.CreateShortcut(shortcut), qs::SystemCallFailed);
}

}  // namespace
