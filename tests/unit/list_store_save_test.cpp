#include <gtest/gtest.h>

#include <algorithm>

#include "data/launch_list.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct ListSave : ::testing::Test {
    TestApp t;
    void SetUp() override { SetUpFixedDiskRun(t); }
    void AddComputerItem(int group, const std::wstring& name, const std::wstring& path) {
        AddItemInStep(MergedNames(t, group), MergedPaths(t, group), name, path);
        AddItemInStep(ComputerNames(t, group), ComputerPaths(t, group), name, path);
    }
    void AddShared(int group, const std::wstring& name, const std::wstring& target) {
        AddItemInStep(MergedNames(t, group), MergedPaths(t, group), name, target);
    }
};

TEST_F(ListSave, ListFilesAreByteExactSortedByNameIgnoringCase) {
    AddComputerItem(2, L"zip", L"C:\\Apps\\zip.exe");
    AddComputerItem(2, L"Alpha", L"C:\\Apps\\alpha.exe");
    AddComputerItem(2, L"beta", L"C:\\Apps\\b.exe");
    AddShared(3, L"Mom", L"mom@home.example");
    AddShared(4, L"news", L"http://news.example/");
    AddShared(4, L"", L"");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListProg),
              "\"Alpha\",\"C:\\Apps\\alpha.exe\"\r\n\"beta\",\"C:\\Apps\\b.exe\"\r\n\"zip\",\"C:\\Apps\\zip.exe\"\r\n");
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), "\"Mom\",\"mom@home.example\"\r\n");
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListWeb), "\"\",\"\"\r\n\"news\",\"http://news.example/\"\r\n");
    EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListFile));
    EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListFold));
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(ListSave, LatinOneNamesAreWrittenInTheEightBitCodePage) {
    AddShared(3, L"J\u00fcrgen", L"j@x.example");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), "\"J\xfcrgen\",\"j@x.example\"\r\n");
}

TEST_F(ListSave, ExitSetsEveryCounterFromTheListsAsCountLessOne) {
    AddComputerItem(0, L"a", L"C:\\a.txt");
    AddComputerItem(0, L"b", L"C:\\b.txt");
    AddComputerItem(1, L"f", L"C:\\f");
    AddShared(4, L"w", L"http://w.example");
    for (std::int16_t* counter : {&t.app.settings.HDDFileLast, &t.app.settings.HDDFolderLast,
                                  &t.app.settings.HDDProgramLast, &t.app.settings.EmailLast, &t.app.settings.WebLast,
                                  &t.app.settings.USBFileLast, &t.app.settings.USBFolderLast,
                                  &t.app.settings.USBProgramLast})
        *counter = 7;
    LaunchListSaveAtExit(t.app, {});
    const qs::Settings& c = t.app.settings;
    EXPECT_EQ(c.HDDFileLast, 1);
    EXPECT_EQ(c.HDDFolderLast, 0);
    EXPECT_EQ(c.HDDProgramLast, -1);
    EXPECT_EQ(c.EmailLast, -1);
    EXPECT_EQ(c.WebLast, 0);
    // A fixed-disk run leaves the flash-side counters alone.
    EXPECT_EQ(c.USBFileLast, 7);
}

TEST_F(ListSave, ComputerSideFilesAreWrittenFromTheHiddenListsNeverFromTheMergedOnes) {
    AddComputerItem(0, L"doc", L"C:\\doc.txt");
    AddShared(0, L"merged only", L"C:\\m.txt");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListFile), ListFileBytes({{"doc", "C:\\doc.txt"}}));
}

TEST_F(ListSave, EmptiedGroupIsNotSavedAndItsOldFileStaysUnread) {
    const std::string old = ListFileBytes({{"old", "http://old.example"}});
    t.sys.PutFile(t.app.place.FileListWeb, old);
    t.app.settings.WebLast = 0;
    LaunchListLoad(t.app);
    ASSERT_EQ(MergedNames(t, 4).ListCount(), 1);
    LaunchListRemoveItem(t.app, 4, 0);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.app.settings.WebLast, -1);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListWeb), old);

    TestApp next;
    SetUpFixedDiskRun(next);
    next.sys.PutFile(next.app.place.FileListWeb, t.sys.FileBytes(t.app.place.FileListWeb));
    next.app.settings = t.app.settings;
    LaunchListLoad(next.app);
    EXPECT_EQ(MergedNames(next, 4).ListCount(), 0);
}

