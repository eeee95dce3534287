// The option buttons, frames and the drive, folder and file boxes of the
// control runtime, over the test system's folders.
#include <gtest/gtest.h>

#include "common/failure.h"
#include "fake_system.h"
#include "ui/dir_list_box.h"
#include "ui/drive_list_box.h"
#include "ui/file_list_box.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/option_button.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

Names Items(const ui::ListBox& list) { return list.Items(); }

// A peer that counts what it was told.
struct CountingPeer : ui::ControlPeer {
    int visibleChanges = 0;
    void Changed(ui::Property what) override {
        if (what == ui::Property::Visible) ++visibleChanges;
    }
};

TEST(OptionButtons, TurningOneOnTurnsTheOthersOfItsGroupOffAndClicksOnlyWhenItWasOff) {
    ui::Form form(L"f", ui::FormStyle::Dialog);
    ui::OptionButton a(form, L"a"), b(form, L"b");
    int clicks = 0;
    a.Click = [&] { ++clicks; };
    a.SetValue(true);
    a.SetValue(true);
    EXPECT_EQ(clicks, 1);
    b.SetValue(true);
    EXPECT_FALSE(a.Value());
    a.UserClicked();
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(b.Value());
}

TEST(OptionButtons, ButtonsInDifferentFramesAreDifferentGroups) {
    ui::Form form(L"f", ui::FormStyle::Dialog);
    ui::Frame one(form, L"one"), two(form, L"two");
    ui::OptionButton a(form, L"a"), b(form, L"b"), c(form, L"c");
    one.Place(a, 0, 0, 10, 10);
    one.Place(b, 0, 20, 10, 10);
    two.Place(c, 0, 0, 10, 10);
    a.SetValue(true);
    c.SetValue(true);
    EXPECT_TRUE(a.Value());
    b.SetValue(true);
    EXPECT_FALSE(a.Value());
    EXPECT_TRUE(c.Value());
}

TEST(OptionButtons, AButtonThatIsNotShownTakesNoClick) {
    ui::Form form(L"f", ui::FormStyle::Dialog);
    ui::Frame frame(form, L"frame");
    ui::OptionButton a(form, L"a");
    frame.Place(a, 0, 0, 10, 10);
    frame.SetVisible(false);
    a.UserClicked();
    EXPECT_FALSE(a.Value());
}

TEST(Frames, APlacedControlTakesTheFormsCoordinatesAndHidesWithItsFrame) {
    ui::Form form(L"f", ui::FormStyle::Dialog);
    ui::Frame frame(form, L"frame", L"Caption");
    frame.Move(100, 200, 1000, 1000);
    ui::OptionButton a(form, L"a");
    frame.Place(a, 30, 40, 50, 60);
    EXPECT_EQ(a.Left(), 130);
    EXPECT_EQ(a.Top(), 240);
    EXPECT_EQ(a.Container(), &frame);
    CountingPeer peer;
    a.AttachPeer(&peer);
    frame.SetVisible(false);
    EXPECT_TRUE(a.Visible());
    EXPECT_FALSE(a.Shown());
    EXPECT_EQ(peer.visibleChanges, 1);
    frame.SetVisible(true);
    EXPECT_TRUE(a.Shown());
    a.AttachPeer(nullptr);
}

struct Boxes : ::testing::Test {
    FakeSystem sys;
    ui::Form form{L"f", ui::FormStyle::Dialog};
    void SetUp() override {
        sys.PutFile(L"C:\\Apps\\b.exe");
        sys.PutFile(L"C:\\Apps\\A.EXE");
        sys.PutFile(L"C:\\Apps\\notes.txt");
        sys.PutFile(L"C:\\Apps\\secret.exe");
        sys.PutFile(L"C:\\Apps\\core.exe");
        sys.PutFile(L"C:\\Apps\\Sub\\x.txt");
        sys.PutFile(L"C:\\Apps\\Old\\x.txt");
        sys.PutFile(L"C:\\Apps\\Hid\\x.txt");
        sys.attributes[L"c:\\apps\\secret.exe"] = 34;
        sys.attributes[L"c:\\apps\\core.exe"] = 4;
        sys.attributes[L"c:\\apps\\hid"] = 18;
    }
};

TEST_F(Boxes, TheDriveBoxShowsDrivesAsWindowsDoes) {
    sys.volumeNames[L'C'] = L"System";
    sys.MapDrive(L'A', DriveType::Removable);
    sys.volumeNames[L'A'] = L"Stick";
    sys.notReady.push_back(L'A');
    ui::DriveListBox drives(form, L"d", sys);
    drives.Refresh();
    EXPECT_EQ(Items(drives), (Names{L"a:", L"c: [System]"}));
    EXPECT_EQ(drives.Drive(), L"");
}

TEST_F(Boxes, TheDriveBoxChangesOnACodeWriteOfAnotherDriveOnly) {
    sys.MapDrive(L'D', DriveType::Fixed);
    ui::DriveListBox drives(form, L"d", sys);
    int changes = 0;
    drives.Change = [&] { ++changes; };
    drives.Refresh();
    drives.SetDrive(L"c:\\Apps");
    EXPECT_EQ(drives.Drive(), L"c:");
    drives.SetDrive(L"C: [x]");
    EXPECT_EQ(changes, 1);
    drives.UserSelected(1);
    EXPECT_EQ(drives.Drive(), L"d:");
    EXPECT_EQ(changes, 2);
    EXPECT_THROW(drives.SetDrive(L"q:"), SystemCallFailed);
    EXPECT_EQ(drives.Drive(), L"d:");
}

