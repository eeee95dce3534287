// Every event a control declares reaches it from its real window: each test
// sends the message a person's input makes to the control's child window
// and sees the control's event fire.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "backend_test_form.h"
#include "dpi.h"
#include "ui/check_box.h"
#include "ui/combo_box.h"
#include "ui/command_button.h"
#include "ui/dir_list_box.h"
#include "ui/drive_list_box.h"
#include "ui/file_list_box.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/list_box.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "win32_backend.h"
#include "win32_system.h"
#include "window_names.h"
#include "window_test_support.h"

namespace {

using qs::test::Pump;
using qs::test::PumpUntil;
using qs::test::Win32BackendTest;

struct MouseEvent {
    int count = 0;
    std::int16_t button = -1;
    std::int16_t shift = -1;
    std::int32_t x = -1;
    std::int32_t y = -1;
};

TEST_F(Win32BackendTest, ThePointerMovingOverALabelIsItsMouseMoveInTwips) {
    const HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    ASSERT_NE(label, nullptr);
    MouseEvent seen;
    form.Caption.MouseMove = [&](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        seen = {seen.count + 1, button, shift, x, y};
    };
    ::SendMessageW(label, WM_MOUSEMOVE, MK_LBUTTON | MK_SHIFT, MAKELPARAM(10, 5));
    const UINT dpi = qs::win::WindowDpi(window);
    EXPECT_EQ(seen.count, 1);
    EXPECT_EQ(seen.button, qs::ui::LeftButton);
    EXPECT_EQ(seen.shift, 1);
    EXPECT_EQ(seen.x, qs::win::PixelsToTwips(10, dpi));
    EXPECT_EQ(seen.y, qs::win::PixelsToTwips(5, dpi));
    ::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(seen.count, 2);
    EXPECT_EQ(seen.button, 0);
}

class PictureForm : public qs::ui::Form {
public:
    PictureForm() : Form(L"frmPictureTest", qs::ui::FormStyle::Borderless), Close(*this, L"Picture1") {
        SetCaption(L"QuillstartPictureTest");
        Move(1500, 1500, 4000, 1500);
        Close.Move(120, 120, 480, 480);
    }
    qs::ui::PictureBox Close;
};

class PictureEventsTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        form.SetBackend(&backend);
        form.Load();
        form.Show();
        Pump();
        picture = ::FindWindowExW(backend.WindowOf(form), nullptr, qs::win::kPictureClass, nullptr);
        ASSERT_NE(picture, nullptr);
    }
    void TearDown() override { form.Unload(); }

    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    PictureForm form;
    HWND picture = nullptr;
};

TEST_F(PictureEventsTest, EnterAndSpaceOnAPictureThatHoldsTheFocusAreItsKeyPress) {
    std::wstring keys;
    form.Close.KeyPress = [&](std::int16_t& key) { keys += static_cast<wchar_t>(key); };
    form.Close.SetFocus();
    ASSERT_EQ(::GetFocus(), picture);
    // As a person types them: key down, turned into characters by the loop.
    for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_SPACE}}) {
        const LPARAM scan = static_cast<LPARAM>(::MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC)) << 16;
        ::PostMessageW(picture, WM_KEYDOWN, key, scan | 1);
        ::PostMessageW(picture, WM_KEYUP, key, scan | 1 | (LPARAM{3} << 30));
    }
    Pump();
    EXPECT_EQ(keys, L"\r ");
}

TEST_F(PictureEventsTest, APressAndReleaseOverThePictureAreMouseDownMouseUpAndClick) {
    std::wstring events;
    form.Close.MouseDown = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"D"; };
    form.Close.MouseUp = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"U"; };
    form.Close.Click = [&] { events += L"C"; };
    MouseEvent moved;
    form.Close.MouseMove = [&](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        moved = {moved.count + 1, button, shift, x, y};
    };
    ::SendMessageW(picture, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    ::SendMessageW(picture, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    ::SendMessageW(picture, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(moved.count, 1);
    EXPECT_EQ(events, L"DUC");
}

TEST_F(Win32BackendTest, AHandlerThatThrowsEndsOnlyItsOwnEventAndTheNextOneStillFires) {
    const HWND label = ::FindWindowExW(window, nullptr, L"STATIC", nullptr);
    const HWND button = ::FindWindowExW(window, nullptr, L"BUTTON", nullptr);
    ASSERT_NE(label, nullptr);
    ASSERT_NE(button, nullptr);
    int moves = 0;
    form.Caption.MouseMove = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        if (++moves == 1) throw std::runtime_error("handler failed");
    };
    int clicks = 0;
    form.Button.Click = [&] {
        if (++clicks == 1) throw std::runtime_error("handler failed");
    };
    // A label's window is hooked; a button's click comes through the form's window.
    EXPECT_NO_THROW(::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(2, 2)));
    EXPECT_NO_THROW(::SendMessageW(button, BM_CLICK, 0, 0));
    ::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    ::SendMessageW(button, BM_CLICK, 0, 0);
    EXPECT_EQ(moves, 2);
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(::IsWindow(label));
}

