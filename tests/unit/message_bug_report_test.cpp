// The report-this-bug dialog: its text, and what "Yes" and "No" do.
#include <gtest/gtest.h>

#include "common/maker.h"
#include "shown_messages.h"
#include "startup/active_message.h"

namespace {

using qs::MessageEntry;
using qs::test::BugShown;
using qs::test::No;
using qs::test::ShownMessages;
using qs::test::TestApp;
using qs::test::Yes;

const std::wstring ReportAddress = std::wstring(L"mailto:") + qs::maker::MailAddress +
                                   L"?subject=Quillstart - Found Bug&body=Quillstart:Bug:ActionProgramStartA";

void TypeMissingProgram(TestApp& t) {
    t.Type(L"p=C:\\nope.exe");
    t.Enter();
}

std::size_t MailLaunches(TestApp& t) {
    std::size_t count = 0;
    for (const auto& launch : t.sys.launches)
        if (launch.target.rfind(L"mailto:", 0) == 0) ++count;
    return count;
}

TEST(MessageBugReport, MissingProgramShowsTheBugDialogWithTheTag) {
    TestApp t;
    t.app.family.UserNickName = L"Annie";
    TypeMissingProgram(t);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const auto& m = ShownMessages(t)[0];
    EXPECT_TRUE(BugShown(t, L"Quillstart:Bug:ActionProgramStartA"));
    EXPECT_EQ(m.entry, MessageEntry::Bug);
    EXPECT_EQ(m.heading, L"Annie");
    EXPECT_EQ(m.formCaption, L"New Message");
    EXPECT_NE(m.body.find(L"Quillstart:Bug:ActionProgramStartA"), std::wstring::npos);
    EXPECT_EQ(m.okLabel, L"Yes");
    EXPECT_EQ(m.cancelLabel, L"No");
}

TEST(MessageBugReport, BodyIsComposedAroundTheTag) {
    TestApp t;
    t.app.MessageToShow = L"Quillstart:Bug:ControlDataGet";
    qs::MessageBug(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].body,
              L"There was some error.\r\nIt will be helpful if you please report it.\r\n"
              L"To report, just include the following message in your email :\r\n\r\n"
              L"Quillstart:Bug:ControlDataGet\r\n\r\nDo you want to report this bug now?");
}

TEST(MessageBugReport, HeadingIsTheWindowsUserNameWithoutANickName) {
    TestApp t;
    TypeMissingProgram(t);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].heading, L"ann");
}

TEST(MessageBugReport, YesOpensANewMailToTheMakerWithTheTagAsBody) {
    TestApp t;
    t.dialogs.Answer(Yes());
    TypeMissingProgram(t);
    ASSERT_FALSE(t.sys.launches.empty());
    EXPECT_EQ(t.sys.launches.back().kind, qs::test::Launch::Kind::Open);
    EXPECT_EQ(t.sys.launches.back().target, ReportAddress);
    EXPECT_EQ(t.app.MessageToShow, L"");
    EXPECT_FALSE(t.app.message.MessageIsBug);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
}

TEST(MessageBugReport, NoClosesTheDialogAndSendsNothing) {
    TestApp t;
    t.dialogs.Answer(No());
    TypeMissingProgram(t);
    EXPECT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(MailLaunches(t), 0u);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(t.app.MessageToShow, L"");
    EXPECT_EQ(t.app.message.MessageBody, L"");
    EXPECT_FALSE(t.app.message.MessageIsBug);
}

TEST(MessageBugReport, YesNeitherClearsTheMessageStringsNorRestoresTimerOnTop) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    t.dialogs.Answer(Yes());
    TypeMissingProgram(t);
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
    EXPECT_NE(t.app.message.MessageBody, L"");
    EXPECT_EQ(t.app.message.MessageButtons, L"YesNo");
}

TEST(MessageBugReport, NoRestoresTimerOnTopByTheOption) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    t.dialogs.Answer(No());
    TypeMissingProgram(t);
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(MessageBugReport, AReportThatCannotBeSentShowsTheBugDialogOfTheMailRoutine) {
    TestApp t;
    t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
    t.dialogs.Answer([&](qs::FrmMessage& form) {
        t.sys.shellThrows = true;
        form.ImageOK.Press();
    });
    qs::MessageBug(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 2u);
    EXPECT_EQ(ShownMessages(t)[1].key, L"Quillstart:Bug:ActionContactMorvane");
    EXPECT_EQ(ShownMessages(t)[1].entry, MessageEntry::Bug);
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
}

TEST(MessageBugReport, AReportTheMailProgramRefusesShowsNothing) {
    TestApp t;
    t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
    t.dialogs.Answer([&](qs::FrmMessage& form) {
        t.sys.shellOpenResult = 31;
        form.ImageOK.Press();
    });
    qs::MessageBug(t.app);
    EXPECT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(MailLaunches(t), 1u);
    EXPECT_EQ(t.app.MessageToShow, L"ProgramStartError:Quillstart:Bug:ActionContactMorvane");
}

TEST(MessageBugReport, OnlyTheYesOfABugDialogSendsAReport) {
    TestApp t;
    t.dialogs.Answer(Yes());
    t.app.MessageToShow = L"MessageDriveNotReady";
    qs::MessageProcess(t.app);
    EXPECT_EQ(MailLaunches(t), 0u);
}

}  // namespace
