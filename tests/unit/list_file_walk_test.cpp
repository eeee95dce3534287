// A list file walked before its records are made, in its bytes or in its
// text: the walk finds exactly the failure that making the records ends
// with, and the records made from the walk are those of a read of the
// whole file, on either side, for
// whole files, files that break off, files cut at an empty flash name and
// counts past the last index a list can hold. A load takes a damaged
// file's report from the walk, before any record is made.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "data/launch_list.h"
#include "data/list_file_read.h"
#include "data/list_file_reads.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

// Run with the files walked as bytes, and as text, as on a machine whose
// code page has characters of more than one byte.
struct Walking : ::testing::TestWithParam<bool> {
    TestApp t;
    void SetUp() override {
        SetUpFlashRun(t, L'E');
        t.sys.oneCharacterPerByte = GetParam();
    }

    // Stores `bytes` as the Program file of one side.
    ListFileOfLoad Store(const std::string& bytes, std::int16_t lastIndex, bool flashSide) {
        const ProgramPlace& p = t.app.place;
        t.sys.PutFile(flashSide ? p.FileListUsbProg : p.FileListProg, bytes);
        return {2, lastIndex, flashSide};
    }

    // Walks the file, then makes its records, and checks both against a
    // read of the whole file; gives back whether the walk found a failure.
    bool WalkAgreesWithRead(const ListFileOfLoad& file) {
        const std::optional<ReadRecords> read = ReadListFile(t.app, file);
        std::optional<WalkedListFile> walked = WalkListFile(t.app, file, false);
        EXPECT_TRUE(read.has_value());
        EXPECT_TRUE(walked.has_value());
        if (!read || !walked) return false;
        EXPECT_EQ(walked->bytes != nullptr, GetParam());
        const bool walkFailed = static_cast<bool>(walked->failure);
        EXPECT_EQ(walkFailed, static_cast<bool>(read->failure));
        const ReadRecords made = MakeRecords(t.app, file, *walked);
        EXPECT_EQ(static_cast<bool>(made.failure), walkFailed);
        EXPECT_EQ(Texts(made.names), Texts(read->names));
        EXPECT_EQ(Texts(made.targets), Texts(read->targets));
        return walkFailed;
    }
};

TEST_P(Walking, AWholeFileWalksWithoutAFailureOnEitherSide) {
    const std::string bytes = ListFileBytes({{"ant", "C:\\Apps\\a.exe"}, {"bee", "#:\\Apps\\b.exe"}});
    EXPECT_FALSE(WalkAgreesWithRead(Store(bytes, 1, false)));
    EXPECT_FALSE(WalkAgreesWithRead(Store(bytes, 1, true)));
}

TEST_P(Walking, AFileThatBreaksOffBeforeTheLastIndexFailsOnEitherSide) {
    const std::string bytes = ListFileBytes({{"ant", "C:\\Apps\\a.exe"}}) + "\"cut\"";
    EXPECT_TRUE(WalkAgreesWithRead(Store(bytes, 1, false)));
    EXPECT_TRUE(WalkAgreesWithRead(Store(bytes, 1, true)));
}

TEST_P(Walking, AFileHoldingFewerRecordsThanItsIndexCountsFails) {
    EXPECT_TRUE(WalkAgreesWithRead(Store(ListFileBytes({{"ant", "C:\\a.exe"}}), 4, false)));
}

TEST_P(Walking, AFlashSideFileEndsQuietlyAtAnEmptyNameThoughItsIndexCountsMore) {
    const std::string bytes = ListFileBytes({{"ant", "#:\\a.exe"}, {"", "#:\\b.exe"}, {"cat", "#:\\c.exe"}});
    EXPECT_FALSE(WalkAgreesWithRead(Store(bytes, 2, true)));
    // The computer's side keeps the empty name and reads on.
    EXPECT_FALSE(WalkAgreesWithRead(Store(bytes, 2, false)));
}

TEST_P(Walking, ALastIndexAtTheLargestCountFailsWhereTheIndexWouldPassIt) {
    std::vector<std::pair<std::string, std::string>> records;
    for (int i = 0; i <= INT16_MAX; ++i) records.emplace_back("n" + std::to_string(i), "C:\\t" + std::to_string(i));
    EXPECT_TRUE(WalkAgreesWithRead(Store(ListFileBytes(records), INT16_MAX, false)));
}

TEST_P(Walking, QuotedValuesHoldingCommasAndTextAfterAClosingQuoteWalkAsTheyRead) {
    const std::string bytes = "\"a, b\"junk,\"C:\\x.exe\"\r\n  plain , C:\\y.exe \r\n\"open";
    EXPECT_TRUE(WalkAgreesWithRead(Store(bytes, 2, false)));
    EXPECT_FALSE(WalkAgreesWithRead(Store(bytes, 1, false)));
}

TEST_P(Walking, CharactersBeyondAsciiComeBackAsTheCodePageGivesThem) {
    const ListFileOfLoad file = Store(ListFileBytes({{"caf\xE9", "C:\\\xC4pfel.exe"}}), 0, false);
    EXPECT_FALSE(WalkAgreesWithRead(file));
    std::optional<WalkedListFile> walked = WalkListFile(t.app, file, false);
    ASSERT_TRUE(walked.has_value());
    const ReadRecords made = MakeRecords(t.app, file, *walked);
    EXPECT_EQ(Texts(made.names), (Names{L"caf\u00E9"}));
    EXPECT_EQ(Texts(made.targets), (Names{L"C:\\\u00C4pfel.exe"}));
}