TEST_F(PictureEventsTest, AKeyPressThatThrowsLeavesThePictureTakingKeys) {
    int presses = 0;
    form.Close.KeyPress = [&](std::int16_t&) {
        if (++presses == 1) throw std::runtime_error("handler failed");
    };
    EXPECT_NO_THROW(::SendMessageW(picture, WM_CHAR, VK_RETURN, 1));
    ::SendMessageW(picture, WM_CHAR, VK_RETURN, 1);
    EXPECT_EQ(presses, 2);
}

TEST_F(PictureEventsTest, ThePicturesWindowTextIsItsTipOrElseItsAccessibleName) {
    using qs::test::TextOf;
    EXPECT_EQ(TextOf(picture), L"");
    form.Close.SetAccessibleName(L"Close");
    EXPECT_EQ(TextOf(picture), L"Close");
    form.Close.SetToolTipText(L"Close the pane");
    EXPECT_EQ(TextOf(picture), L"Close the pane");
    form.Close.SetAccessibleName(L"Shut");
    EXPECT_EQ(TextOf(picture), L"Close the pane");
    form.Close.SetToolTipText(L"");
    EXPECT_EQ(TextOf(picture), L"Shut");
}

TEST_F(Win32BackendTest, AListsWindowTextIsItsAccessibleNameFromTheMomentItIsMade) {
    form.HiddenList.SetAccessibleName(L"Launch Names");
    form.HiddenList.SetVisible(true);
    const HWND list = ::FindWindowExW(window, nullptr, L"LISTBOX", nullptr);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(qs::test::TextOf(list), L"Launch Names");
    form.HiddenList.SetAccessibleName(L"Names");
    EXPECT_EQ(qs::test::TextOf(list), L"Names");
}

// One control of every kind, each where no other lies.
class AllKindsForm : public qs::ui::Form {
public:
    explicit AllKindsForm(qs::FileBrowsing& files)
        : Form(L"frmAllKindsTest", qs::ui::FormStyle::Dialog),
          Box(*this, L"Text1"),
          Caption(*this, L"Label1", L"Name:"),
          Go(*this, L"Command1"),
          Tick(*this, L"Timer1", 0),
          Names(*this, L"List1", false),
          Choice(*this, L"Combo1", false),
          Picture(*this, L"Picture1"),
          Check(*this, L"Check1", L"Keep"),
          Option(*this, L"Option1", L"One"),
          Area(*this, L"Frame1", L"Area"),
          Drives(*this, L"Drive1", files),
          Dirs(*this, L"Dir1", files),
          Files(*this, L"File1", files) {
        SetCaption(L"QuillstartAllKindsTest");
        Move(600, 600, 9000, 6000);
        Box.Move(120, 120, 1800, 372);
        Caption.Move(2100, 120, 1500, 300);
        Go.Move(3800, 120, 1200, 372);
        Names.Move(120, 700, 1800, 1200);
        Choice.Move(2100, 700, 1800, 315);
        Picture.Move(4100, 700, 480, 480);
        Check.Move(5000, 700, 1500, 300);
        Option.Move(5000, 1100, 1500, 300);
        Area.Move(120, 2100, 3000, 900);
        Drives.Move(3300, 2100, 2400, 315);
        Dirs.Move(120, 3200, 2800, 1500);
        Files.Move(3100, 3200, 2800, 1500);
    }
    qs::ui::TextBox Box;
    qs::ui::Label Caption;
    qs::ui::CommandButton Go;
    qs::ui::Timer Tick;
    qs::ui::ListBox Names;
    qs::ui::ComboBox Choice;
    qs::ui::PictureBox Picture;
    qs::ui::CheckBox Check;
    qs::ui::OptionButton Option;
    qs::ui::Frame Area;
    qs::ui::DriveListBox Drives;
    qs::ui::DirListBox Dirs;
    qs::ui::FileListBox Files;
};

