// The peers of the option button, the frame and the drive, folder and file
// boxes on real windows, over the real file system.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "common/failure.h"
#include "ui/dir_list_box.h"
#include "ui/drive_list_box.h"
#include "ui/file_list_box.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/option_button.h"
#include "win32_backend.h"
#include "win32_system.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::TextOf;

// A fresh folder under the temporary folder: Apps\run.exe, Apps\notes.txt,
// Apps\hidden.exe (hidden) and Apps\Sub.
std::wstring MakeFolder() {
    wchar_t temp[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, temp);
    std::wstring root = std::wstring(temp) + L"qsbrowse" + std::to_wstring(::GetTickCount());
    ::CreateDirectoryW(root.c_str(), nullptr);
    const std::wstring apps = root + L"\\Apps";
    ::CreateDirectoryW(apps.c_str(), nullptr);
    ::CreateDirectoryW((apps + L"\\Sub").c_str(), nullptr);
    for (const wchar_t* name : {L"\\run.exe", L"\\notes.txt", L"\\hidden.exe"}) {
        const HANDLE file = ::CreateFileW((apps + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        ::CloseHandle(file);
    }
    ::SetFileAttributesW((apps + L"\\hidden.exe").c_str(), FILE_ATTRIBUTE_HIDDEN);
    return apps;
}

class BrowseForm : public qs::ui::Form {
public:
    explicit BrowseForm(qs::FileBrowsing& files)
        : Form(L"frmBrowseTest", qs::ui::FormStyle::Dialog),
          Group(*this, L"Frame1", L"Select Item To Add :"),
          First(*this, L"Option1", L"Program"),
          Second(*this, L"Option2", L"File"),
          Drives(*this, L"Drive1", files),
          Dirs(*this, L"Dir1", files),
          Files(*this, L"File1", files) {
        SetCaption(L"QuillstartBrowseKindsTest");
        Move(1500, 1500, 5400, 6000);
        Group.Move(120, 120, 4800, 900);
        Group.Place(First, 120, 300, 1400, 285);
        Group.Place(Second, 1680, 300, 1400, 285);
        Drives.Move(120, 1200, 4800, 315);
        Dirs.Move(120, 1700, 4800, 1500);
        Files.Move(120, 3300, 4800, 1500);
    }
    qs::ui::Frame Group;
    qs::ui::OptionButton First;
    qs::ui::OptionButton Second;
    qs::ui::DriveListBox Drives;
    qs::ui::DirListBox Dirs;
    qs::ui::FileListBox Files;
};

class BrowseKindsTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        apps = MakeFolder();
        form.Drives.Refresh();
        form.Dirs.SetPath(apps);
        form.Files.SetPath(apps);
        form.SetBackend(&backend);
        form.Load();
        form.Show();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
    }
    void TearDown() override { form.Unload(); }

    HWND Child(const wchar_t* windowClass, const std::wstring& text = L"") const {
        for (HWND child = ::FindWindowExW(window, nullptr, windowClass, nullptr); child != nullptr;
             child = ::FindWindowExW(window, child, windowClass, nullptr)) {
            if (text.empty() || TextOf(child) == text) return child;
        }
        return nullptr;
    }
    // The list box whose first entry is `first`.
    HWND ListStartingWith(const std::wstring& first) const {
        for (HWND child = ::FindWindowExW(window, nullptr, L"LISTBOX", nullptr); child != nullptr;
             child = ::FindWindowExW(window, child, L"LISTBOX", nullptr)) {
            wchar_t text[MAX_PATH] = {};
            ::SendMessageW(child, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(text));
            if (first == text) return child;
        }
        return nullptr;
    }
    void Notify(HWND child, WORD code) {
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(child), code), reinterpret_cast<LPARAM>(child));
    }

    qs::win::Win32System system;
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    BrowseForm form{system};
    std::wstring apps;
    HWND window = nullptr;
};

