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
        std::optional<WalkedListFile> walked = WalkListFile(t.app, file);
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
    std::optional<WalkedListFile> walked = WalkListFile(t.app, file);
    ASSERT_TRUE(walked.has_value());
    const ReadRecords made = MakeRecords(t.app, file, *walked);
    EXPECT_EQ(Texts(made.names), (Names{L"caf\u00E9"}));
    EXPECT_EQ(Texts(made.targets), (Names{L"C:\\\u00C4pfel.exe"}));
}

TEST_P(Walking, NoFileWalksAsNoFile) {
    EXPECT_FALSE(WalkListFile(t.app, {2, 0, false}).has_value());
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

}  // namespace
}  // namespace qs::test
