// The routines that start something and their return conventions.
#include <gtest/gtest.h>

#include "command/launchers.h"
#include "shown_messages.h"
#include "test_app.h"

namespace {

using qs::test::TestApp;

struct Launchers : ::testing::Test {
    TestApp t;
    void SetUp() override { t.Type(L"w;half"); }
};

TEST_F(Launchers, MissingTargetFailsByResultAndStillClearsTheBox) {
    EXPECT_EQ(qs::ActionProgramStartA(t.app, L"C:\\missing.exe"), L"Quillstart:Bug:ActionProgramStartA");
    EXPECT_EQ(t.Text(), L"");
    EXPECT_EQ(t.app.MessageToShow, L"");
}

TEST_F(Launchers, ExistingTargetSucceeds) {
    t.sys.PutFile(L"C:\\a.txt");
    EXPECT_EQ(qs::ActionProgramStartA(t.app, L"C:\\a.txt"), L"");
    EXPECT_EQ(t.LastTarget(), L"C:\\a.txt");
}

TEST_F(Launchers, StartFailureThatThrowsSetsTagAndLeavesTheBox) {
    t.sys.shellThrows = true;
    EXPECT_EQ(qs::ActionProgramStartA(t.app, L"C:\\a.txt"), L"Quillstart:Bug:ActionProgramStartA");
    EXPECT_EQ(t.app.MessageToShow, L"Quillstart:Bug:ActionProgramStartA");
    EXPECT_EQ(t.Text(), L"w;half");
}

TEST_F(Launchers, ExplorerThatCannotStartKeepsTheCommand) {
    std::wstring line = L"C:\\NoWindows\\explorer.exe C:\\x";
    EXPECT_EQ(qs::ActionProgramExplorer(t.app, line), L"Quillstart:Bug:ActionProgramExplorer");
    EXPECT_EQ(t.app.MessageToShow, L"Quillstart:Bug:ActionProgramExplorer");
    EXPECT_EQ(t.Text(), L"w;half");
}

TEST_F(Launchers, UnknownAppletStartsNothingReturnsEmptyAndEmptiesTheBox) {
    std::wstring name = L"nothing";
    EXPECT_EQ(qs::ActionProgramPanel(t.app, name), L"");
    EXPECT_TRUE(t.sys.launches.empty());
    EXPECT_EQ(t.Text(), L"");
}

TEST_F(Launchers, AppletNameIsLowerCasedInPlace) {
    std::wstring name = L"DateTime";
    EXPECT_EQ(qs::ActionProgramPanel(t.app, name), L"");
    EXPECT_EQ(name, L"datetime");
    EXPECT_EQ(t.LastTarget(), L"rundll32.exe shell32.dll,Control_RunDLL timedate.cpl");
}

TEST_F(Launchers, AppletThatCannotStartKeepsTheCommand) {
    t.sys.shellThrows = true;
    std::wstring name = L"mouse";
    EXPECT_EQ(qs::ActionProgramPanel(t.app, name), L"Quillstart:Bug:ActionProgramPanel");
    EXPECT_EQ(t.Text(), L"w;half");
}

TEST_F(Launchers, ContactKeepsAnExistingSchemeInAnyCase) {
    std::wstring subject;
    std::wstring body;
    EXPECT_EQ(qs::ActionContactMorvane(t.app, L"MAILTO:a", subject, body), L"");
    EXPECT_EQ(t.LastTarget(), L"MAILTO:a");
    EXPECT_EQ(t.Text(), L"w;half");
}

TEST_F(Launchers, ContactJoinsSubjectAndBodyUnescaped) {
    std::wstring subject;
    std::wstring body = L"x";
    qs::ActionContactMorvane(t.app, L"a", subject, body);
    EXPECT_EQ(t.LastTarget(), L"mailto:a?body=x");
    subject = L"s";
    qs::ActionContactMorvane(t.app, L"a", subject, body);
    EXPECT_EQ(t.LastTarget(), L"mailto:a?subject=s&body=x");
    subject = L"a b";
    body = L"line\r\nnext";
    qs::ActionContactMorvane(t.app, L"a", subject, body);
    EXPECT_EQ(t.LastTarget(), L"mailto:a?subject=a b&body=line\r\nnext");
}

TEST_F(Launchers, ContactStartFailureHasTheLongTag) {
    struct Refusing : qs::test::FakeSystem {
        std::int32_t ShellOpen(const std::wstring&) override { return 31; }
    };
    Refusing sys;
    qs::Application app(sys);
    std::wstring subject;
    std::wstring body;
    EXPECT_EQ(qs::ActionContactMorvane(app, L"a", subject, body), L"ProgramStartError:Quillstart:Bug:ActionContactMorvane");
}

TEST_F(Launchers, ContactRunTimeFailureShowsTheBugDialogAndReturnsEmpty) {
    t.sys.shellThrows = true;
    std::wstring subject;
    std::wstring body;
    EXPECT_EQ(qs::ActionContactMorvane(t.app, L"a", subject, body), L"");
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionContactMorvane"));
}

TEST_F(Launchers, SpecialFolderNameIsLowerCasedFirst) {
    std::wstring upper = L"STARTMENU";
    std::wstring mixed = L"StartMenu";
    EXPECT_EQ(qs::ActionGetSpecialFolder(t.app, upper), qs::ActionGetSpecialFolder(t.app, mixed));
    EXPECT_EQ(upper, L"startmenu");
    EXPECT_EQ(qs::ActionGetSpecialFolder(t.app, mixed), L"C:\\Users\\ann\\Start Menu");
}

TEST_F(Launchers, UnknownSpecialFolderGivesDocuments) {
    std::wstring name = L"downloads";
    EXPECT_EQ(qs::ActionGetSpecialFolder(t.app, name), L"C:\\Users\\ann\\Documents");
}

TEST_F(Launchers, SpecialFolderTheSystemDoesNotKnowGivesDocuments) {
    t.sys.specialFolders.erase(L"Favorites");
    std::wstring name = L"favorites";
    EXPECT_EQ(qs::ActionGetSpecialFolder(t.app, name), L"C:\\Users\\ann\\Documents");
}

TEST_F(Launchers, SpecialFolderFailureShowsTheBugDialogAndGivesEmpty) {
    t.sys.shellThrows = true;
    std::wstring name = L"desktop";
    EXPECT_EQ(qs::ActionGetSpecialFolder(t.app, name), L"");
    EXPECT_TRUE(qs::test::BugShown(t, L"Quillstart:Bug:ActionGetSpecialFolder"));
}

}  // namespace
