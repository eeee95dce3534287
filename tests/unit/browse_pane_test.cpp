// The Add Item and Open pane: its two faces, the options, the folder boxes
// with the system-folder bounce, the item tests, Open and close.
#include <gtest/gtest.h>

#include "browse_setup.h"
#include "data/list_add.h"
#include "shown_messages.h"
#include "theme/active_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs::test {
namespace {

using Names = std::vector<std::wstring>;

struct Pane : ::testing::Test {
    TestApp t;
    FrmBrowse& pane = t.app.frmBrowse;
    void SetUp() override {
        t.sys.MapDrive(L'C', DriveType::Fixed);
        t.sys.PutFile(L"C:\\Windows2\\tool.exe");
        t.sys.PutFile(L"C:\\Windows\\notepad.exe");
        LoadBrowseOverApps(t);
    }
};

TEST_F(Pane, TheLoadStartsInTheProgramsFolderOnAFixedDrive) {
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\Tools");
    EXPECT_EQ(pane.CurrentFolder, L"C:\\Tools");
    EXPECT_EQ(pane.CurrentFolderSlash, L"C:\\Tools\\");
    EXPECT_EQ(pane.SelectedDriveType, 2);
    EXPECT_EQ(t.app.settings.LastFolder, L"C:\\Tools");
    EXPECT_EQ(pane.DriveWork.Drive(), L"c:");
}

TEST(PaneLoad, TheLoadReturnsToTheLastFolderOfTheLastRun) {
    TestApp t;
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\player.exe");
    t.app.settings.LastFolder = L"C:\\Apps";
    LoadBrowse(t);
    EXPECT_EQ(t.app.frmBrowse.DirWork.Path(), L"C:\\Apps");
    EXPECT_EQ(t.app.frmBrowse.CurrentFolder, L"C:\\Apps");
}

TEST_F(Pane, AddItemShowsItsFramesTitleAndStartsAtProgramWithExeFiles) {
    OpenBrowse(t, 0);
    EXPECT_TRUE(pane.Visible());
    EXPECT_EQ(pane.Caption(), L"Add Item");
    EXPECT_EQ(pane.LabelBrowseBack.Caption(), L"Add Item :");
    EXPECT_TRUE(pane.FrameBrowseOption.Visible());
    EXPECT_TRUE(pane.FrameAddPath.Visible());
    EXPECT_TRUE(pane.FrameAddToList.Visible());
    EXPECT_TRUE(pane.FrameFindPath.Visible());
    EXPECT_FALSE(pane.FrameSelect.Visible());
    EXPECT_FALSE(pane.PictureSelectOK.Shown());
    EXPECT_TRUE(pane.OptionBrowse(0).Value());
    EXPECT_EQ(pane.BrowseOption, 0);
    EXPECT_EQ(pane.FileWork.Pattern(), L"*.exe");
    EXPECT_EQ(pane.FrameAddPath.Caption(), L"Program Path:");
    EXPECT_EQ(pane.LabelAddPath.Caption(), L"Do Not Type - Select Program");
    EXPECT_TRUE(pane.TextAddPath.Locked());
    EXPECT_EQ(pane.PictureBrowse.Height(), 8412);
    EXPECT_EQ(pane.Height(), BrowseHeight);
}

TEST_F(Pane, InOpenModeTheFirstOptionClickChoosesAllFiles) {
    OpenBrowse(t, 1);
    EXPECT_EQ(pane.Caption(), L"Open");
    EXPECT_EQ(pane.LabelBrowseBack.Caption(), L"Open :");
    EXPECT_TRUE(pane.OptionBrowse(1).Value());
    EXPECT_EQ(pane.FileWork.Pattern(), L"*.*");
    EXPECT_TRUE(pane.FrameSelect.Visible());
    EXPECT_FALSE(pane.FrameBrowseOption.Visible());
    EXPECT_FALSE(pane.OptionBrowse(1).Shown());
    EXPECT_EQ(pane.PictureBrowse.Height(), 5760);
    EXPECT_EQ(pane.LabelOpen.Caption(), L"Open");
    EXPECT_FALSE(pane.PictureSelectOK.Enabled());
    EXPECT_EQ(pane.PictureSelectOK.Picture(), t.app.theme.ImageZeroBlank);
}

TEST_F(Pane, EachOptionSetsItsPatternStatesAndCaptions) {
    OpenBrowse(t, 0);
    const Names frames = {L"Program Path:", L"File path:", L"Folder path:", L"Email Address:", L"Web URL:"};
    const Names labels = {L"Do Not Type - Select Program", L"Do Not Type - Select File",
                          L"Do Not Type - Select Folder", L"Type Email Address", L"Type Web Address (URL)"};
    const Names patterns = {L"*.exe", L"*.*", L"*.exe", L"*.exe", L"*.exe"};
    for (std::int16_t i = 0; i < 5; ++i) {
        pane.OptionBrowse(i).UserClicked();
        EXPECT_EQ(pane.BrowseOption, i);
        EXPECT_EQ(pane.FrameAddPath.Caption(), frames[static_cast<std::size_t>(i)]);
        EXPECT_EQ(pane.LabelAddPath.Caption(), labels[static_cast<std::size_t>(i)]);
        EXPECT_EQ(pane.FileWork.Pattern(), patterns[static_cast<std::size_t>(i)]);
        EXPECT_EQ(pane.FileWork.Enabled(), i < 2);
        EXPECT_EQ(pane.PictureFindPath.Enabled(), i == 0);
        EXPECT_EQ(pane.LabelAddSelectA.Visible(), i < 2);
        EXPECT_EQ(pane.TextAddPath.Locked(), i < 3);
        EXPECT_EQ(pane.FileWork.BackColor(), i < 2 ? t.app.theme.CurrentFormColor : ui::SystemButtonText);
    }
    pane.OptionBrowse(5).SetValue(true);
    EXPECT_EQ(pane.LabelOpen.Caption(), L"OK");
    EXPECT_EQ(pane.FileWork.Pattern(), L"*.*");
}

TEST_F(Pane, TheFolderOptionFillsThePathWithTheFolderShown) {
    OpenBrowse(t, 0);
    pane.DirWork.SetPath(L"C:\\Apps");
    pane.OptionBrowse(2).UserClicked();
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps");
    pane.OptionBrowse(3).UserClicked();
    EXPECT_EQ(pane.TextAddPath.Text(), L"");
}

TEST_F(Pane, BrowsingIntoTheWindowsFolderBouncesBackWithTheMessageTheFirstTimeOnly) {
    OpenBrowse(t, 0);
    pane.DirWork.SetPath(L"C:\\Apps");
    pane.DirWork.SetPath(L"C:\\Windows");
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\Apps");
    EXPECT_EQ(pane.FileWork.Path(), L"C:\\Apps");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageSystemItemNotAllowed"}));
    pane.DirWork.UserOpened(0);
    pane.DirWork.SetPath(L"C:\\Windows");
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\");
    EXPECT_EQ(ShownKeys(t).size(), 1u);
    EXPECT_FALSE(t.app.TextMainBusy);
}

TEST_F(Pane, AFolderNamedLikeTheWindowsFolderWithMoreLettersIsNoSystemFolder) {
    OpenBrowse(t, 0);
    pane.DirWork.SetPath(L"C:\\Windows2");
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\Windows2");
    EXPECT_EQ(pane.CurrentFolder, L"C:\\Windows2");
    EXPECT_EQ(Entries(pane.FileWork), (Names{L"tool.exe"}));
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(Pane, APathUnderTheWindowsFolderFilledInByThePointerIsAdded) {
    OpenBrowse(t, 0);
    pane.TextAddPath.SetText(L"C:\\Windows\\notepad.exe");
    NameAndEnter(t, L"notepad");
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(Entries(MergedPaths(t, 2)), (Names{L"C:\\Windows\\notepad.exe"}));
}

TEST_F(Pane, AnExtensionInCapitalsCountsAsItsLowerCase) {
    t.sys.PutFile(L"C:\\Apps\\BIG.EXE");
    t.sys.PutFile(L"C:\\Apps\\RUN.BAT");
    OpenBrowse(t, 0);
    pane.OptionBrowse(1).UserClicked();
    ChooseFile(t, L"C:\\Apps", L"BIG.EXE");
    NameAndEnter(t, L"big");
    EXPECT_EQ(Entries(MergedNames(t, 2)), (Names{L"big"}));
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
    ChooseFile(t, L"C:\\Apps", L"RUN.BAT");
    NameAndEnter(t, L"run");
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageXXUnsafeItem"}));
}

TEST_F(Pane, AFileWithNoExtensionPassesTheExtensionTest) {
    EXPECT_EQ(pane.ActAllowExt(L""), L"");
    t.sys.PutFile(L"C:\\Apps\\README");
    OpenBrowse(t, 0);
    pane.OptionBrowse(1).UserClicked();
    ChooseFile(t, L"C:\\Apps", L"README");
    NameAndEnter(t, L"readme");
    EXPECT_EQ(Entries(MergedPaths(t, 0)), (Names{L"C:\\Apps\\README"}));
}

TEST_F(Pane, TheExtensionTestRefusesExactlyItsTwentyOneExtensions) {
    const Names unsafe = {L"cmd", L"bat", L"dll", L"drv", L"inf", L"ini", L"iso", L"js",  L"obj", L"ocx", L"rat",
                          L"reg", L"sct", L"shs", L"stf", L"sys", L"vbe", L"vbs", L"vxd", L"wsf", L"wsh"};
    for (const auto& e : unsafe) EXPECT_EQ(pane.ActAllowExt(e), L"MessageXXUnsafeItem") << std::string(e.begin(), e.end());
    for (const auto& e : Names{L"exe", L"txt", L"BAT", L"bat2", L"lnk"}) EXPECT_EQ(pane.ActAllowExt(e), L"");
}

TEST_F(Pane, AReadOnlyFilePassesTheAttributeTestAndAHiddenOneDoesNot) {
    EXPECT_EQ(pane.ActAllowAttr(1), L"");
    EXPECT_EQ(pane.ActAllowAttr(2), L"MessageXXUnsafeItem");
    EXPECT_EQ(pane.ActAllowAttr(4), L"MessageXXUnsafeItem");
    EXPECT_EQ(pane.ActAllowAttr(8), L"MessageXXUnsafeItem");
    EXPECT_EQ(pane.ActAllowAttr(128), L"MessageXXUnsafeItem");
    // Equality, not bits: hidden with archive, and every folder, pass.
    EXPECT_EQ(pane.ActAllowAttr(34), L"");
    EXPECT_EQ(pane.ActAllowAttr(18), L"");
    EXPECT_EQ(pane.ActAllowAttrExt(L"bat", 1), L"MessageXXUnsafeItem");
    EXPECT_EQ(pane.ActAllowAttrExt(L"exe", 2), L"MessageXXUnsafeItem");
    EXPECT_EQ(pane.ActAllowAttrExt(L"exe", 32), L"");
}

TEST_F(Pane, ADriveTypeIsZeroWhenTheDriveCannotBeTaken) {
    t.sys.MapDrive(L'D', DriveType::CDRom);
    EXPECT_EQ(pane.ActDeclareDriveType(L"D:\\"), 4);
    EXPECT_EQ(pane.ActDeclareDriveType(L"c: "), 2);
    EXPECT_EQ(pane.ActDeclareDriveType(L"Q:\\"), 0);
}

TEST_F(Pane, ADriveThatIsNotReadyShowsItsMessageAndTheBoxGoesBack) {
    t.sys.MapDrive(L'A', DriveType::Removable);
    t.sys.notReady.push_back(L'A');
    pane.DriveWork.Refresh();
    OpenBrowse(t, 0);
    pane.DriveWork.UserSelected(0);
    EXPECT_EQ(ShownKeys(t), (Names{L"MessageDriveNotReady"}));
    EXPECT_EQ(pane.DriveWork.Drive(), L"c:");
    EXPECT_EQ(pane.SelectedDriveLetter, L"C");
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\Tools");
}

TEST_F(Pane, AnotherDriveTakesItsTypeAndTheFolderBoxMovesToIt) {
    t.sys.MapDrive(L'D', DriveType::Fixed);
    t.sys.PutFile(L"D:\\Data\\x.exe");
    t.sys.volumeNames[L'D'] = L"Data";
    pane.DriveWork.Refresh();
    OpenBrowse(t, 0);
    pane.DriveWork.SetDrive(L"d");
    EXPECT_EQ(pane.DriveWork.Drive(), L"d: [Data]");
    EXPECT_EQ(pane.SelectedDriveLetter, L"D");
    EXPECT_EQ(pane.SelectedDriveType, 2);
    EXPECT_EQ(pane.DirWork.Path(), L"D:\\");
    EXPECT_EQ(pane.CurrentFolder, L"D:\\");
}

TEST_F(Pane, AFileClickAsksForALaunchNameAfresh) {
    OpenBrowse(t, 0);
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    pane.TextAddName.TypeText(L"abc");
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    EXPECT_EQ(pane.TextAddName.Text(), L"");
    EXPECT_EQ(pane.TextAddPath.Text(), L"C:\\Apps\\player.exe");
}

TEST_F(Pane, TheNameBoxWaitsForAPathAndOKWaitsForAName) {
    OpenBrowse(t, 0);
    EXPECT_FALSE(pane.TextAddName.Enabled());
    EXPECT_FALSE(pane.PictureAddOK.Enabled());
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    EXPECT_TRUE(pane.TextAddName.Enabled());
    pane.TextAddName.TypeText(L"p");
    EXPECT_TRUE(pane.PictureAddOK.Enabled());
    EXPECT_EQ(pane.PictureAddOK.Picture(), t.app.theme.ImageZeroSet[2]);
    pane.TextAddPath.SetText(L"");
    EXPECT_EQ(pane.TextAddName.Text(), L"");
    EXPECT_FALSE(pane.TextAddName.Enabled());
    EXPECT_FALSE(pane.PictureAddOK.Enabled());
}

TEST_F(Pane, EnterWithAnEmptyNameDoesNothing) {
    OpenBrowse(t, 0);
    pane.OptionBrowse(3).UserClicked();
    pane.TextAddPath.TypeText(L"ann@example.org");
    pane.TextAddPath.TypeKey(13);
    EXPECT_EQ(MergedNames(t, 3).ListCount(), 0);
    pane.TextAddName.TypeText(L"ann");
    pane.TextAddPath.TypeKey(13);
    EXPECT_EQ(Entries(MergedNames(t, 3)), (Names{L"ann"}));
}

TEST_F(Pane, OpenRunsTheChosenFileAndClosesThePane) {
    OpenBrowse(t, 1);
    ChooseFile(t, L"C:\\Apps", L"notes.txt");
    EXPECT_TRUE(pane.PictureSelectOK.Enabled());
    pane.PictureSelectOK.Press();
    EXPECT_EQ(t.LastTarget(), L"C:\\Apps\\notes.txt");
    EXPECT_FALSE(pane.Visible());
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    // Open mode adds nothing.
    EXPECT_EQ(MergedNames(t, 0).ListCount(), 0);
}

TEST_F(Pane, InOpenModeAFolderChangeTakesTheChoiceAway) {
    OpenBrowse(t, 1);
    ChooseFile(t, L"C:\\Apps", L"notes.txt");
    pane.DirWork.SetPath(L"C:\\Windows2");
    EXPECT_FALSE(pane.PictureSelectOK.Enabled());
}

TEST_F(Pane, TheCloseButtonAsksTheBarToClickThePanesButtonAgain) {
    OpenBrowse(t, 0);
    pane.PictureAddCancel.Press();
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_EQ(t.app.PendingClick, -1);
}

TEST_F(Pane, WithTheBarNearTheBottomThePaneOpensAboveIt) {
    t.app.place.WorkAreaTop = 0;
    t.app.place.WorkAreaBottom = 1040;
    t.app.frmMain.Move(3000, 14000, 6360, 348);
    OpenBrowse(t, 0);
    EXPECT_EQ(pane.Top(), 14000 - (BrowseHeight + 120));
    EXPECT_EQ(pane.Left(), 3600);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST_F(Pane, OnASmallScreenTheBarJumpsToTheTopAndReturnsWhenThePaneCloses) {
    t.app.place.WorkAreaTop = 0;
    t.app.place.WorkAreaBottom = 600;
    t.app.frmMain.Move(3000, 4000, 6360, 348);
    OpenBrowse(t, 1);
    EXPECT_EQ(t.app.frmMain.Top(), 0);
    EXPECT_EQ(t.app.SavedMainTop, 4000);
    ChooseFile(t, L"C:\\Apps", L"notes.txt");
    pane.PictureSelectOK.Press();
    EXPECT_EQ(t.app.frmMain.Top(), 4000);
    EXPECT_EQ(t.app.SavedMainTop, -1);
}

TEST_F(Pane, HidingThePaneEmptiesItsBoxesAndKeepsTheFolder) {
    OpenBrowse(t, 0);
    ChooseFile(t, L"C:\\Apps", L"player.exe");
    std::int16_t hide = -1;
    ActionSetBrowse(t.app, hide);
    EXPECT_FALSE(pane.Visible());
    EXPECT_EQ(pane.TextAddPath.Text(), L"");
    OpenBrowse(t, 0);
    EXPECT_EQ(pane.DirWork.Path(), L"C:\\Apps");
}

TEST_F(Pane, TheThemeGivesThePaneItsBackgroundAndTheCloseLabelItsColour) {
    for (std::int16_t theme : {std::int16_t{0}, std::int16_t{4}}) {
        std::int16_t t2 = theme;
        ThemeCreate(t.app, t2);
        EXPECT_EQ(pane.Picture(), OneOfTheme(ui::PictureSlot::ImageBack, theme));
        EXPECT_EQ(pane.LabelAddCancel.ForeColor(), theme > 1 ? ColorLime : ColorGreen);
        EXPECT_EQ(pane.LabelBrowseBack.ForeColor(), t.app.theme.CurrentAccentColor);
        EXPECT_EQ(pane.DirWork.BackColor(), t.app.theme.CurrentFormColor);
        EXPECT_EQ(pane.PictureAddCancel.Picture(), OneOfTheme(ui::PictureSlot::ImageMX, theme));
    }
}

TEST_F(Pane, TheCloseLabelLightsUnderThePointerAndGoesBackOnTheFrame) {
    pane.LabelAddCancel.UserMouseMove(0, 0, 10, 10);
    EXPECT_EQ(pane.LabelAddCancel.ForeColor(), ColorBlue);
    pane.FrameHideWindow.UserMouseMove(0, 0, 10, 10);
    EXPECT_EQ(pane.LabelAddCancel.ForeColor(), ColorGreen);
}

}  // namespace
}  // namespace qs::test
