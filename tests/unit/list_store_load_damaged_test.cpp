// A list file damaged part-way: the records before the damage are tested and
// added, present targets only, and then the bug dialog shows once with the
// loader's own tag. Targets are tested in one bulk call per file.
#include <gtest/gtest.h>

#include "data/launch_list.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct DamagedLoad : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFixedDiskRun(t); }
};

TEST_F(DamagedLoad, ProgramFileCutShortKeepsPresentTargetsReadBeforeTheCut) {
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(L"C:\\Apps\\c.exe");
    t.sys.PutFile(t.app.place.FileListProg,
                  ListFileBytes({{"ant", "C:\\Apps\\a.exe"}, {"bee", "C:\\Apps\\b.exe"}, {"cat", "C:\\Apps\\c.exe"}}));
    t.app.settings.HDDProgramLast = 6;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"ant", L"cat"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\Apps\\a.exe", L"C:\\Apps\\c.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (Names{L"ant", L"cat"}));
    EXPECT_EQ(Entries(ComputerPaths(t, 2)), (Names{L"C:\\Apps\\a.exe", L"C:\\Apps\\c.exe"}));
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(DamagedLoad, FolderFileWithANameButNoTargetAtTheEndKeepsTheFoldersBeforeIt) {
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Kept"));
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Also"));
    t.sys.PutFile(t.app.place.FileListFold,
                  ListFileBytes({{"Also", "C:\\Also"}, {"Gone", "C:\\Gone"}, {"Kept", "C:\\Kept"}}) + "\"Last\"");
    t.app.settings.HDDFolderLast = 3;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 1)), (Names{L"Also", L"Kept"}));
    EXPECT_EQ(Entries(ComputerPaths(t, 1)), (Names{L"C:\\Also", L"C:\\Kept"}));
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(DamagedLoad, DamagedFileDoesNotStopTheGroupsAfterIt) {
    t.sys.PutFile(L"C:\\Docs\\a.txt");
    t.sys.PutFile(L"C:\\Apps\\p.exe");
    t.sys.PutFile(t.app.place.FileListFile, ListFileBytes({{"a", "C:\\Docs\\a.txt"}}));
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"p", "C:\\Apps\\p.exe"}}));
    t.app.settings.HDDFileLast = 2;
    t.app.settings.HDDProgramLast = 0;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"a"}));
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"p"}));
    EXPECT_EQ(BugCount(t), 1);
}

struct DamagedFlashLoad : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFlashRun(t, L'E'); }
};

TEST_F(DamagedFlashLoad, FlashFileCutShortKeepsPresentTargetsMergedInStep) {
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    t.sys.PutFile(L"E:\\Tools\\a.exe");
    t.sys.PutFile(L"E:\\Tools\\d.exe");
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes({{"bee", "C:\\Apps\\b.exe"}}));
    t.sys.PutFile(t.app.place.FileListUsbProg,
                  ListFileBytes({{"ant", "#:\\Tools\\a.exe"}, {"cow", "#:\\Tools\\c.exe"}, {"dog", "#:\\Tools\\d.exe"}}));
    t.app.settings.HDDProgramLast = 0;
    t.app.settings.USBProgramLast = 5;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"ant", L"bee", L"dog"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\Tools\\a.exe", L"C:\\Apps\\b.exe", L"E:\\Tools\\d.exe"}));
    EXPECT_EQ(Entries(FlashNames(t, 2)), (Names{L"ant", L"dog"}));
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGetUSB"));
}

TEST_F(DamagedFlashLoad, FlashFileStopsAtAnEmptyTargetBeforeTheDamageWithoutAWord) {
    t.sys.PutFile(L"E:\\Tools\\a.exe");
    t.sys.PutFile(L"E:\\Tools\\c.exe");
    t.sys.PutFile(t.app.place.FileListUsbFile,
                  ListFileBytes({{"ant", "#:\\Tools\\a.exe"}, {"bare", ""}, {"cat", "#:\\Tools\\c.exe"}}));
    t.app.settings.USBFileLast = 9;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"ant"}));
    EXPECT_EQ(Entries(FlashPaths(t, 0)), (Names{L"E:\\Tools\\a.exe"}));
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(DamagedLoad, TargetsOfOneFolderAreTestedWithOneListing) {
    std::vector<std::pair<std::string, std::string>> records;
    for (char c = 'a'; c <= 'h'; ++c) {
        const std::string path = std::string("C:\\Apps\\") + c + ".exe";
        if (c != 'e') t.sys.PutFile(std::wstring(path.begin(), path.end()));
        records.push_back({std::string(1, c), path});
    }
    t.sys.PutFile(t.app.place.FileListProg, ListFileBytes(records));
    t.app.settings.HDDProgramLast = 7;
    const int before = t.sys.folderListings;
    LaunchListLoad(t.app);
    EXPECT_EQ(t.sys.folderListings - before, 1);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"a", L"b", L"c", L"d", L"f", L"g", L"h"}));
    EXPECT_TRUE(ShownMessages(t).empty());
}

}  // namespace
}  // namespace qs::test
