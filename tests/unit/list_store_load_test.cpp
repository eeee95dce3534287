#include <gtest/gtest.h>

#include "data/control_data.h"

#include "data/launch_list.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct ListLoad : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFixedDiskRun(t); }
    const std::wstring& ProgFile() { return t.app.place.FileListProg; }
};

TEST_F(ListLoad, ComputerSideFileFillsMergedAndComputerLists) {
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    t.sys.PutFile(ProgFile(), ListFileBytes({{"Alpha", "C:\\Apps\\a.exe"}, {"beta", "C:\\Apps\\b.exe"}}));
    t.app.settings.HDDProgramLast = 1;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"Alpha", L"beta"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\Apps\\a.exe", L"C:\\Apps\\b.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (Names{L"Alpha", L"beta"}));
    EXPECT_EQ(Entries(ComputerPaths(t, 2)), (Names{L"C:\\Apps\\a.exe", L"C:\\Apps\\b.exe"}));
    EXPECT_EQ(FlashNames(t, 2).ListCount(), 0);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListLoad, LoadWithTargetsMissingDropsThem) {
    t.sys.PutFile(L"C:\\Docs\\kept.txt");
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Kept"));
    t.sys.PutFile(t.app.place.FileListFile,
                  ListFileBytes({{"gone", "C:\\Docs\\gone.txt"}, {"kept", "C:\\Docs\\kept.txt"}}));
    // A file is no folder, and a missing folder fails too.
    t.sys.PutFile(t.app.place.FileListFold, ListFileBytes({{"Apps", "C:\\Docs\\kept.txt"}, {"Kept", "C:\\Kept"},
                                                            {"Lost", "C:\\Lost"}}));
    t.app.settings.HDDFileLast = 1;
    t.app.settings.HDDFolderLast = 2;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"kept"}));
    EXPECT_EQ(Entries(MergedPaths(t, 0)), (Names{L"C:\\Docs\\kept.txt"}));
    EXPECT_EQ(Entries(ComputerNames(t, 1)), (Names{L"Kept"}));
    EXPECT_EQ(Entries(MergedPaths(t, 1)), (Names{L"C:\\Kept"}));
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListLoad, MissingListFileLeavesGroupEmptyWithoutMessage) {
    t.app.settings.HDDProgramLast = 4;
    t.app.settings.WebLast = 2;
    LaunchListLoad(t.app);
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
    EXPECT_EQ(MergedNames(t, 4).ListCount(), 0);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListLoad, MissingListFileCounterIsCorrectedAtExit) {
    t.app.settings.WebLast = 2;
    LaunchListLoad(t.app);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.app.settings.WebLast, -1);
}

TEST_F(ListLoad, CounterMinusOneOrBelowLeavesFileUnopened) {
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"site", "http://a.example"}}));
    // Broken text would show the bug dialog if the file were read.
    t.sys.PutFile(t.app.place.FileListMail, "\"only a name\"");
    t.app.settings.WebLast = -1;
    t.app.settings.EmailLast = -7;
    LaunchListLoad(t.app);
    EXPECT_EQ(MergedNames(t, 4).ListCount(), 0);
    EXPECT_EQ(MergedNames(t, 3).ListCount(), 0);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListLoad, FileShorterThanCounterShowsBugOnceAndKeepsRecordsRead) {
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"a", "http://a.example"}, {"b", "http://b.example"}}));
    t.app.settings.WebLast = 5;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"a", L"b"}));
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(ListLoad, ALoaderAskedForAnIndexBelowMinusOneShowsItsBugAndAddsNothing) {
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"a", "http://a.example"}}));
    ActionLaunchListGet(t.app, 4, -2);
    EXPECT_EQ(MergedNames(t, 4).ListCount(), 0);
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(ListLoad, AShortFileReadUpToAFarLastIndexGivesTheRecordsItHolds) {
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"a", "http://a.example"}, {"b", "http://b.example"}}));
    ActionLaunchListGet(t.app, 4, 32000);
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"a", L"b"}));
    EXPECT_EQ(Entries(MergedPaths(t, 4)), (Names{L"http://a.example", L"http://b.example"}));
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(ListLoad, FileLongerThanCounterExtraRecordsAreNeverReadAndVanishAtNextSave) {
    t.sys.PutFile(t.app.place.FileListMail,
                  ListFileBytes({{"ann", "ann@a.example"}, {"bob", "bob@a.example"}, {"cy", "cy@a.example"}}));
    t.app.settings.EmailLast = 0;
    LaunchListLoad(t.app);
    EXPECT_EQ(Entries(MergedNames(t, 3)), (Names{L"ann"}));
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), ListFileBytes({{"ann", "ann@a.example"}}));
}

