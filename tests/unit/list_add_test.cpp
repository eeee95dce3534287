// Adding items through the Add Item pane and the web box, and renaming them:
// the checks, their order and keys, and the lists kept in step.
#include <gtest/gtest.h>

#include "browse_setup.h"
#include "data/list_add.h"
#include "shown_messages.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct AddOnFixedDisk : ::testing::Test {
    TestApp t;
    FrmBrowse& pane = t.app.frmBrowse;
    void SetUp() override {
        LoadBrowseOverApps(t);
        OpenBrowse(t, 0);
    }
    void Option(std::int16_t i) { pane.OptionBrowse(i).UserClicked(); }
    // Fills the path box as the folder and file boxes (or the pointer) do.
    void Add(std::int16_t option, const std::wstring& path, const std::wstring& name) {
        Option(option);
        pane.TextAddPath.SetText(path);
        NameAndEnter(t, name);
    }
};

struct AddOnFlashDrive : AddOnFixedDisk {
    void SetUp() override {
        SetUpFlashRun(t, L'E');
        t.sys.PutFile(L"C:\\Apps\\player.exe");
        t.sys.PutFile(L"E:\\Tools\\edit.exe");
        LoadBrowse(t);
        OpenBrowse(t, 0);
    }
};

TEST(BrowseOptionGroups, OptionsMapToGroupsWithFileExeGoingToProgram) {
    EXPECT_EQ(GroupOfBrowseOption(0, L"exe"), 2);
    EXPECT_EQ(GroupOfBrowseOption(1, L"txt"), 0);
    EXPECT_EQ(GroupOfBrowseOption(1, L"exe"), 2);
    EXPECT_EQ(GroupOfBrowseOption(2, L""), 1);
    EXPECT_EQ(GroupOfBrowseOption(3, L""), 3);
    EXPECT_EQ(GroupOfBrowseOption(4, L""), 4);
}

TEST_F(AddOnFixedDisk, AProgramChosenInTheBoxesLandsInTheProgramGroupOnTheComputerSide) {
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps\\player.exe");
    NameAndEnter(t, L"myPlayer");
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"myPlayer"}));
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\Apps\\player.exe"}));
    EXPECT_EQ(Entries(ComputerNames(t, 2)), (Names{L"myPlayer"}));
    EXPECT_EQ(Entries(FlashNames(t, 2)), Names{});
    // No message confirms a success; the emptied boxes are the feedback.
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(pane.TextAddPath.Text(), L"");
    EXPECT_EQ(pane.TextAddName.Text(), L"");
}

TEST_F(AddOnFixedDisk, AddingEmptiesTheCommandBoxUnderTheBusyGuard) {
    t.app.frmMain.Show();
    t.app.frmMain.SetTextMainQuietly(L"p-pl");
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    NameAndEnter(t, L"myPlayer");
    EXPECT_EQ(t.Text(), L"");
    EXPECT_FALSE(t.app.TextMainBusy);
}

TEST_F(AddOnFixedDisk, AFileOnACdRomIsRefusedWithWrongPathToAddEvenWhenTheProgramRunsFromIt) {
    t.sys.MapDrive(L'D', DriveType::CDRom);
    t.sys.PutFile(L"D:\\setup.exe");
    t.app.place.ProgramDriveLetterUpper = L"D";
    Add(0, L"D:\\setup.exe", L"setup");
    EXPECT_EQ(ShownKeys(t), (Names{L"WrongPathToAdd"}));
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
}

TEST_F(AddOnFixedDisk, AFileOnANetworkDriveIsRefusedWithWrongPathToAdd) {
    t.sys.MapDrive(L'N', DriveType::Network);
    t.sys.PutFile(L"N:\\share\\tool.exe");
    t.app.place.ProgramDriveLetterUpper = L"N";
    Add(0, L"N:\\share\\tool.exe", L"tool");
    EXPECT_EQ(ShownKeys(t), (Names{L"WrongPathToAdd"}));
}

TEST_F(AddOnFixedDisk, AFileOnAFlashDriveIsRefusedWhenTheProgramRunsFromAFixedDisk) {
    t.sys.MapDrive(L'F', DriveType::Removable);
    t.sys.PutFile(L"F:\\tool.exe");
    Add(0, L"F:\\tool.exe", L"tool");
    EXPECT_EQ(ShownKeys(t), (Names{L"WrongPathToAdd"}));
    // A refusal leaves the boxes as they are.
    EXPECT_EQ(pane.TextAddPath.Text(), L"F:\\tool.exe");
    EXPECT_EQ(pane.TextAddName.Text(), L"tool");
}

TEST_F(AddOnFlashDrive, AFileOnAnotherFlashDriveIsRefused) {
    t.sys.MapDrive(L'F', DriveType::Removable);
    t.sys.PutFile(L"F:\\tool.exe");
    Add(0, L"F:\\tool.exe", L"tool");
    EXPECT_EQ(ShownKeys(t), (Names{L"WrongPathToAdd"}));
}

