// The Command box: keystrokes, the dispatcher and what each Command launches.
#include <gtest/gtest.h>

#include <vector>

#include "shown_messages.h"
#include "test_app.h"

namespace {

using qs::test::Launch;
using qs::test::TestApp;

struct CommandBox : ::testing::Test {
    TestApp t;
    std::size_t Launches() const { return t.sys.launches.size(); }
};

TEST_F(CommandBox, BareCodeOrSingleCharacterRunsNothingAndStays) {
    t.Type(L"p");
    t.Enter();
    EXPECT_EQ(t.Text(), L"p");
    t.ClearBox();
    t.Type(L"p-");
    t.Enter();
    EXPECT_EQ(t.Text(), L"p-");
    EXPECT_EQ(Launches(), 0u);
}

TEST_F(CommandBox, CapitalsRunTheMatchingItem) {
    t.AddItem(2, L"myPlayer", L"C:\\Apps\\player.exe");
    t.sys.PutFile(L"C:\\Apps\\player.exe");
    t.Type(L"P-MYPLAYER");
    t.Enter();
    ASSERT_EQ(Launches(), 1u);
    EXPECT_EQ(t.LastTarget(), L"C:\\Apps\\player.exe");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, WebSemicolonAddsHttpWww) {
    t.Type(L"w;example.org");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"http://www.example.org");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, DomainSubstitutionWorksOnlyWithSingleCharacterCodes) {
    t.Type(L"c/name");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"http://www.name.com");
    t.Type(L"tv/name");
    t.Enter();
    EXPECT_EQ(Launches(), 1u);
    EXPECT_EQ(t.Text(), L"tv/name");
    t.ClearBox();
    t.Type(L"t/name");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"http://www.name.tv");
}

TEST_F(CommandBox, EveryPathFormBuildsItsTarget) {
    const std::vector<std::pair<std::wstring, std::wstring>> forms = {
        {L"e=a@b.example", L"mailto:a@b.example"}, {L"w=http://x.example/p", L"http://x.example/p"},
        {L"w:x.example", L"http://x.example"},     {L"g/name", L"http://www.name.gov"},
        {L"i/name", L"http://www.name.info"},      {L"n/name", L"http://www.name.net"},
        {L"o/name", L"http://www.name.org"},       {L"f=C:\\doc.txt", L"C:\\doc.txt"},
    };
    for (const auto& [command, target] : forms) {
        t.ClearBox();
        t.Type(command);
        t.Enter();
        EXPECT_EQ(t.LastTarget(), target) << std::string(command.begin(), command.end());
        EXPECT_EQ(t.Text(), L"");
    }
}

TEST_F(CommandBox, FolderPathRunsTheFileManagerByFullPath) {
    t.Type(L"d=C:\\Temp");
    t.Enter();
    ASSERT_EQ(Launches(), 1u);
    EXPECT_EQ(t.sys.launches[0].kind, Launch::Kind::Run);
    EXPECT_EQ(t.LastTarget(), L"C:\\Windows\\explorer.exe C:\\Temp");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, UnknownSpecialFolderOpensDocuments) {
    t.Type(L"d.NoSuchFolder");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"C:\\Windows\\explorer.exe C:\\Users\\ann\\Documents");
}

TEST_F(CommandBox, ProgramPathIsNotCheckedAndABadOneShowsTheBugDialog) {
    t.Type(L"p=C:\\nope.exe");
    t.Enter();
    ASSERT_EQ(Launches(), 1u);
    EXPECT_EQ(t.LastTarget(), L"C:\\nope.exe");
    EXPECT_EQ(t.Text(), L"");
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
}

TEST_F(CommandBox, UnknownAdditionalTaskEmptiesTheBoxOnly) {
    t.Type(L"a.Nonsense");
    t.Enter();
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(Launches(), 0u);
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
}

TEST_F(CommandBox, UnknownCodeStaysInTheBox) {
    t.Type(L"x-anything");
    t.Enter();
    EXPECT_EQ(t.Text(), L"x-anything");
    EXPECT_EQ(Launches(), 0u);
}

