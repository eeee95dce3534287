#include <gtest/gtest.h>

#include "data/launch_list.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct FlashLoad : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFlashRun(t, L'E'); }
};

// Copies a file from one run's disk to another's, at another path if needed.
void CopyFile(TestApp& from, const std::wstring& fromPath, TestApp& to, const std::wstring& toPath) {
    to.sys.PutFile(toPath, from.sys.FileBytes(fromPath));
}

TEST_F(FlashLoad, FlashSideFileMergesBehindTheComputerSide) {
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    t.sys.PutFile(L"E:\\Tools\\a.exe");
    t.sys.PutFile(L"E:\\Tools\\c.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"bee", "C:\\Apps\\b.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"ant", "#:\\Tools\\a.exe"}, {"cat", "#:\\Tools\\c.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.app.settings.USBProgramLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"ant", L"bee", L"cat"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\Tools\\a.exe", L"C:\\Apps\\b.exe", L"E:\\Tools\\c.exe"}));
    EXPECT_EQ(Entries(FlashNames(t, 2)), (Names{L"ant", L"cat"}));
    EXPECT_EQ(Entries(FlashPaths(t, 2)), (Names{L"E:\\Tools\\a.exe", L"E:\\Tools\\c.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (Names{L"bee"}));
}

TEST_F(FlashLoad, FlashSideItemSavedUnderEResolvesUnderG) {
    t.sys.PutFile(L"E:\\Tools\\a.exe");
    FlashNames(t, 2).AddItem(L"tool");
    FlashPaths(t, 2).AddItem(L"E:\\Tools\\a.exe");
    MergedNames(t, 2).AddItem(L"tool");
    MergedPaths(t, 2).AddItem(L"E:\\Tools\\a.exe");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbProg), "\"tool\",\"#:\\Tools\\a.exe\"\r\n");

    TestApp next;
    SetUpFlashRun(next, L'G');
    next.sys.PutFile(L"G:\\Tools\\a.exe");
    CopyFile(t, t.app.place.FileListUsbProg, next, next.app.place.FileListUsbProg);
    next.app.settings = t.app.settings;
    LaunchListLoad(next.app);
    EXPECT_EQ(Entries(MergedPaths(next, 2)), (Names{L"G:\\Tools\\a.exe"}));
    EXPECT_EQ(Entries(FlashPaths(next, 2)), (Names{L"G:\\Tools\\a.exe"}));
    next.Type(L"p-to");
    next.Enter();
    EXPECT_EQ(next.LastTarget(), L"G:\\Tools\\a.exe");
}

TEST_F(FlashLoad, FlashTargetNotBeginningWithTheExactDriveLetterIsStoredUnchangedAndDroppedAfterALetterChange) {
    FlashNames(t, 0).AddItem(L"notes");
    FlashPaths(t, 0).AddItem(L"e:\\notes.txt");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbFile), "\"notes\",\"e:\\notes.txt\"\r\n");

    TestApp next;
    SetUpFlashRun(next, L'G');
    next.sys.PutFile(L"G:\\notes.txt");
    CopyFile(t, t.app.place.FileListUsbFile, next, next.app.place.FileListUsbFile);
    next.app.settings = t.app.settings;
    LaunchListLoad(next.app);
    EXPECT_EQ(MergedNames(next, 0).ListCount(), 0);
    EXPECT_TRUE(ShownMessages(next).empty());
}

TEST_F(FlashLoad, EmptyNameOrTargetEndsTheFlashSideLoadSilently) {
    t.sys.PutFile(L"E:\\a.exe");
    t.sys.PutFile(L"E:\\c.exe");
    t.sys.PutFile(t.app.place.FileListUsbProg,
                  ListFileBytes({{"a", "#:\\a.exe"}, {"b", ""}, {"c", "#:\\c.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbFile, ListFileBytes({{"", "#:\\a.exe"}, {"c", "#:\\c.exe"}}));
    t.app.settings.USBProgramLast = 2;
    t.app.settings.USBFileLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a"}));
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(FlashLoad, ComputerSideEmptyTargetDoesNotStopTheLoad) {
    t.sys.PutFile(L"C:\\c.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"a", ""}, {"c", "C:\\c.exe"}}));
    t.app.settings.HDDProgramLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"c"}));
}

TEST_F(FlashLoad, FlashRunOnAComputerNeverSeenBeforeStartsWithEmptyComputerListsButSharedItems) {
    // Another computer left its lists on the drive.
    TestApp other;
    SetUpFlashRun(other, L'E', L"OTHERPC");
    other.sys.PutFile(L"C:\\x.exe");
    other.sys.PutFile(L"E:\\t.exe");
    ComputerNames(other, 2).AddItem(L"x");
    ComputerPaths(other, 2).AddItem(L"C:\\x.exe");
    FlashNames(other, 2).AddItem(L"t");
    FlashPaths(other, 2).AddItem(L"E:\\t.exe");
    MergedNames(other, 3).AddItem(L"me");
    MergedPaths(other, 3).AddItem(L"me@a.example");
    MergedNames(other, 4).AddItem(L"site");
    MergedPaths(other, 4).AddItem(L"http://a.example");
    LaunchListSaveAtExit(other.app, {});

    // This computer: same drive contents, its own computer folder is new.
    t.sys.PutFile(L"C:\\x.exe");
    t.sys.PutFile(L"E:\\t.exe");
    for (const auto* path : {&other.app.place.FileListUsbProg, &other.app.place.FileListMail, &other.app.place.FileListWeb})
        CopyFile(other, *path, t, *path);
    t.app.settings = other.app.settings;
    t.app.settings.HDDFileLast = t.app.settings.HDDFolderLast = t.app.settings.HDDProgramLast = -1;
    EXPECT_NE(t.app.place.FileListProg, other.app.place.FileListProg);
    EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListProg));
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(ComputerNames(t, 2)), Names{});
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"t"}));
    EXPECT_EQ(Entries(MergedNames(t, 3)), (Names{L"me"}));
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"site"}));
}