TEST_F(AddOnFlashDrive, AFileOnTheProgramsOwnFlashDriveLandsOnTheFlashSideAndInTheMergedList) {
    Add(0, L"E:\\Tools\\edit.exe", L"edit");
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"E:\\Tools\\edit.exe"}));
    EXPECT_EQ(Entries(FlashPaths(t, 2)), (Names{L"E:\\Tools\\edit.exe"}));
    EXPECT_EQ(ComputerNames(t, 2).ListCount(), 0);
}

TEST_F(AddOnFlashDrive, AFileOnAFixedDiskAddedInAFlashRunLandsOnTheComputerSide) {
    Add(0, L"C:\\Apps\\player.exe", L"player");
    EXPECT_EQ(Entries(ComputerPaths(t, 2)), (Names{L"C:\\Apps\\player.exe"}));
    EXPECT_EQ(FlashNames(t, 2).ListCount(), 0);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"player"}));
}

TEST_F(AddOnFixedDisk, AProgramChosenUnderFileAndUnderProgramLandsInOneGroupSoTheSecondIsADuplicate) {
    Add(1, L"C:\\Apps\\player.exe", L"viaFile");
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"viaFile"}));
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    Add(0, L"C:\\Apps\\player.exe", L"viaProgram");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessagePathAlreadyListed"}));
    EXPECT_EQ(ShownMessages(t)[0].body.find(L"viaFile") != std::wstring::npos, true);
}

TEST_F(AddOnFixedDisk, ThePathCheckComesFirstSoATakenPathAndNameReportOnlyThePath) {
    Add(0, L"C:\\Apps\\player.exe", L"player");
    Add(0, L"C:\\Apps\\player.exe", L"PLAYER");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessagePathAlreadyListed"}));
    // The path refusal keeps the name typed; the list's choice goes.
    EXPECT_EQ(pane.TextAddName.Text(), L"PLAYER");
    EXPECT_EQ(pane.FileWork.ListIndex(), -1);
}

TEST_F(AddOnFixedDisk, ANameTakenIgnoringCaseIsRefusedAndTheNameBoxEmptied) {
    t.sys.PutFile(L"C:\\Apps\\other.exe");
    Add(0, L"C:\\Apps\\player.exe", L"Player");
    Add(0, L"C:\\Apps\\other.exe", L"player");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageNameAlreadyListed"}));
    EXPECT_EQ(pane.TextAddName.Text(), L"");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps\\other.exe");
}

TEST_F(AddOnFixedDisk, TheSameNameInTwoGroupsIsAllowed) {
    Add(0, L"C:\\Apps\\player.exe", L"notes");
    Add(1, L"C:\\Apps\\notes.txt", L"notes");
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(Entries(MergedNames(t, 0)), (Names{L"notes"}));
}

TEST_F(AddOnFixedDisk, AnEmailItemWithAnyTextIsAccepted) {
    Add(3, L"no at sign here", L"odd");
    Add(3, L"a b c", L"blanks");
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(Entries(MergedPaths(t, 3)), (Names{L"a b c", L"no at sign here"}));
}

TEST_F(AddOnFixedDisk, AWebUrlItemIsTakenAsItStands) {
    Add(4, L"example.org/x y", L"site");
    EXPECT_EQ(Entries(MergedPaths(t, 4)), (Names{L"example.org/x y"}));
}

TEST_F(AddOnFixedDisk, AFolderChosenUnderFolderLandsInTheFolderGroup) {
    Option(2);
    pane.DirWork.SetPath(L"C:\\Apps");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps");
    NameAndEnter(t, L"apps");
    EXPECT_EQ(Entries(MergedPaths(t, 1)), (Names{L"C:\\Apps"}));
    EXPECT_EQ(Entries(ComputerPaths(t, 1)), (Names{L"C:\\Apps"}));
}

TEST_F(AddOnFixedDisk, TheMakersOwnProgramIsRefusedUnderProgramButNotUnderFile) {
    t.sys.PutFile(L"C:\\Morvane\\Sib.exe");
    t.app.FamilyMembers.push_back({L"Sib", L"", 0, L"C:\\Morvane\\", L"C:\\Morvane\\Sib.exe"});
    t.app.FamilyMemberCount = 0;
    Add(0, L"C:\\Morvane\\Sib.exe", L"sib");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageFamilyProgram"}));
    Add(1, L"C:\\Morvane\\Sib.exe", L"sib");
    EXPECT_EQ(ShownKeys(t).size(), 1u);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"sib"}));
}

TEST_F(AddOnFixedDisk, AnUnsafeAttributeIsReportedBeforeAnUnsafeExtension) {
    t.sys.PutFile(L"C:\\Apps\\run.bat");
    t.sys.attributes[L"c:\\apps\\run.bat"] = 2;
    Add(1, L"C:\\Apps\\run.bat", L"run");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageXXUnsafeItem"}));
    t.sys.attributes[L"c:\\apps\\run.bat"] = 32;
    Add(1, L"C:\\Apps\\run.bat", L"run");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageXXUnsafeItem", L"MessageXXUnsafeItem"}));
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
}