TEST_F(ListLoad, ComputerSideEmptyTargetIsDroppedInPathGroupsAndKeptInEmailAndWeb) {
    t.sys.PutFile(t.app.place.FileListFile, ListFileBytes({{"nothing", ""}}));
    t.sys.PutFile(t.app.place.FileListMail, ListFileBytes({{"nobody", ""}}));
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"nowhere", ""}}));
    t.app.settings.HDDFileLast = 0;
    t.app.settings.EmailLast = 0;
    t.app.settings.WebLast = 0;
    LaunchListLoad(t.app);
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    EXPECT_EQ(Entries(MergedNames(t, 3)), (Names{L"nobody"}));
    EXPECT_EQ(Entries(MergedPaths(t, 3)), (Names{L""}));
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"nowhere"}));
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListLoad, HandEditedOutOfOrderComputerFileMispairsNamesAndTargets) {
    t.sys.PutFile(L"C:\\z.exe");
    t.sys.PutFile(L"C:\\a.exe");
    t.sys.PutFile(ProgFile(), ListFileBytes({{"Zed", "C:\\z.exe"}, {"Apple", "C:\\a.exe"}}));
    t.app.settings.HDDProgramLast = 1;
    LaunchListLoad(t.app);
    // Names sort themselves while targets are appended in file order.
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"Apple", L"Zed"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\z.exe", L"C:\\a.exe"}));
    EXPECT_EQ(Entries(ComputerPaths(t, 2)), (Names{L"C:\\z.exe", L"C:\\a.exe"}));
    t.Type(L"p-app");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"C:\\z.exe");
}

TEST_F(ListLoad, LaunchNameWithADoubleQuoteIsWrittenAsItStandsAndComesBackBroken) {
    MergedNames(t, 4).AddItem(L"say \"hi\"");
    MergedPaths(t, 4).AddItem(L"http://hi.example");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListWeb), "\"say \"hi\"\",\"http://hi.example\"\r\n");

    TestApp next;
    SetUpFixedDiskRun(next);
    next.sys.PutFile(next.app.place.FileListWeb, t.sys.FileBytes(t.app.place.FileListWeb));
    next.app.settings.WebLast = t.app.settings.WebLast;
    LaunchListLoad(next.app);
    // The name ends at its inner quote and the rest of its field is dropped.
    ASSERT_EQ(MergedNames(next, 4).ListCount(), 1);
    EXPECT_EQ(MergedNames(next, 4).List(0), L"say ");
    EXPECT_EQ(MergedPaths(next, 4).List(0), L"http://hi.example");
}

TEST_F(ListLoad, StrayQuoteShiftsTheFieldsAfterIt) {
    t.sys.PutFile(t.app.place.FileListMail, "\"a\",\"x@a.example\r\n\"b\",\"y@b.example\"\r\n");
    t.app.settings.EmailLast = 1;
    LaunchListLoad(t.app);
    // The open quote runs to the next quote, across the line end.
    ASSERT_GE(MergedNames(t, 3).ListCount(), 1);
    EXPECT_EQ(MergedNames(t, 3).List(0), L"a");
    EXPECT_EQ(MergedPaths(t, 3).List(0), L"x@a.example\r\n");
    // The shifted second record runs out of fields.
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(ListLoad, RecordFilesLostLeaveCountersAtMinusOneSoNoListLoads) {
    t.sys.PutFile(t.app.place.FileListWeb, ListFileBytes({{"a", "http://a.example"}}));
    t.sys.PutFile(t.app.place.FileListMail, ListFileBytes({{"m", "m@a.example"}}));
    qs::ControlComDataGet(t.app);
    qs::ControlDataGet(t.app, t.app.place.OnRemovable);
    LaunchListLoad(t.app);
    for (int g = 0; g < 5; ++g) EXPECT_EQ(MergedNames(t, g).ListCount(), 0);
    // The file is overwritten as soon as its group holds items at an exit.
    MergedNames(t, 4).AddItem(L"new");
    MergedPaths(t, 4).AddItem(L"http://new.example");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListWeb), ListFileBytes({{"new", "http://new.example"}}));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), ListFileBytes({{"m", "m@a.example"}}));
}

TEST_F(ListLoad, FixedDiskRunIgnoresFlashSideFileAndLeavesItUntouched) {
    const std::string bytes = ListFileBytes({{"tool", "#:\\t.exe"}});
    t.sys.PutFile(t.app.place.FileListUsbProg, bytes);
    t.sys.PutFile(L"C:\\t.exe");
    t.app.settings.USBProgramLast = 0;
    LaunchListLoad(t.app);
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.app.settings.USBProgramLast, 0);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbProg), bytes);
}

TEST_F(ListLoad, GroupIndicesPastThirtyTwoThousandSevenHundredSixtySevenOverflowIntoTheBugDialog) {
    std::string bytes;
    for (int i = 0; i <= 32767; ++i) bytes += "\"n" + std::to_string(i) + "\",\"m" + std::to_string(i) + "@x\"\r\n";
    t.sys.PutFile(t.app.place.FileListMail, bytes);
    t.app.settings.EmailLast = 32767;
    LaunchListLoad(t.app);
    EXPECT_EQ(MergedNames(t, 3).ListCount(), 32768);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
}

}  // namespace
}  // namespace qs::test
