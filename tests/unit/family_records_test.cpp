#include <gtest/gtest.h>

#include "common/failure.h"
#include "data/active_family.h"
#include "data_setup.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

std::string GuruLine(const std::string& name, const std::string& folder) {
    return "\"" + name + "\",\"Tag\",226010101,\"" + folder + "\"\r\n";
}

std::string Kinfold(int guruLast) {
    return "7\r\n" + std::to_string(guruLast) + "\r\n-1\r\n\"Annie\"\r\n\"Ann\"\r\n\"Lee\"\r\n\"\"\r\n\"\"\r\n";
}

TEST(FamilyDate, FifteenthOfNovember2026Gives226151102) {
    TestApp t;
    EXPECT_EQ(FamilyDateToLong(t.app, CalendarDate{2026, 11, 15}), 226151102);
}

TEST(FamilyDate, DayAndMonthBelowTenTakeALeadingZero) {
    TestApp t;
    // "2", "1", "9", "05", "03", "99"
    EXPECT_EQ(FamilyDateToLong(t.app, CalendarDate{1999, 3, 5}), 219050399);
}

TEST(FamilyDate, AYearThatIsNoNumberShowsItsTag) {
    TestApp t;
    EXPECT_EQ(FamilyDateToLong(t.app, CalendarDate{-2026, 1, 1}), 0);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamilyDateToLong"));
}

struct FlashFamily : ::testing::Test {
    TestApp t;
    void SetUp() override {
        SetUpFlashRun(t, L'E');
        t.app.place.StartingUp = true;
    }
};

TEST_F(FlashFamily, FolderIsStoredWithHashInPlaceOfTheDriveLetter) {
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileGuru), "\"Quillstart\",\"QSLauncher\",226151102,\"#:\\Quillstart\\\"\r\n");
    EXPECT_EQ(t.app.FamilyMembers[0].MemberFolder, L"E:\\Quillstart\\");
}

TEST_F(FlashFamily, AChangeOfDriveLetterAloneChangesNothingInTheFile) {
    FamilyStart(t.app);
    TestApp next;
    SetUpFlashRun(next, L'G');
    next.app.place.StartingUp = true;
    next.sys.PutFile(next.app.place.FileKinfold, t.sys.FileBytes(t.app.place.FileKinfold));
    next.sys.PutFile(next.app.place.FileGuru, t.sys.FileBytes(t.app.place.FileGuru));
    const auto guruTime = std::filesystem::last_write_time(next.sys.HostPath(next.app.place.FileGuru));
    EXPECT_FALSE(FamilyStart(next.app));
    EXPECT_FALSE(next.app.family.ProgramMoved);
    EXPECT_EQ(next.app.FamilyMembers[0].MemberFolder, L"G:\\Quillstart\\");
    EXPECT_EQ(next.sys.FileBytes(next.app.place.FileGuru), t.sys.FileBytes(t.app.place.FileGuru));
    EXPECT_EQ(std::filesystem::last_write_time(next.sys.HostPath(next.app.place.FileGuru)), guruTime);
    EXPECT_TRUE(next.dialogs.shown.empty());
}

TEST_F(FlashFamily, OwnRecordWithAPlainDriveLetterIsRewrittenWithHash) {
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(0));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "e:\\Quillstart\\"));
    EXPECT_FALSE(FamilyStart(t.app));
    // Found, though the folder differs in the letter's case: noted as moved.
    EXPECT_TRUE(t.app.family.ProgramMoved);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileGuru), GuruLine("Quillstart", "#:\\Quillstart\\"));
}

TEST_F(FlashFamily, SiblingOnAnotherDriveKeepsItsLetter) {
    t.sys.PutFile(L"C:\\Sib\\Sibling.exe");
    FamilyStart(t.app);
    t.app.FamilyMembers.insert(t.app.FamilyMembers.begin(),
                               FamilyMember{L"Sibling", L"S", 1, L"C:\\Sib\\", L"C:\\Sib\\Sibling.exe"});
    t.app.FamilyMemberCount = 1;
    FamABSaveGuruInfo(t.app);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileGuru),
              "\"Sibling\",\"S\",1,\"C:\\Sib\\\"\r\n\"Quillstart\",\"QSLauncher\",226151102,\"#:\\Quillstart\\\"\r\n");
}

struct FamilySave : ::testing::Test {
    TestApp t;
    void SetUp() override {
        SetUpFixedDiskRun(t);
        t.app.place.StartingUp = true;
        t.sys.PutFile(t.app.place.FileKinfold, Kinfold(0));
        t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\"));
        FamilyStart(t.app);
        t.app.place.StartingUp = false;
    }
};

TEST_F(FamilySave, AChangedUserNameIsWrittenAfterStartUp) {
    t.app.family.KinfoldLive.UserFirstName = L"Bea";
    FamAASaveFamilyInfo(t.app);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileKinfold),
              "7\r\n0\r\n-1\r\n\"Annie\"\r\n\"Bea\"\r\n\"Lee\"\r\n\"\"\r\n\"\"\r\n");
    EXPECT_EQ(t.app.family.KinfoldLoaded.UserFirstName, L"Bea");
}

