// The list files of a load, walked and then made into records: each file
// taken from there is what a read of its own gives, on either side, a file
// gone before its reading comes back as no file, and damaged files are
// reported in the load's order.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "data/launch_list.h"
#include "data/list_file_reads.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

// A flash run with all eight files stored: the File file breaks off after
// its first record, the flash-side Program file holds drive-free targets.
void SeedEightFiles(TestApp& t) {
    SetUpFlashRun(t, L'E');
    const ProgramPlace& p = t.app.place;
    t.sys.PutFile(p.FileListFile, ListFileBytes({{"doc", "C:\\Docs\\d.txt"}}) + "\"cut\"");
    t.sys.PutFile(p.FileListFold, ListFileBytes({{"docs", "C:\\Docs"}}));
    t.sys.PutFile(p.FileListProg, ListFileBytes({{"ant", "C:\\Apps\\a.exe"}, {"bee", "C:\\Apps\\b.exe"}}));
    t.sys.PutFile(p.FileListMail, ListFileBytes({{"ann", "ann@mail.example"}}));
    t.sys.PutFile(p.FileListWeb, ListFileBytes({{"news", "news.example"}}));
    t.sys.PutFile(p.FileListUsbFile, ListFileBytes({{"notes", "#:\\notes.txt"}}));
    t.sys.PutFile(p.FileListUsbFold, ListFileBytes({{"stick", "#:\\Stick"}}));
    t.sys.PutFile(p.FileListUsbProg, ListFileBytes({{"tool", "#:\\Tools\\t.exe"}, {"zip", "#:\\Tools\\z.exe"}}));
    StoreListCounts(t.app.settings, {.file = 1, .folder = 0, .program = 1, .email = 0,
                                     .web = 0, .usbFile = 0, .usbFolder = 0, .usbProgram = 1});
    for (const wchar_t* file : {L"C:\\Docs\\d.txt", L"C:\\Apps\\a.exe", L"C:\\Apps\\b.exe", L"E:\\notes.txt",
                                L"E:\\Tools\\t.exe", L"E:\\Tools\\z.exe"})
        t.sys.PutFile(file);
    std::filesystem::create_directories(t.sys.HostPath(L"C:\\Docs"));
    std::filesystem::create_directories(t.sys.HostPath(L"E:\\Stick"));
}

struct ListReads : ::testing::Test {
    TestApp t;
    void SetUp() override { SeedEightFiles(t); }
};

TEST_F(ListReads, EveryFileTakenIsWhatAReadOfItsOwnGives) {
    ListFileReads reads(t.app, {});
    ASSERT_EQ(reads.Files().size(), 8u);
    for (std::size_t i = 0; i < reads.Files().size(); ++i) {
        const ListFileOfLoad& file = reads.Files()[i];
        const std::optional<ReadRecords> own = ReadListFile(t.app, file);
        const std::optional<ReadRecords>& taken = reads.Records(i);
        ASSERT_TRUE(own.has_value());
        ASSERT_TRUE(taken.has_value());
        EXPECT_EQ(Texts(taken->names), Texts(own->names)) << file.group << " " << file.flashSide;
        EXPECT_EQ(Texts(taken->targets), Texts(own->targets)) << file.group << " " << file.flashSide;
        EXPECT_EQ(static_cast<bool>(taken->failure), static_cast<bool>(own->failure));
    }
}

TEST_F(ListReads, AFileThatBreaksOffComesBackWithTheRecordsBeforeTheBreakAndTheFailure) {
    ListFileReads reads(t.app, {});
    const std::optional<ReadRecords>& records = reads.Records(0);
    ASSERT_TRUE(records.has_value());
    EXPECT_EQ(Texts(records->names), (Names{L"doc"}));
    EXPECT_TRUE(records->failure);
}

TEST_F(ListReads, FlashSideTargetsComeBackOnTheProgramsDrive) {
    ListFileReads reads(t.app, {});
    const ListFileOfLoad flashPrograms{2, 1, true};
    ASSERT_EQ(reads.Files().back(), flashPrograms);
    const std::optional<ReadRecords>& records = reads.Records(reads.Files().size() - 1);
    ASSERT_TRUE(records.has_value());
    EXPECT_EQ(Texts(records->targets), (Names{L"E:\\Tools\\t.exe", L"E:\\Tools\\z.exe"}));
}

TEST_F(ListReads, AFileGoneBeforeTheReadingComesBackAsNoFile) {
    std::filesystem::remove(t.sys.HostPath(t.app.place.FileListWeb));
    ListFileReads reads(t.app, {});
    ASSERT_EQ(reads.Files()[4].group, 4);
    EXPECT_FALSE(reads.Records(4).has_value());
}

TEST_F(ListReads, DamagedFilesAreReportedInTheLoadsOrderNotTheOrderTheirReadingsEnd) {
    // The flash-side Folder file's record has no target; the computer's
    // File file breaks off too. The computer's side is reported first.
    t.sys.PutFile(t.app.place.FileListUsbFold, std::string("\"stick\""));
    t.app.settings.USBFolderLast = 1;
    LaunchListLoad(t.app);
    const std::vector<MessageRequest>& shown = ShownMessages(t);
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0].key, L"Quillstart:Bug:ActionLaunchListGet");
    EXPECT_EQ(shown[1].key, L"Quillstart:Bug:ActionLaunchListGetUSB");
}

}  // namespace
}  // namespace qs::test