TEST_F(CommandBox, EnterOnEmptyBoxShrinksTheWebPaneOnly) {
    t.app.MainWidth = qs::MainWidthWeb;
    t.app.frmMain.SetWidth(qs::MainWidthWeb);
    t.Enter();
    EXPECT_EQ(t.app.MainWidth, qs::MainWidthCommand);
    EXPECT_EQ(t.app.frmMain.Width(), 6360);
    EXPECT_EQ(t.app.frmMain.LastWideWidth, 6360);
    EXPECT_EQ(t.app.MainWidthPixels, 424);
    t.app.frmMain.SetWidth(1234);
    t.Enter();
    EXPECT_EQ(t.app.frmMain.Width(), 1234);
}

TEST_F(CommandBox, EscClearsTextAndClosesTheOpenPane) {
    t.app.OpenMenuIndex = 2;
    t.Type(L"p-abc");
    t.app.frmMain.TextMain.TypeKey(27);
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
}

TEST_F(CommandBox, CommandClosesAnOpenPaneBeforeItLaunches) {
    t.app.OpenMenuIndex = 3;
    std::vector<std::int16_t> paneAtLaunch;
    t.sys.onLaunch = [&](const qs::test::Launch&) { paneAtLaunch.push_back(t.app.OpenMenuIndex); };
    t.Type(L"w;example.org");
    EXPECT_EQ(t.app.OpenMenuIndex, 3);
    t.Enter();
    // The pane was already closed when the launch happened.
    EXPECT_EQ(paneAtLaunch, (std::vector<std::int16_t>{-1}));
    EXPECT_EQ(t.LastTarget(), L"http://www.example.org");
}

TEST_F(CommandBox, TextOfSixteenBitLengthOrMoreEndsTheKeySilently) {
    t.app.TextMainBusy = true;
    t.app.frmMain.TextMain.SetText(L"w;" + std::wstring(32766, L'a'));
    t.app.TextMainBusy = false;
    t.Enter();
    EXPECT_EQ(Launches(), 0u);
    EXPECT_EQ(t.Text().size(), 32768u);
    EXPECT_TRUE(qs::test::ShownMessages(t).empty());
}

TEST_F(CommandBox, LongestSixteenBitTextStillRuns) {
    t.app.TextMainBusy = true;
    t.app.frmMain.TextMain.SetText(L"w;" + std::wstring(32765, L'a'));
    t.app.TextMainBusy = false;
    t.Enter();
    EXPECT_EQ(Launches(), 1u);
}

TEST_F(CommandBox, LeadingBlankMakesNoCode) {
    t.Type(L" w;example.org");
    t.Enter();
    EXPECT_EQ(Launches(), 0u);
    EXPECT_EQ(t.Text(), L" w;example.org");
}

TEST_F(CommandBox, DoubleClickEmptiesTheBox) {
    t.Type(L"w;x");
    t.app.frmMain.TextMain.DoubleClick();
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, ListCommandWithoutMatchRunsNothingAndStays) {
    t.AddItem(2, L"myPlayer", L"C:\\p.exe");
    t.Type(L"p-zz");
    t.Enter();
    EXPECT_EQ(t.Text(), L"p-zz");
    EXPECT_EQ(Launches(), 0u);
}

TEST_F(CommandBox, FolderItemOpensThroughTheFileManagerUnquoted) {
    t.AddItem(1, L"Music", L"C:\\My Music");
    t.Type(L"d-mu");
    t.Enter();
    EXPECT_EQ(t.sys.launches.at(0).kind, Launch::Kind::Run);
    EXPECT_EQ(t.LastTarget(), L"C:\\Windows\\explorer.exe C:\\My Music");
}

TEST_F(CommandBox, EmailItemGetsMailtoAtLaunch) {
    t.AddItem(3, L"ann", L"ann@home.example");
    t.Type(L"e-a");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"mailto:ann@home.example");
}

