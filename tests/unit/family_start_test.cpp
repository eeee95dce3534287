#include <gtest/gtest.h>

#include "data/active_family.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

const char* const NewKinfold = "7\r\n0\r\n-1\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";

std::string Kinfold(int guruLast, const std::string& nick = "Annie", const std::string& first = "Ann",
                    const std::string& last = "Lee") {
    return "7\r\n" + std::to_string(guruLast) + "\r\n-1\r\n\"" + nick + "\"\r\n\"" + first + "\"\r\n\"" + last +
           "\"\r\n\"\"\r\n\"\"\r\n";
}

std::string GuruLine(const std::string& name, const std::string& folder, const std::string& tag = "Tag",
                     const std::string& date = "226010101") {
    return "\"" + name + "\",\"" + tag + "\"," + date + ",\"" + folder + "\"\r\n";
}

struct FamilyRun : ::testing::Test {
    TestApp t;
    void SetUp() override {
        SetUpFixedDiskRun(t);
        t.app.place.StartingUp = true;
    }
    int NamePrompts() {
        int n = 0;
        for (const auto& m : ShownMessages(t))
            if (m.entry == MessageEntry::Process && m.key == L"MessageGetUserName") ++n;
        return n;
    }
    std::string KinfoldBytes() { return t.sys.FileBytes(t.app.place.FileKinfold); }
    std::string GuruBytes() { return t.sys.FileBytes(t.app.place.FileGuru); }
};

TEST_F(FamilyRun, FirstStartOfTheFamilyJoinsAtZeroAsksTheNameAndWritesBothFiles) {
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 1);
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(t.app.family.SelfIndex, 0);
    ASSERT_EQ(t.app.FamilyMembers.size(), 1u);
    EXPECT_EQ(t.app.FamilyMembers[0].MemberProgramFile, L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(KinfoldBytes(), NewKinfold);
    EXPECT_EQ(GuruBytes(), GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102"));
    EXPECT_FALSE(BugShown(t, L"Quillstart:Bug:FamilyStart"));
}

TEST_F(FamilyRun, TheNamePromptShowsWithTheBeforeTheBarFlagUpAndItIsDownAfter) {
    bool upWhilePrompting = false;
    t.dialogs.Answer([&](qs::FrmMessage& form) {
        upWhilePrompting = t.app.message.MessageBeforeMainWindow;
        form.ImageCancel.Press();
    });
    FamilyStart(t.app);
    EXPECT_EQ(NamePrompts(), 1);
    EXPECT_TRUE(upWhilePrompting);
    EXPECT_FALSE(t.app.message.MessageBeforeMainWindow);
}

TEST_F(FamilyRun, NamesGivenAtThePromptGoIntoTheRecord) {
    t.app.family.UserFirstName = L"Ann";
    t.app.family.UserLastName = L"Lee";
    t.app.family.UserNickName = L"Annie";
    FamilyStart(t.app);
    EXPECT_EQ(KinfoldBytes(), Kinfold(0));
}

TEST_F(FamilyRun, KnownMemberIsFoundNothingIsAskedAndNothingIsWritten) {
    const std::string kin = Kinfold(1);
    const std::string guru = GuruLine("Sibling", "C:\\Sib\\") + GuruLine("Quillstart", "C:\\Tools\\");
    t.sys.PutFile(L"C:\\Sib\\Sibling.exe");
    t.sys.PutFile(t.app.place.FileKinfold, kin);
    t.sys.PutFile(t.app.place.FileGuru, guru);
    const auto kinTime = std::filesystem::last_write_time(t.sys.HostPath(t.app.place.FileKinfold));
    EXPECT_FALSE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 0);
    EXPECT_EQ(t.app.FamilyMemberCount, 1);
    EXPECT_EQ(t.app.family.SelfIndex, 1);
    EXPECT_EQ(t.app.family.UserNickName, L"Annie");
    EXPECT_EQ(t.app.FamilyMembers[0].MemberProgramFile, L"C:\\Sib\\Sibling.exe");
    EXPECT_EQ(t.app.FamilyMembers[0].MemberDate, 226010101);
    EXPECT_EQ(KinfoldBytes(), kin);
    EXPECT_EQ(GuruBytes(), guru);
    EXPECT_EQ(std::filesystem::last_write_time(t.sys.HostPath(t.app.place.FileKinfold)), kinTime);
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(FamilyRun, KinfoldMissingIsAFirstStartWhateverGuruHolds) {
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\"));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 1);
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(GuruBytes(), GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102"));
}

TEST_F(FamilyRun, GuruMissingJoinsBehindALargeGuruLastWithAnEmptyRecordForEveryPositionBefore) {
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(29999));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(t.app.FamilyMemberCount, 30000);
    std::string expected;
    for (int i = 0; i < 30000; ++i) expected += "\"\",\"\",0,\"\"\r\n";
    expected += GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102");
    EXPECT_EQ(GuruBytes(), expected);
}

TEST_F(FamilyRun, GuruMissingJoinsBehindGuruLastWithEmptyRecordsBeforeAndTheNextStartJoinsAtZero) {
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(2));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 1);
    EXPECT_EQ(t.app.FamilyMemberCount, 3);
    const std::string empty = "\"\",\"\",0,\"\"\r\n";
    EXPECT_EQ(GuruBytes(), empty + empty + empty + GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102"));
    EXPECT_EQ(KinfoldBytes(), Kinfold(3));

    TestApp next;
    SetUpFixedDiskRun(next);
    next.app.place.StartingUp = true;
    next.sys.PutFile(next.app.place.FileKinfold, KinfoldBytes());
    next.sys.PutFile(next.app.place.FileGuru, GuruBytes());
    EXPECT_TRUE(FamilyStart(next.app));
    EXPECT_EQ(next.app.FamilyMemberCount, 0);
    EXPECT_EQ(next.dialogs.shown.size(), 1u);
    EXPECT_EQ(next.sys.FileBytes(next.app.place.FileGuru), GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102"));
}

TEST_F(FamilyRun, NegativeGuruLastLeavesGuruUnreadAndJoinsAtZero) {
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(-1));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\"));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(NamePrompts(), 1);
}