// A fresh folder with a folder Sub and the files a.txt and b.txt.
std::wstring MakeFolder() {
    wchar_t temp[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, temp);
    const std::wstring root = std::wstring(temp) + L"qsevents" + std::to_wstring(::GetTickCount());
    ::CreateDirectoryW(root.c_str(), nullptr);
    ::CreateDirectoryW((root + L"\\Sub").c_str(), nullptr);
    for (const wchar_t* name : {L"\\a.txt", L"\\b.txt"}) {
        const HANDLE file = ::CreateFileW((root + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        ::CloseHandle(file);
    }
    return root;
}

class ControlEventsTest : public ::testing::Test {
protected:
    void SetUp() override {
        Pump();
        folder = MakeFolder();
        for (const wchar_t* name : {L"alpha", L"beta", L"gamma"}) {
            form.Names.AddItem(name);
            form.Choice.AddItem(name);
        }
        form.Drives.Refresh();
        form.Dirs.SetPath(folder);
        form.Files.SetPath(folder);
        form.SetBackend(&backend);
        form.Load();
        form.Show();
        Pump();
        window = backend.WindowOf(form);
        ASSERT_NE(window, nullptr);
    }
    void TearDown() override { form.Unload(); }

    // The child window that lies at the middle of the control's place.
    HWND WindowOf(const qs::ui::Control& control) const {
        const UINT dpi = qs::win::WindowDpi(window);
        const POINT at{qs::win::TwipsToPixels(control.Left() + control.Width() / 2, dpi),
                       qs::win::TwipsToPixels(control.Top() + control.Height() / 2, dpi)};
        const HWND child = ::ChildWindowFromPointEx(window, at, CWP_SKIPINVISIBLE);
        return child == window ? nullptr : child;
    }
    // A left click at a point of the child window, as the mouse makes it.
    static void ClickAt(HWND child, int x, int y) {
        ::SendMessageW(child, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ::SendMessageW(child, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    // The middle of entry `index` of a list box window.
    static POINT EntryCentre(HWND list, int index) {
        RECT item{};
        ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        return {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    }

    qs::win::Win32System system;
    qs::win::Win32Backend backend{::GetModuleHandleW(nullptr)};
    AllKindsForm form{system};
    std::wstring folder;
    HWND window = nullptr;
};

TEST_F(ControlEventsTest, ATypedCharacterIsTheTextBoxsKeyPressThenItsChange) {
    const HWND edit = WindowOf(form.Box);
    ASSERT_NE(edit, nullptr);
    std::int16_t pressed = 0;
    int changes = 0;
    form.Box.KeyPress = [&](std::int16_t& key) { pressed = key; };
    form.Box.Change = [&] { ++changes; };
    ::SendMessageW(edit, WM_CHAR, L'q', 1);
    EXPECT_EQ(pressed, L'q');
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(form.Box.Text(), L"q");
}

TEST_F(ControlEventsTest, AClickOnALabelIsItsClickAndThePointerOverItItsMouseMove) {
    const HWND label = WindowOf(form.Caption);
    ASSERT_NE(label, nullptr);
    int clicks = 0;
    int moves = 0;
    form.Caption.Click = [&] { ++clicks; };
    form.Caption.MouseMove = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { ++moves; };
    ::SendMessageW(label, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    ClickAt(label, 4, 4);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlEventsTest, APressAndReleaseOverAButtonIsItsClick) {
    const HWND button = WindowOf(form.Go);
    ASSERT_NE(button, nullptr);
    int clicks = 0;
    form.Go.Click = [&] { ++clicks; };
    ClickAt(button, 5, 5);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlEventsTest, TheSystemsTimerMessageIsTheTimersTick) {
    int ticks = 0;
    form.Tick.Tick = [&] { ++ticks; };
    form.Tick.SetInterval(20);
    form.Tick.SetEnabled(true);
    EXPECT_TRUE(PumpUntil([&] { return ticks >= 2; }));
    form.Tick.SetEnabled(false);
}

TEST_F(ControlEventsTest, AClickOnAListEntryChoosesItAndIsTheListsClick) {
    const HWND list = WindowOf(form.Names);
    ASSERT_NE(list, nullptr);
    int clicks = 0;
    form.Names.Click = [&] { ++clicks; };
    const POINT beta = EntryCentre(list, 1);
    ClickAt(list, beta.x, beta.y);
    EXPECT_EQ(form.Names.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlEventsTest, AChoiceMadeInTheDropDownIsItsClickAndATypedKeyItsKeyPress) {
    const HWND combo = WindowOf(form.Choice);
    ASSERT_NE(combo, nullptr);
    int clicks = 0;
    std::int16_t pressed = 0;
    form.Choice.Click = [&] { ++clicks; };
    form.Choice.KeyPress = [&](std::int16_t& key) { pressed = key; };
    // Opened, moved down to the second entry and closed on it, as the keys do.
    ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    ::SendMessageW(combo, WM_KEYDOWN, VK_RETURN, 0);
    ::SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
    Pump();
    EXPECT_EQ(form.Choice.ListIndex(), 1);
    EXPECT_GE(clicks, 1);
    ::SendMessageW(combo, WM_CHAR, L'g', 0);
    EXPECT_EQ(pressed, L'g');
    EXPECT_EQ(form.Choice.ListIndex(), 2);
}

TEST_F(ControlEventsTest, APressAndReleaseOverAPictureAreItsMouseEventsAndClick) {
    const HWND picture = WindowOf(form.Picture);
    ASSERT_NE(picture, nullptr);
    std::wstring events;
    form.Picture.MouseDown = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"D"; };
    form.Picture.MouseUp = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { events += L"U"; };
    form.Picture.Click = [&] { events += L"C"; };
    form.Picture.KeyPress = [&](std::int16_t& key) { events += static_cast<wchar_t>(key); };
    ClickAt(picture, 4, 4);
    form.Picture.SetFocus();
    ::SendMessageW(::GetFocus(), WM_CHAR, VK_RETURN, 1);
    EXPECT_EQ(events, L"DUC\r");
}

TEST_F(ControlEventsTest, AClickOnACheckBoxTurnsItAndIsItsClick) {
    const HWND check = WindowOf(form.Check);
    ASSERT_NE(check, nullptr);
    int clicks = 0;
    form.Check.Click = [&] { ++clicks; };
    ClickAt(check, 4, 4);
    EXPECT_EQ(clicks, 1);
    EXPECT_NE(form.Check.Value(), 0);
    EXPECT_EQ(::SendMessageW(check, BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(ControlEventsTest, AClickOnAnOptionButtonTurnsItOnAndIsItsClick) {
    const HWND option = WindowOf(form.Option);
    ASSERT_NE(option, nullptr);
    int clicks = 0;
    form.Option.Click = [&] { ++clicks; };
    ClickAt(option, 4, 4);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.Option.Value());
}

TEST_F(ControlEventsTest, ThePointerOverAFrameIsItsMouseMove) {
    const HWND frame = WindowOf(form.Area);
    ASSERT_NE(frame, nullptr);
    MouseEvent seen;
    form.Area.MouseMove = [&](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        seen = {seen.count + 1, button, shift, x, y};
    };
    ::SendMessageW(frame, WM_MOUSEMOVE, 0, MAKELPARAM(20, 30));
    EXPECT_EQ(seen.count, 1);
    EXPECT_EQ(seen.x, qs::win::PixelsToTwips(20, qs::win::WindowDpi(window)));
}

TEST_F(ControlEventsTest, ADriveChosenInTheDriveBoxIsItsChange) {
    const HWND drives = WindowOf(form.Drives);
    ASSERT_NE(drives, nullptr);
    ASSERT_GE(form.Drives.ListCount(), 2);
    form.Drives.SetListIndex(0);
    int changes = 0;
    form.Drives.Change = [&] { ++changes; };
    ::SendMessageW(drives, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(form.Drives.ListIndex(), 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(ControlEventsTest, ADoubleClickOnAFolderOpensItAndIsTheFolderBoxsChange) {
    const HWND dirs = WindowOf(form.Dirs);
    ASSERT_NE(dirs, nullptr);
    const std::int32_t sub = form.Dirs.FindExact(L"Sub");
    ASSERT_GE(sub, 0);
    int changes = 0;
    form.Dirs.Change = [&] { ++changes; };
    const POINT at = EntryCentre(dirs, sub);
    ClickAt(dirs, at.x, at.y);
    ::SendMessageW(dirs, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageW(dirs, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    EXPECT_GE(changes, 1);
    EXPECT_EQ(form.Dirs.Path(), folder + L"\\Sub");
}

TEST_F(ControlEventsTest, AClickOnAFileChoosesItAndIsTheFileBoxsClick) {
    const HWND files = WindowOf(form.Files);
    ASSERT_NE(files, nullptr);
    ASSERT_EQ(form.Files.ListCount(), 2);
    int clicks = 0;
    form.Files.Click = [&] { ++clicks; };
    const POINT second = EntryCentre(files, 1);
    ClickAt(files, second.x, second.y);
    EXPECT_EQ(form.Files.ListIndex(), 1);
    EXPECT_EQ(form.Files.List(1), L"b.txt");
    EXPECT_EQ(clicks, 1);
}

}  // namespace
