// A running program's path found by pointing at one of its windows: the
// press on "Find Program Path", the ticks that keep the window under the
// pointer, and the release that fills TextAddPath or says the path was not
// found.
#include <gtest/gtest.h>

#include "browse_setup.h"
#include "shown_messages.h"
#include "windows/cls_active_process.h"

namespace qs::test {
namespace {

constexpr WindowHandle PlayerWindow = 0x1234;
constexpr WindowHandle DesktopWindow = 0x10010;
constexpr std::uint32_t PlayerProcess = 4242;
constexpr std::uint32_t ShellProcess = 77;

ProcessEntry Process(std::uint32_t id, const wchar_t* file) {
    ProcessEntry entry;
    entry.th32ProcessID = id;
    entry.szExeFile = file;
    return entry;
}

struct FindPath : ::testing::Test {
    TestApp t;
    FrmBrowse& pane = t.app.frmBrowse;
    void SetUp() override {
        t.sys.MapDrive(L'C', DriveType::Fixed);
        LoadBrowseOverApps(t);
        OpenBrowse(t, 0);
        t.sys.windowsAt[{400, 300}] = PlayerWindow;
        t.sys.windowOwners[PlayerWindow] = PlayerProcess;
        t.sys.processPaths[PlayerProcess] = L"C:\\Apps\\player.exe";
        t.sys.windowsAt[{5, 900}] = DesktopWindow;
        t.sys.windowOwners[DesktopWindow] = ShellProcess;
        t.sys.processPaths[ShellProcess] = L"C:\\Windows\\explorer.exe";
        t.sys.processList = std::vector<ProcessEntry>{Process(ShellProcess, L"explorer.exe"),
                                                      Process(PlayerProcess, L"player.exe")};
    }
    void Press() { pane.PictureFindPath.UserMouseDown(ui::LeftButton, 0, 100, 100); }
    void Release() { pane.PictureFindPath.UserMouseUp(ui::LeftButton, 0, 100, 100); }
    void PointAt(std::int32_t x, std::int32_t y) {
        t.sys.cursor = {x, y};
        pane.TimerFindPath.Fire();
    }
};

TEST_F(FindPath, ReleasingOverAProgramsWindowFillsItsPathAndGivesTheNameBoxTheFocus) {
    Press();
    EXPECT_TRUE(pane.IsFindingPath());
    EXPECT_TRUE(pane.TimerFindPath.Enabled());
    EXPECT_EQ(pane.MousePointer(), 12);
    PointAt(400, 300);
    Release();
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps\\player.exe");
    EXPECT_TRUE(pane.TextAddName.Enabled());
    EXPECT_FALSE(pane.IsFindingPath());
    EXPECT_FALSE(pane.TimerFindPath.Enabled());
    EXPECT_EQ(pane.MousePointer(), 0);
    EXPECT_EQ(pane.PictureFindPath.Picture(), t.app.theme.ImageZeroSet[2]);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(FindPath, APressAndReleaseQuickerThanTheFirstTickEndsInPathNotFound) {
    pane.TextAddPath.SetText(L"C:\\Tools\\kept.exe");
    Press();
    Release();
    EXPECT_EQ(pane.LastPointedWindow(), 0u);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageExePathNotFound");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Tools\\kept.exe");
}

TEST_F(FindPath, ReleasingOverTheDesktopFillsInTheShellsPath) {
    Press();
    PointAt(5, 900);
    Release();
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Windows\\explorer.exe");
}

TEST_F(FindPath, AProcessWithoutAPathShowsPathNotFoundAndLeavesThePathAsItWas) {
    t.sys.processPaths.erase(PlayerProcess);
    pane.TextAddPath.SetText(L"C:\\Tools\\kept.exe");
    Press();
    PointAt(400, 300);
    Release();
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageExePathNotFound");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Tools\\kept.exe");
}

TEST_F(FindPath, ThePlaceUsedIsThatOfTheLastTickNotThatOfTheRelease) {
    Press();
    PointAt(400, 300);
    // The pointer moves on to the desktop, but no tick sees it there.
    t.sys.cursor = {5, 900};
    Release();
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps\\player.exe");
}

TEST_F(FindPath, APathUnderTheWindowsFolderIsAcceptedHere) {
    t.sys.processPaths[PlayerProcess] = L"C:\\Windows\\notepad.exe";
    Press();
    PointAt(400, 300);
    Release();
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Windows\\notepad.exe");
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(FindPath, ASecondPressDuringTheDragDoesNotStartItAgain) {
    Press();
    PointAt(400, 300);
    const auto walks = t.sys.snapshotRequests.size();
    Press();
    EXPECT_EQ(t.sys.snapshotRequests.size(), walks);
    // The drag goes on with the window it had seen.
    EXPECT_EQ(pane.LastPointedWindow(), PlayerWindow);
    EXPECT_EQ(pane.PictureFindPath.Picture(), t.app.theme.ImageZeroOver);
}

TEST_F(FindPath, ThePressTakesTheProcessListWithNoFlagsAndShowsTheDragPicture) {
    Press();
    ASSERT_EQ(t.sys.snapshotRequests.size(), 1u);
    EXPECT_EQ(t.sys.snapshotRequests[0], std::make_pair(0u, 0u));
    EXPECT_EQ(pane.PictureFindPath.Picture(), t.app.theme.ImageZeroSet[3]);
}

TEST_F(FindPath, AFailingProcessServiceAtThePressReportsTheDownTag) {
    t.sys.processServicesFail = true;
    Press();
    EXPECT_TRUE(BugShown(t, L"Bug-Quillstart-FindExecutableDown"));
    EXPECT_FALSE(pane.IsFindingPath());
}

TEST_F(FindPath, AFailingProcessServiceAtTheReleaseReportsTheUpTag) {
    Press();
    PointAt(400, 300);
    t.sys.processServicesFail = true;
    Release();
    EXPECT_TRUE(BugShown(t, L"Bug-Quillstart-FindExecutableUp"));
    EXPECT_FALSE(pane.IsFindingPath());
    EXPECT_EQ(pane.TextAddPath.Text(), L"");
}

TEST_F(FindPath, ATickPastTheSixteenBitRangeFailsLikeAnyUnhandledEvent) {
    Press();
    t.sys.cursor = {40000, 10};
    EXPECT_THROW(pane.TimerFindPath.Fire(), Overflow);
}

TEST(ActiveProcess, TheWalkPutsTheFirstProcessAtPositionOneAndGrowsByTwenty) {
    FakeSystem sys;
    std::vector<ProcessEntry> list;
    for (std::uint32_t i = 1; i <= 45; ++i) list.push_back(Process(i * 10, L"p.exe"));
    sys.processList = list;
    clsActiveProcess processes(sys);
    EXPECT_EQ(processes.GetActiveProcess(), 45);
    EXPECT_EQ(processes.th32ProcessID(1), 10u);
    EXPECT_EQ(processes.th32ProcessID(45), 450u);
    EXPECT_EQ(processes.szExeFile(0), L"");
    EXPECT_EQ(processes.dwSize(1), 296u);
    // Positions to 60 exist after the walk passed 40; 61 does not.
    EXPECT_EQ(processes.th32ProcessID(60), 0u);
    EXPECT_THROW(processes.th32ProcessID(61), SubscriptOutOfRange);
}

TEST(ActiveProcess, NoSnapshotGivesNoProcessesAndAFailedFirstStepLeavesPositionZero) {
    FakeSystem sys;
    sys.processList = std::nullopt;
    clsActiveProcess none(sys);
    EXPECT_EQ(none.GetActiveProcess(), 0);
    EXPECT_THROW(none.szExeFile(0), SubscriptOutOfRange);
    sys.processList = std::vector<ProcessEntry>{};
    clsActiveProcess empty(sys);
    EXPECT_EQ(empty.GetActiveProcess(), 0);
    EXPECT_EQ(empty.szExeFile(20), L"");
    EXPECT_THROW(empty.szExeFile(21), SubscriptOutOfRange);
}

}  // namespace
}  // namespace qs::test