TEST_F(CommandBox, FeedbackAddressOpensAMailWithTheSubject) {
    t.Type(L"e.f");
    EXPECT_EQ(t.app.PendingFeedbackIndex, 0);
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"mailto:feedback@quillstart.example?subject=Quillstart - Found Bug");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, HelpTaskOpensTheOnlineHelpPage) {
    t.Type(L"a.he");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"http://www.quillstart.example/help/quillstart.html");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, HelpFailureStaysSilent) {
    t.sys.shellThrows = true;
    t.Type(L"a.Help");
    t.Enter();
    EXPECT_EQ(t.Text(), L"");
    EXPECT_FALSE(qs::test::BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
}

TEST_F(CommandBox, ScreenSaverTaskEmptiesTheBoxAndStartsTheSaver) {
    t.Type(L"a.StartScreensaver");
    t.Enter();
    EXPECT_EQ(t.sys.screenSaverStarts, 1);
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, ShortcutTaskWritesTheDesktopShortcut) {
    t.app.ProgramFolder = L"C:\\Tools\\";
    t.app.ProgramFile = L"C:\\Tools\\Quillstart.exe";
    t.Type(L"a.CreateAppShortcut");
    t.Enter();
    ASSERT_EQ(t.sys.shortcuts.size(), 1u);
    const auto& link = t.sys.shortcuts[0];
    EXPECT_EQ(link.linkPath, L"C:\\Users\\ann\\Desktop\\Quillstart.lnk");
    EXPECT_EQ(link.targetPath, L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(link.hotkey, L"CTRL+SHIFT+L");
    EXPECT_EQ(link.iconLocation, L"C:\\Tools\\Quillstart.exe, 0");
    EXPECT_EQ(link.workingDirectory, L"C:\\Tools\\");
}

TEST_F(CommandBox, DeletingAMissingShortcutShowsTheBugDialog) {
    t.Type(L"a.DeleteAPPShortcut");
    t.Enter();
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:StartShortcutDelete"));
}

TEST_F(CommandBox, FamilyMemberRunsItsProgramFile) {
    t.app.FamilyMembers = {{L"Quillstart", L"t", 1, L"C:\\Q\\", L"C:\\Q\\Quillstart.exe"},
                           {L"Scribbler", L"t", 1, L"C:\\S\\", L"C:\\S\\Scribbler.exe"}};
    t.app.FamilyMemberCount = 1;
    t.sys.PutFile(L"C:\\S\\Scribbler.exe");
    t.Type(L"r.scr");
    EXPECT_EQ(t.Text(), L"r.Scribbler");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"C:\\S\\Scribbler.exe");
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(CommandBox, HiddenButtonPerformsThePendingClick) {
    // The Launch List pane opens only over a list with items.
    t.AddItem(2, L"Player", L"C:\\Player.exe");
    t.app.PendingClick = 2;
    t.app.frmMain.CommandMainClick.SetValue(true);
    EXPECT_EQ(t.app.OpenMenuIndex, 2);
    EXPECT_EQ(t.app.PendingClick, -1);
    // Showing the QuickLauncher closes the open pane.
    t.app.PendingClick = 5;
    t.app.frmMain.CommandMainClick.SetValue(true);
    EXPECT_TRUE(t.app.QuickOpen);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    t.app.PendingClick = 3;
    t.app.frmMain.CommandMainClick.SetValue(true);
    EXPECT_EQ(t.app.OpenMenuIndex, 3);
    t.app.PendingClick = 7;
    t.app.frmMain.CommandMainClick.SetValue(true);
    EXPECT_EQ(t.app.PendingClick, -1);
    EXPECT_EQ(t.app.OpenMenuIndex, 3);
    EXPECT_TRUE(t.app.QuickOpen);
}

TEST_F(CommandBox, NoPendingClickDoesNothing) {
    t.app.frmMain.CommandMainClick.SetValue(true);
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    EXPECT_FALSE(t.app.QuickOpen);
}

TEST_F(CommandBox, BarShowsItsNameAtLoad) {
    qs::test::FakeSystem sys;
    qs::Application app(sys);
    app.frmMain.Load();
    EXPECT_EQ(app.frmMain.TextMain.Text(), L"Quillstart");
    EXPECT_EQ(app.frmMain.Width(), 6360);
    EXPECT_EQ(app.frmMain.Height(), 348);
}

}  // namespace