TEST_F(FamilySave, DuringStartUpWhatWasReadWinsOverTheLiveImage) {
    t.app.place.StartingUp = true;
    t.app.family.KinfoldLive.UserFirstName = L"Bea";
    FamAASaveFamilyInfo(t.app);
    EXPECT_EQ(t.app.family.KinfoldLive.UserFirstName, L"Ann");
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileKinfold), Kinfold(0));
}

TEST_F(FamilySave, UnchangedRecordIsNotWritten) {
    t.sys.PutFile(t.app.place.FileKinfold, "changed on disk by a sibling");
    FamAASaveFamilyInfo(t.app);
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileKinfold), "changed on disk by a sibling");
}

TEST_F(FamilySave, KinfoldThatCannotBeWrittenShowsItsTag) {
    t.app.family.KinfoldLive.UserNickName = L"Bee";
    t.sys.readOnlyPrefixes.push_back(t.app.place.FileKinfold);
    FamAASaveFamilyInfo(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamAASaveFamilyInfo"));
}

TEST_F(FamilySave, GuruThatCannotBeWrittenShowsItsTag) {
    t.sys.readOnlyPrefixes.push_back(t.app.place.FileGuru);
    FamABSaveGuruInfo(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamABSaveGuruInfo"));
}

TEST_F(FamilySave, GuruWriteStoppedPartWayKeepsTheMembersWrittenBeforeIt) {
    t.app.FamilyMemberCount = 3;  // one member in memory, four counted
    FamABSaveGuruInfo(t.app);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:FamABSaveGuruInfo"));
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileGuru), GuruLine("Quillstart", "C:\\Tools\\"));
}

TEST_F(FamilySave, JoiningBehindTheLastPossiblePositionOverflows) {
    std::int16_t last = 32767;
    EXPECT_EQ(InFamilyAddMe(t.app, last), 0);
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:InFamilyAddMe"));
}

TEST(FamilyJoin, GuruLastBelowMinusOneGivesNoPositionToJoinAtAndShowsTheBug) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.app.place.StartingUp = true;
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(-752));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:InFamilyAddMe"));
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    ASSERT_EQ(t.app.FamilyMembers.size(), 1u);
    // Position 0 is empty and written so; the next start joins there.
    EXPECT_EQ(t.sys.FileBytes(t.app.place.FileGuru), "\"\",\"\",0,\"\"\r\n");
}

TEST(FamilyJoin, GuruLastOfMinusTwoGivesNoPositionToJoinAtAndShowsTheBug) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.app.place.StartingUp = true;
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(-2));
    EXPECT_TRUE(FamilyStart(t.app));
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:InFamilyAddMe"));
    EXPECT_EQ(t.app.FamilyMemberCount, 0);
    EXPECT_EQ(t.app.FamilyMembers.size(), 1u);
}

// A system whose file tests fail, as a broken scripting runtime would.
class BrokenFileSystem : public FakeSystem {
public:
    bool FileExists(const std::wstring&) override { throw SystemCallFailed("no scripting runtime"); }
};

TEST(FamilyStartFailure, AFailureOfItsOwnShowsTheFamilyStartTag) {
    BrokenFileSystem sys;
    Application app(sys);
    DialogBackend dialogs{app};
    app.AttachBackend(&dialogs);
    app.place.FileKinfold = L"C:\\Morvane\\Kinfold\\Kinfold.Morvane";
    EXPECT_FALSE(FamilyStart(app));
    ASSERT_FALSE(dialogs.shown.empty());
    EXPECT_EQ(dialogs.shown.back().key, L"Quillstart:Bug:FamilyStart");
}

struct FamilyCompletion : ::testing::Test {
    TestApp t;
    void SetUp() override {
        SetUpFixedDiskRun(t);
        t.app.place.StartingUp = true;
    }
};

TEST_F(FamilyCompletion, AFamilyWhoseOnlyMemberIsThisProgramOffersNoCompletion) {
    FamilyStart(t.app);
    t.ClearBox();
    t.Type(L"r.Qui");
    EXPECT_EQ(t.Text(), L"r.Qui");
    EXPECT_EQ(t.app.PendingFamilyIndex, -1);
}

TEST_F(FamilyCompletion, ASiblingTypedInAnyCaseIsFoundAndKeepsItsStoredCase) {
    t.sys.PutFile(L"C:\\Sib\\PenPal.exe");
    t.sys.PutFile(t.app.place.FileKinfold, Kinfold(1));
    t.sys.PutFile(t.app.place.FileGuru, GuruLine("Quillstart", "C:\\Tools\\") + GuruLine("PenPal", "C:\\Sib\\"));
    FamilyStart(t.app);
    t.ClearBox();
    t.Type(L"R.PEN");
    EXPECT_EQ(t.Text(), L"R.PenPal");
    EXPECT_EQ(t.app.PendingFamilyIndex, 1);
    t.Enter();
    EXPECT_EQ(t.LastTarget().find(L"C:\\Sib\\PenPal.exe"), 0u);
}

}  // namespace
}  // namespace qs::test