TEST_F(AddOnFixedDisk, TheDriveCheckComesBeforeTheItemTests) {
    t.sys.MapDrive(L'D', DriveType::CDRom);
    t.sys.PutFile(L"D:\\run.bat");
    Add(1, L"D:\\run.bat", L"run");
    EXPECT_EQ(ShownKeys(t), (Names{L"WrongPathToAdd"}));
}

TEST_F(AddOnFixedDisk, AFileThatHasGoneEndsInTheClicksBugReport) {
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    t.sys.DeleteFile(L"C:\\Apps\\player.exe");
    NameAndEnter(t, L"gone");
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:frmBrowse:PictureAddOK:Click"));
    EXPECT_EQ(MergedNames(t, 2).ListCount(), 0);
}

TEST_F(AddOnFixedDisk, ConfirmPathComparesExactlyAndKeepsTheDuplicatesName) {
    t.AddItem(0, L"Notes", L"C:\\Apps\\notes.txt");
    EXPECT_EQ(ActionConfirmAddPath(t.app, L"C:\\APPS\\notes.txt", MergedPaths(t, 0), MergedNames(t, 0)), L"");
    EXPECT_EQ(ActionConfirmAddPath(t.app, L"C:\\Apps\\notes.txt", MergedPaths(t, 0), MergedNames(t, 0)),
              L"MessagePathAlreadyListed");
    EXPECT_EQ(t.app.message.DuplicateItemName, L"Notes");
    EXPECT_EQ(ActionConfirmAddName(t.app, L"NOTES", MergedNames(t, 0)), L"MessageNameAlreadyListed");
    EXPECT_EQ(ActionConfirmAddName(t.app, L"Notes2", MergedNames(t, 0)), L"");
}

TEST_F(AddOnFixedDisk, AWebItemFromTheBarLandsInGroupFourAndEmptiesTheCommandBox) {
    t.app.frmMain.SetTextMainQuietly(L"w-x");
    ActionListAddWeb(t.app, L"news", L"http://news.example/");
    EXPECT_EQ(Entries(MergedNames(t, 4)), (Names{L"news"}));
    EXPECT_EQ(Entries(MergedPaths(t, 4)), (Names{L"http://news.example/"}));
    EXPECT_EQ(t.Text(), L"");
}

struct Rename : AddOnFlashDrive {};

TEST_F(Rename, ARenameToANameDifferingOnlyByCaseSucceedsAndLeavesTwoNamesTheAddWouldRefuse) {
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    Add(0, L"C:\\Apps\\player.exe", L"player");
    Add(0, L"C:\\Apps\\b.exe", L"other");
    const auto at = static_cast<std::int16_t>(MergedNames(t, 2).FindExact(L"other"));
    EXPECT_EQ(ActionListRename(t.app, 2, L"Player", at), L"");
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"player", L"Player"}));
    EXPECT_EQ(ActionConfirmAddName(t.app, L"PLAYER", MergedNames(t, 2)), L"MessageNameAlreadyListed");
    // The path went with its name, on the computer side too.
    EXPECT_EQ(MergedPaths(t, 2).List(MergedNames(t, 2).FindExact(L"Player")), L"C:\\Apps\\b.exe");
    EXPECT_EQ(ComputerPaths(t, 2).List(ComputerNames(t, 2).FindExact(L"Player")), L"C:\\Apps\\b.exe");
}

TEST_F(Rename, RenamingAnItemToItsOwnNameFails) {
    Add(0, L"C:\\Apps\\player.exe", L"player");
    EXPECT_EQ(ActionListRename(t.app, 2, L"player", 0), L"MessageNameAlreadyListed");
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"player"}));
}

TEST_F(Rename, AfterARenameTheSelectionJumpsToTheFirstItem) {
    t.sys.PutFile(L"C:\\Apps\\b.exe");
    Add(0, L"C:\\Apps\\player.exe", L"alpha");
    Add(0, L"C:\\Apps\\b.exe", L"beta");
    MergedNames(t, 2).SetListIndex(1);
    EXPECT_EQ(ActionListRename(t.app, 2, L"zeta", 1), L"");
    EXPECT_EQ(MergedNames(t, 2).ListIndex(), 0);
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"alpha", L"zeta"}));
}

TEST_F(Rename, AFlashSideItemIsRenamedOnTheFlashSide) {
    Add(0, L"E:\\Tools\\edit.exe", L"edit");
    EXPECT_EQ(ActionListRename(t.app, 2, L"editor", 0), L"");
    EXPECT_EQ(Entries(FlashNames(t, 2)), (Names{L"editor"}));
    EXPECT_EQ(Entries(FlashPaths(t, 2)), (Names{L"E:\\Tools\\edit.exe"}));
    EXPECT_EQ(ComputerNames(t, 2).ListCount(), 0);
}

TEST_F(Rename, ARenameAtAPositionOutsideTheListIsReported) {
    EXPECT_EQ(ActionListRename(t.app, 2, L"x", 3), L"");
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionListRename"));
}

}  // namespace
}  // namespace qs::test