TEST_F(FlashLoad, SameNameOnBothSidesIsMergedTwiceResolvesToTheFirstAndBothSurviveASave) {
    t.sys.PutFile(L"C:\\Apps\\ed.exe");
    t.sys.PutFile(L"E:\\Apps\\ed.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"Editor", "C:\\Apps\\ed.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"Editor", "#:\\Apps\\ed.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.app.settings.USBProgramLast = 0;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"Editor", L"Editor"}));
    // The flash-side target went to the position of the first equal name.
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\Apps\\ed.exe", L"C:\\Apps\\ed.exe"}));
    t.Type(L"p-edi");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"E:\\Apps\\ed.exe");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListProg), ListFileBytes({{"Editor", "C:\\Apps\\ed.exe"}}));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbProg), ListFileBytes({{"Editor", "#:\\Apps\\ed.exe"}}));
}

TEST_F(FlashLoad, OutOfOrderFlashFileMergedIntoAListThatHoldsItemsKeepsMergedPairs) {
    t.sys.PutFile(L"C:\\m.exe");
    t.sys.PutFile(L"E:\\z.exe");
    t.sys.PutFile(L"E:\\a.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"mid", "C:\\m.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"Zed", "#:\\z.exe"}, {"Apple", "#:\\a.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.app.settings.USBProgramLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"Apple", L"mid", L"Zed"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\a.exe", L"C:\\m.exe", L"E:\\z.exe"}));
    // The hidden flash-side lists append their targets as the computer side does.
    EXPECT_EQ(Entries(FlashPaths(t, 2)), (Names{L"E:\\z.exe", L"E:\\a.exe"}));
}

TEST_F(FlashLoad, OutOfOrderFlashFileIntoAnEmptyListMispairsAsTheComputerSideDoes) {
    t.sys.PutFile(L"E:\\z.exe");
    t.sys.PutFile(L"E:\\a.exe");
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"Zed", "#:\\z.exe"}, {"Apple", "#:\\a.exe"}}));
    t.app.settings.USBProgramLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"Apple", L"Zed"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\z.exe", L"E:\\a.exe"}));
}

TEST_F(FlashLoad, FlashFolderGroupTestsFoldersAndOtherGroupsFiles) {
    std::filesystem::create_directories(t.sys.HostPath(L"E:\\Music"));
    t.sys.PutFile(L"E:\\song.mp3");
    t.sys.PutFile(t.app.place.FileListUsbFold, ListFileBytes({{"music", "#:\\Music"}, {"song", "#:\\song.mp3"}}));
    t.sys.PutFile(t.app.place.FileListUsbFile, ListFileBytes({{"music", "#:\\Music"}, {"song", "#:\\song.mp3"}}));
    t.app.settings.USBFolderLast = 1;
    t.app.settings.USBFileLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 1)), (Names{L"music"}));
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"song"}));
}

TEST_F(FlashLoad, FlashSideFileShorterThanItsCounterShowsItsOwnTag) {
    t.sys.PutFile(L"E:\\a.exe");
    t.sys.PutFile(t.app.place.FileListUsbProg, ListFileBytes({{"a", "#:\\a.exe"}}));
    t.app.settings.USBProgramLast = 3;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a"}));
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGetUSB"));
}

TEST_F(FlashLoad, FlashSideLoadOfAGroupWithoutAFlashSideShowsTheBugDialog) {
    ActionLaunchListGetUSB(t.app, 3, 0);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGetUSB"));
}

}  // namespace
}  // namespace qs::test