TEST_P(Walking, NoFileWalksAsNoFile) {
    EXPECT_FALSE(WalkListFile(t.app, {2, 0, false}, false).has_value());
}

TEST_P(Walking, TheReadsTellAFileThatBreaksOffFromItsWalkAndMakeItsRecordsWhenAsked) {
    StoreListCounts(t.app.settings, {.program = 1});
    Store(ListFileBytes({{"ant", "C:\\Apps\\a.exe"}}) + "\"cut\"", 1, false);
    ListFileReads reads(t.app, {});
    ASSERT_EQ(reads.Files().size(), 1u);
    const ListFileReads::Walk walk = reads.Walked(0);
    EXPECT_TRUE(walk.exists);
    EXPECT_TRUE(walk.failure);
    const std::optional<ReadRecords>& records = reads.Records(0);
    ASSERT_TRUE(records.has_value());
    EXPECT_EQ(Texts(records->names), (Names{L"ant"}));
    EXPECT_TRUE(records->failure);
    reads.Wait();
}

TEST_P(Walking, ALoadReportsAFileThatBreaksOffOnceFromItsWalkAndKeepsTheRecordsBeforeTheBreak) {
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\a.exe");
    StoreListCounts(t.app.settings, {.program = 1});
    Store(ListFileBytes({{"ant", "C:\\Apps\\a.exe"}}) + "\"cut\"", 1, false);
    LaunchListLoad(t.app);
    // Reported by the load itself, before the lists are settled.
    ASSERT_EQ(BugCount(t), 1);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionLaunchListGet"));
    LaunchListSettle(t.app);
    EXPECT_EQ(BugCount(t), 1);
    EXPECT_EQ(t.app.frmChoose.ComboListItemName(2).ListCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(BytesAndText, Walking, ::testing::Bool());

// Whether a load's files lie on a fixed disk, where the system may hand out
// their bytes in place, is known without asking the system about the
// program's own drive, and asked once of any other drive.
struct ListFileDrives : ::testing::Test {
    TestApp t;
    // Every group holds a file, so that a load reads five.
    std::vector<ListFileOfLoad> FiveFiles() {
        StoreListCounts(t.app.settings, {.file = 0, .folder = 0, .program = 0, .email = 0, .web = 0});
        return ListFilesOfLoad(t.app);
    }
    void KnowProgramDrive(wchar_t letter, DriveType type) {
        t.app.place.ProgramDriveName = std::wstring(1, letter) + L":";
        t.app.place.ProgramDrive = {std::wstring(1, letter), t.app.place.ProgramDriveName, type};
    }
};

TEST_F(ListFileDrives, FilesBesideAProgramOnTheWindowsDiskLieOnAFixedDiskAndNoDriveIsAsked) {
    SetUpFixedDiskRun(t);
    KnowProgramDrive(L'C', DriveType::Fixed);
    const std::vector<ListFileOfLoad> files = FiveFiles();
    ASSERT_EQ(files.size(), 5u);
    EXPECT_EQ(ListFilesOnFixedDisk(t.app, files), std::vector<bool>(5, true));
    EXPECT_EQ(t.sys.drivesAsked.load(), 0);
}

TEST_F(ListFileDrives, OnAFlashDriveEveryFileOfBothSidesMayGoAwayAndNoDriveIsAsked) {
    SetUpFlashRun(t, L'E');
    KnowProgramDrive(L'E', DriveType::Removable);
    StoreListCounts(t.app.settings, {.file = 0, .folder = 0, .program = 0, .email = 0, .web = 0,
                                     .usbFile = 0, .usbFolder = 0, .usbProgram = 0});
    const std::vector<ListFileOfLoad> files = ListFilesOfLoad(t.app);
    ASSERT_EQ(files.size(), 8u);
    EXPECT_EQ(ListFilesOnFixedDisk(t.app, files), std::vector<bool>(8, false));
    EXPECT_EQ(t.sys.drivesAsked.load(), 0);
}

TEST_F(ListFileDrives, ADriveOtherThanTheProgramsIsAskedOnceForAllItsFiles) {
    // The program on a second fixed disk keeps its lists under the Windows
    // drive's folders.
    t.sys.MapDrive(L'D', DriveType::Fixed);
    SetUpFixedDiskRun(t, L"D:\\Tools\\");
    KnowProgramDrive(L'D', DriveType::Fixed);
    EXPECT_EQ(ListFilesOnFixedDisk(t.app, FiveFiles()), std::vector<bool>(5, true));
    EXPECT_EQ(t.sys.drivesAsked.load(), 1);
}

TEST_F(ListFileDrives, ADriveTheSystemCannotTellOrThatIsNotFixedIsTakenForOneThatMayGoAway) {
    t.sys.MapDrive(L'D', DriveType::Fixed);
    SetUpFixedDiskRun(t, L"D:\\Tools\\");
    // C: as a network drive: its files may go away.
    t.sys.MapDrive(L'C', DriveType::Network);
    KnowProgramDrive(L'D', DriveType::Fixed);
    EXPECT_EQ(ListFilesOnFixedDisk(t.app, FiveFiles()), std::vector<bool>(5, false));
    // Before the program's drive is known, the system answers for it; a
    // drive it has no answer for throws, and counts as one that may go away.
    t.app.place.ProgramDriveName.clear();
    t.sys.driveTypes.erase(L'C');
    EXPECT_EQ(ListFilesOnFixedDisk(t.app, FiveFiles()), std::vector<bool>(5, false));
}

}  // namespace
}  // namespace qs::test