TEST_F(Boxes, TheFolderBoxShowsTheTreeOfItsPathAndLeavesHiddenFoldersOut) {
    ui::DirListBox dirs(form, L"dir", sys);
    dirs.SetPath(L"C:\\Apps\\");
    EXPECT_EQ(dirs.Path(), L"C:\\Apps");
    EXPECT_EQ(Items(dirs), (Names{L"C:\\", L"Apps", L"Old", L"Sub"}));
    EXPECT_EQ(dirs.DepthAt(0), 0);
    EXPECT_EQ(dirs.DepthAt(1), 1);
    EXPECT_EQ(dirs.DepthAt(3), 2);
    EXPECT_EQ(dirs.FolderAt(3), L"C:\\Apps\\Sub");
    EXPECT_EQ(dirs.ListIndex(), 1);
}

TEST_F(Boxes, TheFolderBoxChangesOnACodeWriteAndOnADoubleClick) {
    ui::DirListBox dirs(form, L"dir", sys);
    int changes = 0;
    dirs.Change = [&] { ++changes; };
    dirs.SetPath(L"C:\\Apps");
    dirs.SetPath(L"C:\\Apps");
    EXPECT_EQ(changes, 1);
    dirs.UserOpened(3);
    EXPECT_EQ(dirs.Path(), L"C:\\Apps\\Sub");
    EXPECT_EQ(changes, 2);
    dirs.UserOpened(0);
    EXPECT_EQ(dirs.Path(), L"C:\\");
}

TEST_F(Boxes, AFolderThatCannotBeReadLeavesTheFolderBoxWhereItWas) {
    ui::DirListBox dirs(form, L"dir", sys);
    dirs.SetPath(L"C:\\Apps");
    EXPECT_THROW(dirs.SetPath(L"C:\\Gone"), SystemCallFailed);
    sys.MapDrive(L'A', DriveType::Removable);
    sys.notReady.push_back(L'A');
    EXPECT_THROW(dirs.SetPath(L"a:"), SystemCallFailed);
    EXPECT_EQ(dirs.Path(), L"C:\\Apps");
    EXPECT_EQ(Items(dirs).size(), 4u);
}

TEST_F(Boxes, ADriveAloneTakesTheFolderBoxBackToTheFolderLastShownThere) {
    sys.MapDrive(L'D', DriveType::Fixed);
    ui::DirListBox dirs(form, L"dir", sys);
    dirs.SetPath(L"C:\\Apps\\Sub");
    dirs.SetPath(L"d: [Data]");
    EXPECT_EQ(dirs.Path(), L"D:\\");
    dirs.SetPath(L"c:");
    EXPECT_EQ(dirs.Path(), L"C:\\Apps\\Sub");
}

TEST_F(Boxes, TheFileBoxListsMatchingFilesByNameLeavingHiddenAndSystemFilesOut) {
    ui::FileListBox files(form, L"file", sys);
    files.SetPattern(L"*.exe");
    files.SetPath(L"C:\\Apps");
    EXPECT_EQ(Items(files), (Names{L"A.EXE", L"b.exe"}));
    files.SetPattern(L"*.*");
    EXPECT_EQ(Items(files), (Names{L"A.EXE", L"b.exe", L"notes.txt"}));
}

TEST_F(Boxes, TheFileBoxGivesTheChosenNameAndClicksOnAChoice) {
    ui::FileListBox files(form, L"file", sys);
    int clicks = 0;
    files.Click = [&] { ++clicks; };
    files.SetPath(L"C:\\Apps");
    EXPECT_EQ(files.FileName(), L"");
    files.UserSelected(2);
    EXPECT_EQ(files.FileName(), L"notes.txt");
    EXPECT_EQ(clicks, 1);
    sys.PutFile(L"C:\\Apps\\new.txt");
    files.Refresh();
    EXPECT_EQ(files.ListIndex(), -1);
    EXPECT_EQ(files.ListCount(), 4);
    EXPECT_THROW(files.SetPath(L"C:\\Gone"), SystemCallFailed);
    EXPECT_EQ(files.Path(), L"C:\\Apps");
}

TEST(FilePatterns, WildcardsMatchIgnoringCase) {
    EXPECT_TRUE(ui::MatchesPattern(L"README", L"*.*"));
    EXPECT_TRUE(ui::MatchesPattern(L"A.EXE", L"*.exe"));
    EXPECT_FALSE(ui::MatchesPattern(L"a.exe1", L"*.exe"));
    EXPECT_FALSE(ui::MatchesPattern(L"exe", L"*.exe"));
    EXPECT_TRUE(ui::MatchesPattern(L"ab.txt", L"a?.t*"));
}

TEST(FolderPaths, ABackslashIsAddedOnlyWhenMissing) {
    EXPECT_EQ(ui::WithTrailingBackslash(L"C:\\"), L"C:\\");
    EXPECT_EQ(ui::WithTrailingBackslash(L"C:\\Apps"), L"C:\\Apps\\");
}

}  // namespace
}  // namespace qs::test