TEST_F(ListSave, RecordSavesRunBetweenTheListStepsInTheExitOrder) {
    SetUpFlashRun(t, L'E');
    FlashNames(t, 2).AddItem(L"u");
    FlashPaths(t, 2).AddItem(L"E:\\u.exe");
    AddShared(4, L"w", L"http://w.example");
    std::vector<std::string> calls;
    ExitRecordSaves saves;
    saves.ControlUSBDataSave = [&] {
        // The flash-side counters are set, and no list is written yet.
        EXPECT_EQ(t.app.settings.USBProgramLast, 0);
        EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListUsbProg));
        calls.push_back("USBData");
    };
    saves.ControlDataSave = [&] {
        EXPECT_TRUE(t.sys.FileExists(t.app.place.FileListUsbProg));
        EXPECT_EQ(t.app.settings.WebLast, 0);
        EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListWeb));
        calls.push_back("Set");
    };
    saves.ControlComDataSave = [&] { calls.push_back("COMData"); };
    LaunchListSaveAtExit(t.app, saves);
    EXPECT_EQ(calls, (std::vector<std::string>{"USBData", "Set", "COMData"}));
    EXPECT_TRUE(t.sys.FileExists(t.app.place.FileListWeb));
}

TEST_F(ListSave, FixedDiskRunDoesNotSaveTheFlashDriveRecord) {
    bool usbSaved = false;
    ExitRecordSaves saves;
    saves.ControlUSBDataSave = [&] { usbSaved = true; };
    LaunchListSaveAtExit(t.app, saves);
    EXPECT_FALSE(usbSaved);
}

TEST_F(ListSave, FailureWhileWritingKeepsWhatWasWrittenAndTheNextLoadEndsAsOnAShortFile) {
    AddShared(3, L"a", L"a@x.example");
    AddShared(3, L"b", L"b@x.example");
    // The counter says four records; the list holds two.
    ActionLaunchListSave(t.app, 3, 3);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListSave"));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), ListFileBytes({{"a", "a@x.example"}, {"b", "b@x.example"}}));

    TestApp next;
    SetUpFixedDiskRun(next);
    next.sys.PutFile(next.app.place.FileListMail, t.sys.FileBytes(t.app.place.FileListMail));
    next.app.settings.EmailLast = 3;
    LaunchListLoad(next.app);
    EXPECT_EQ(Entries(MergedNames(next, 3)), (Names{L"a", L"b"}));
    EXPECT_EQ(BugCount(next), 1);
    EXPECT_TRUE(BugShown(next, L"Quillstart:Bug:ActionLaunchListGet"));
}

TEST_F(ListSave, AFileThatCannotBeWrittenShowsTheBugDialogAndTheNextListIsStillSaved) {
    AddShared(3, L"a", L"a@x.example");
    AddShared(4, L"w", L"http://w.example");
    t.sys.readOnlyPrefixes.push_back(t.app.place.FileListMail);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListSave"));
    EXPECT_FALSE(t.sys.FileExists(t.app.place.FileListMail));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListWeb), ListFileBytes({{"w", "http://w.example"}}));
}

TEST_F(ListSave, FlashSideSaveTakesItsGroupAsDecimalText) {
    SetUpFlashRun(t, L'E');
    FlashNames(t, 1).AddItem(L"music");
    FlashPaths(t, 1).AddItem(L"E:\\Music");
    ActionLaunchListSaveUSB(t.app, L"1", 0);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbFold), "\"music\",\"#:\\Music\"\r\n");
    EXPECT_TRUE(ShownMessages(t).empty());
    ActionLaunchListSaveUSB(t.app, L"01", 0);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListSaveUSB"));
}

TEST_F(ListSave, FlashSideSaveWritesHashOnlyForTheExactProgramDriveLetter) {
    SetUpFlashRun(t, L'E');
    FlashNames(t, 0).AddItem(L"a");
    FlashPaths(t, 0).AddItem(L"E:\\a.txt");
    AddItemInStep(FlashNames(t, 0), FlashPaths(t, 0), L"b", L"e:\\b.txt");
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListUsbFile), "\"a\",\"#:\\a.txt\"\r\n\"b\",\"e:\\b.txt\"\r\n");
    EXPECT_EQ(t.app.settings.USBFileLast, 1);
}

TEST_F(ListSave, SavingPastThirtyTwoThousandSevenHundredSixtySevenOverflowsAfterWritingEveryRecord) {
    auto& names = MergedNames(t, 3);
    auto& paths = MergedPaths(t, 3);
    for (int i = 0; i <= 32767; ++i) {
        names.AddItem(L"n" + std::to_wstring(100000 + i));
        paths.AddItem(L"m@x");
    }
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.app.settings.EmailLast, 32767);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListSave"));
    const std::string bytes = t.sys.FileBytes(t.app.place.FileListMail);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 32768);
}

TEST_F(ListSave, ALoadedListSavesBackToTheSameBytes) {
    const std::string bytes = ListFileBytes({{"a", "x@a.example"}, {"B", "y@b.example"}, {"c", "z@c.example"}});
    t.sys.PutFile(t.app.place.FileListMail, bytes);
    t.app.settings.EmailLast = 2;
    LaunchListLoad(t.app);
    LaunchListSaveAtExit(t.app, {});
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileListMail), bytes);
}

}  // namespace
}  // namespace qs::test