TEST_F(FamilyRun, GuruShorterThanGuruLastShowsTheBugAndKeepsOnlyPositionZero) {
    t.sys.PutFile(L"C:\\Sib\\Sibling.exe");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(4));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Sibling", "C:\\Sib\\") + GuruLine("Quillstart", "C:\\Tools\\"));
    FamilyStart(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamABGetGuruInfo"));
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(t.app.FamilyMembers[0].MemberName, L"Sibling");
}

TEST_F(FamilyRun, EmptyNameOrFolderEndsTheReadingWithoutAMessage) {
    t.sys.PutFile(L"C:\\Sib\\Sibling.exe");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(2));
    t.sys.PutFile(t.app.place.FileGuru,
                  GuruLine("Sibling", "C:\\Sib\\") + GuruLine("Other", "") + GuruLine("Quillstart", "C:\\Tools\\"));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_FALSE(BugShown(t, L"Quillstart:Bug:FamABGetGuruInfo"));
    // Reading stopped before the own record, so the program joins again.
    EXPECT_EQ(t.app.FamilyMemberCount, 1);
    EXPECT_EQ(t.app.FamilyMembers[0].MemberName, L"Sibling");
    EXPECT_EQ(t.app.FamilyMembers[1].MemberName, L"Quillstart");
}

TEST_F(FamilyRun, SiblingWhoseProgramHasGoneVanishesFromMemoryAndLeavesTheFileAtTheNextWrite) {
    const std::string guru = GuruLine("Gone", "C:\\Gone\\") + GuruLine("Quillstart", "C:\\Tools\\");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(1));
    t.sys.PutFile(t.app.place.FileGuru, guru);
    EXPECT_FALSE(FamilyStart(t.app));
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(t.app.FamilyMembers[0].MemberName, L"Quillstart");
    EXPECT_EQ(GuruBytes(), guru);
    FamABSaveGuruInfo(t.app);
    EXPECT_EQ(GuruBytes(), GuruLine("Quillstart", "C:\\Tools\\"));
}

TEST_F(FamilyRun, ProgramStartedFromAnotherFolderWhoseOldRecordStillResolvesIsNotedAsMovedAndNothingIsAsked) {
    // The record names C:\Old\, where a copy still stands; the program runs
    // from C:\Tools\.
    t.sys.PutFile(L"C:\\Old\\Quillstart.exe");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(0));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Old\\"));
    EXPECT_FALSE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 0);
    EXPECT_TRUE(t.app.family.ProgramMoved);
    EXPECT_EQ(t.app.FamilyMembers[0].MemberFolder, L"C:\\Tools\\");
    EXPECT_EQ(t.app.FamilyMembers[0].MemberProgramFile, L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(GuruBytes(), GuruLine("Quillstart", "C:\\Tools\\"));
}

TEST_F(FamilyRun, ProgramFileCopiedAwayWithItsRecordLeftBehindJoinsAsNewAndAsksTheName) {
    t.sys.PutFile(L"C:\\Sib\\Sibling.exe");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(1));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Sibling", "C:\\Sib\\") + GuruLine("Quillstart", "C:\\Old\\"));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(NamePrompts(), 1);
    EXPECT_FALSE(t.app.family.ProgramMoved);
    EXPECT_EQ(t.app.FamilyMemberCount, 1);
    EXPECT_EQ(GuruBytes(), GuruLine("Sibling", "C:\\Sib\\") + GuruLine("Quillstart", "C:\\Tools\\", "QSLauncher", "226151102"));
}

TEST_F(FamilyRun, ShortKinfoldIsCompletedFromTheWorkingValues) {
    t.sys.PutFile(t.app.place.FileKinfold, "4\r\n0\r\n5\r\n\"Nick\"\r\n\"First\"\r\n");
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\"));
    EXPECT_FALSE(FamilyStart(t.app));
    const KinfoldRecord& r = t.app.family.KinfoldLoaded;
    EXPECT_EQ(r.version, 7);
    EXPECT_EQ(r.FamilyReserved, 5);
    EXPECT_EQ(r.UserNickName, L"Nick");
    EXPECT_EQ(r.UserFirstName, L"First");
    EXPECT_EQ(r.UserLastName, L"");
    EXPECT_EQ(t.app.family.KinfoldLive, r);
    EXPECT_FALSE(BugShown(t, L"Quillstart:Bug:FamilyDataAddNew"));
}

TEST_F(FamilyRun, TextInANumberFieldOfKinfoldShowsTheReadersTag) {
    t.sys.PutFile(t.app.place.FileKinfold, "7\r\n\"many\"\r\n");
    FamilyStart(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamAAGetFamilyInfo"));
}

TEST_F(FamilyRun, NegativeKinfoldVersionCannotBeCompleted) {
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(0).replace(0, 1, "-3"));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\"));
    FamilyStart(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamilyDataAddNew"));
}

}  // namespace
}  // namespace qs::test