TEST_F(BrowseKindsTest, AnOptionButtonClickTurnsItOnAndItsNeighbourOff) {
    const HWND first = Child(L"BUTTON", L"Program");
    const HWND second = Child(L"BUTTON", L"File");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    form.First.SetValue(true);
    EXPECT_EQ(::SendMessageW(first, BM_GETCHECK, 0, 0), BST_CHECKED);
    Notify(second, BN_CLICKED);
    EXPECT_TRUE(form.Second.Value());
    EXPECT_EQ(::SendMessageW(second, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(::SendMessageW(first, BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(BrowseKindsTest, AFrameIsAGroupBoxAndHidingItHidesWhatItHolds) {
    const HWND group = Child(L"BUTTON", L"Select Item To Add :");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(::GetWindowLongPtrW(group, GWL_STYLE) & BS_TYPEMASK, BS_GROUPBOX);
    const HWND first = Child(L"BUTTON", L"Program");
    EXPECT_TRUE(::IsWindowVisible(first));
    form.Group.SetVisible(false);
    EXPECT_FALSE(::IsWindowVisible(first));
    EXPECT_TRUE(form.First.Visible());
    form.Group.SetVisible(true);
    EXPECT_TRUE(::IsWindowVisible(first));
}

TEST_F(BrowseKindsTest, TheDriveBoxIsADropDownListOfTheDrives) {
    const HWND combo = Child(L"COMBOBOX");
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), form.Drives.ListCount());
    ASSERT_GT(form.Drives.ListCount(), 0);
    EXPECT_EQ(form.Drives.List(0)[1], L':');
    int changes = 0;
    form.Drives.Change = [&] { ++changes; };
    ::SendMessageW(combo, CB_SETCURSEL, 0, 0);
    Notify(combo, CBN_SELCHANGE);
    EXPECT_EQ(form.Drives.ListIndex(), 0);
    form.Drives.SetDrive(apps);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCURSEL, 0, 0), form.Drives.ListIndex());
    EXPECT_GE(changes, 1);
}

TEST_F(BrowseKindsTest, TheFolderBoxIndentsByDepthAndADoubleClickOpensAFolder) {
    const HWND dirs = ListStartingWith(apps.substr(0, 3));
    ASSERT_NE(dirs, nullptr);
    const auto count = static_cast<std::int32_t>(::SendMessageW(dirs, LB_GETCOUNT, 0, 0));
    ASSERT_EQ(count, form.Dirs.ListCount());
    wchar_t text[MAX_PATH] = {};
    ::SendMessageW(dirs, LB_GETTEXT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(std::wstring(text), std::wstring(static_cast<std::size_t>(form.Dirs.DepthAt(count - 1)) * 3, L' ') + L"Sub");
    ::SendMessageW(dirs, LB_SETCURSEL, static_cast<WPARAM>(count - 1), 0);
    Notify(dirs, LBN_DBLCLK);
    EXPECT_EQ(form.Dirs.Path(), apps + L"\\Sub");
    EXPECT_EQ(::SendMessageW(dirs, LB_GETCOUNT, 0, 0), form.Dirs.ListCount());
}

TEST_F(BrowseKindsTest, TheFileBoxListsVisibleFilesAndASingleClickChoosesOne) {
    EXPECT_EQ(form.Files.Items(), (std::vector<std::wstring>{L"notes.txt", L"run.exe"}));
    const HWND files = ListStartingWith(L"notes.txt");
    ASSERT_NE(files, nullptr);
    int clicks = 0;
    form.Files.Click = [&] { ++clicks; };
    ::SendMessageW(files, LB_SETCURSEL, 1, 0);
    Notify(files, LBN_SELCHANGE);
    EXPECT_EQ(form.Files.FileName(), L"run.exe");
    EXPECT_EQ(clicks, 1);
    form.Files.SetPattern(L"*.exe");
    EXPECT_EQ(::SendMessageW(files, LB_GETCOUNT, 0, 0), 1);
}

TEST(Win32Browsing, AFolderThatCannotBeReadThrowsAndTheDrivesHaveTypes) {
    qs::win::Win32System system;
    EXPECT_THROW(system.ListFolder(L"C:\\no such folder here\\x"), qs::SystemCallFailed);
    bool fixed = false;
    for (const auto& drive : system.ListDrives()) fixed = fixed || drive.type == qs::DriveType::Fixed;
    EXPECT_TRUE(fixed);
    const auto listing = system.ListFolder(MakeFolder());
    ASSERT_EQ(listing.folders.size(), 1u);
    EXPECT_EQ(listing.folders[0].name, L"Sub");
    EXPECT_EQ(listing.files.size(), 3u);
}

}  // namespace
