// The dialog that every message goes through: heading, window caption,
// button sets, fatal messages, unknown keys, the bar's topmost timer.
#include <gtest/gtest.h>

#include <stdexcept>

#include "data/control_data.h"
#include "shown_messages.h"
#include "startup/active_message.h"
#include "theme/active_theme.h"

namespace {

using qs::MessageEntry;
using qs::test::ProgramEnded;
using qs::test::ShownMessages;
using qs::test::TestApp;

void Process(TestApp& t, const std::wstring& key) {
    t.app.MessageToShow = key;
    qs::MessageProcess(t.app);
}

TEST(MessageDialog, UnknownKeyInMessageProcessShowsNothingAndKeepsTheKey) {
    TestApp t;
    Process(t, L"MessageNoSuchThing");
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(t.app.MessageToShow, L"MessageNoSuchThing");
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
}

TEST(MessageDialog, UnknownKeyInMessageEndShowsNothingKeepsTheKeyAndGoesOn) {
    TestApp t;
    t.app.MessageToShow = L"MessageProgInSystem";
    EXPECT_NO_THROW(qs::MessageEnd(t.app));
    EXPECT_TRUE(ShownMessages(t).empty());
    EXPECT_EQ(t.app.MessageToShow, L"MessageProgInSystem");
    EXPECT_FALSE(t.app.message.MessageWillEnd);
}

TEST(MessageDialog, KeysAreMatchedExactlyWithTheirOwnSpelling) {
    TestApp t;
    Process(t, L"MessageFirstStart");
    Process(t, L"messagefisrtstart");
    EXPECT_TRUE(ShownMessages(t).empty());
    Process(t, L"MessageFisrtStart");
    EXPECT_EQ(ShownMessages(t).size(), 1u);
}

TEST(MessageDialog, HeadingIsTheNickName) {
    TestApp t;
    t.app.family.UserNickName = L"Annie";
    Process(t, L"MessageDriveNotReady");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].heading, L"Annie");
}

TEST(MessageDialog, HeadingIsTheWindowsUserNameWhenTheNickNameIsEmpty) {
    TestApp t;
    t.app.family.UserFirstName = L"Ann";
    Process(t, L"MessageDriveNotReady");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].heading, L"ann");
}

TEST(MessageDialog, NamePromptsHaveTheirOwnHeadings) {
    TestApp t;
    t.app.family.UserNickName = L"Annie";
    Process(t, L"MessageGetUserName");
    Process(t, L"MessageChangeUserName");
    ASSERT_EQ(ShownMessages(t).size(), 2u);
    EXPECT_EQ(ShownMessages(t)[0].heading, L"Your Name Please");
    EXPECT_EQ(ShownMessages(t)[1].heading, L"New Name Please");
}

TEST(MessageDialog, OrdinaryMessageIsANewMessageWithTheOKSet) {
    TestApp t;
    Process(t, L"MessageShortcutCreated");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const auto& m = ShownMessages(t)[0];
    EXPECT_EQ(m.formCaption, L"New Message");
    EXPECT_TRUE(m.okVisible);
    EXPECT_EQ(m.okLabel, L"OK");
    EXPECT_FALSE(m.cancelVisible);
    EXPECT_EQ(m.cancelLabel, L"Cancel");
    EXPECT_FALSE(m.nameBoxesVisible);
}

TEST(MessageDialog, BugDialogHasTheYesNoSet) {
    TestApp t;
    t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
    qs::MessageBug(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const auto& m = ShownMessages(t)[0];
    EXPECT_EQ(m.entry, MessageEntry::Bug);
    EXPECT_TRUE(m.okVisible);
    EXPECT_EQ(m.okLabel, L"Yes");
    EXPECT_TRUE(m.cancelVisible);
    EXPECT_EQ(m.cancelLabel, L"No");
}

TEST(MessageDialog, ChangeUserNameHasTheOKCancelSet) {
    TestApp t;
    Process(t, L"MessageChangeUserName");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const auto& m = ShownMessages(t)[0];
    EXPECT_TRUE(m.okVisible);
    EXPECT_EQ(m.okLabel, L"OK");
    EXPECT_TRUE(m.cancelVisible);
    EXPECT_EQ(m.cancelLabel, L"Cancel");
    EXPECT_TRUE(m.nameBoxesVisible);
}

TEST(MessageDialog, GetUserNameHasTheCancelSetWithOKHidden) {
    TestApp t;
    Process(t, L"MessageGetUserName");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const auto& m = ShownMessages(t)[0];
    EXPECT_FALSE(m.okVisible);
    EXPECT_EQ(m.okLabel, L"OK");
    EXPECT_TRUE(m.cancelVisible);
    EXPECT_EQ(m.cancelLabel, L"Cancel");
    EXPECT_TRUE(m.nameBoxesVisible);
}

TEST(MessageDialog, FatalMessageEndsTheProgramWhenOKIsPressed) {
    TestApp t;
    t.app.MessageToShow = L"MessageMediaCDRom";
    EXPECT_THROW(qs::MessageEnd(t.app), ProgramEnded);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].formCaption, L"Sorry For This Bad News");
    EXPECT_EQ(ShownMessages(t)[0].entry, MessageEntry::End);
    EXPECT_TRUE(t.app.message.MessageWillEnd);
}

TEST(MessageDialog, FatalMessageAlreadySayingItExitsSaysItTwice) {
    TestApp t;
    t.app.MessageToShow = L"MessageSmallScreen";
    EXPECT_THROW(qs::MessageEnd(t.app), ProgramEnded);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    const std::wstring& body = ShownMessages(t)[0].body;
    const std::wstring once = L"Quillstart will exit now.";
    const auto first = body.find(once);
    ASSERT_NE(first, std::wstring::npos);
    EXPECT_NE(body.find(once, first + 1), std::wstring::npos);
    EXPECT_EQ(body.substr(body.size() - once.size() - 4), L"\r\n\r\n" + once);
}

TEST(MessageDialog, FatalMessageEndsTheProgramWithNothingSaved) {
    TestApp t;
    t.app.place.FileSet = L"C:\\Morvane\\Set.Morvane";
    t.sys.PutFile(L"C:\\Morvane\\Keep.txt", "k");
    t.app.settings.MainLeft = 1234;
    t.app.MessageToShow = L"MessageMediaUnknown";
    EXPECT_THROW(qs::MessageEnd(t.app), ProgramEnded);
    EXPECT_FALSE(t.sys.FileExists(t.app.place.FileSet));
}

TEST(MessageDialog, FatalMessageEndsTheProgramWhicheverWayItCloses) {
    TestApp t;
    t.dialogs.Answer([](qs::FrmMessage& form) { form.Unload(); });
    t.app.MessageToShow = L"MessageMediaUnknown";
    EXPECT_THROW(qs::MessageEnd(t.app), ProgramEnded);
}

TEST(MessageDialog, ReplyToAFatalMessageEndsAtOnceEvenByCancel) {
    TestApp t;
    t.app.message.MessageWillEnd = true;
    EXPECT_THROW(qs::MessageReplyCancel(t.app), ProgramEnded);
    EXPECT_THROW(qs::MessageReplyOK(t.app), ProgramEnded);
}

TEST(MessageDialog, DialogTakesItsSizeAtLoad) {
    TestApp t;
    t.dialogs.Answer([](qs::FrmMessage& form) {
        EXPECT_EQ(form.Width(), 5400);
        EXPECT_EQ(form.Height(), 8652);
        EXPECT_TRUE(form.IsModal());
        form.ImageOK.Press();
    });
    Process(t, L"MessageDriveNotReady");
    EXPECT_EQ(ShownMessages(t).size(), 1u);
}

TEST(MessageDialog, ReplyUnloadsTheDialogAndClearsTheMessage) {
    TestApp t;
    t.app.message.DuplicateItemName = L"Player";
    Process(t, L"MessagePathAlreadyListed");
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
    EXPECT_EQ(t.app.MessageToShow, L"");
    EXPECT_EQ(t.app.message.MessageCaption, L"");
    EXPECT_EQ(t.app.message.MessageBody, L"");
    EXPECT_EQ(t.app.message.MessageButtons, L"");
    EXPECT_EQ(t.app.message.MessageInput, L"");
    EXPECT_EQ(t.app.message.DuplicateItemName, L"");
}

TEST(MessageDialog, DoNotShowBoxNeverShows) {
    TestApp t;
    t.dialogs.Answer([](qs::FrmMessage& form) {
        EXPECT_FALSE(form.CheckDoNotShow.Visible());
        EXPECT_EQ(form.CheckDoNotShow.Caption(), L"Do not show this message again.");
        form.ImageOK.Press();
    });
    Process(t, L"MessageDriveNotReady");
    EXPECT_FALSE(t.app.message.DoNotShowVisible);
}

TEST(MessageDialog, BodyBoxSwallowsEveryKey) {
    TestApp t;
    t.dialogs.Answer([](qs::FrmMessage& form) {
        const std::wstring before = form.TextMessage.Text();
        form.TextMessage.TypeText(L"abc\b");
        EXPECT_EQ(form.TextMessage.Text(), before);
        form.ImageOK.Press();
    });
    Process(t, L"MessageDriveNotReady");
}

TEST(MessageDialog, DialogSwitchesTimerOnTopOffAndLowersTheBar) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    t.app.frmMain.SetTopMost(true);
    t.dialogs.Answer([&](qs::FrmMessage& form) {
        EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
        EXPECT_FALSE(t.app.frmMain.TopMost());
        form.ImageOK.Press();
    });
    Process(t, L"MessageDriveNotReady");
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(MessageDialog, ClosingAMessageWithoutTheOptionLeavesTimerOnTopOff) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 0;
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    Process(t, L"MessageDriveNotReady");
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(MessageDialog, ClosingAMessageWithAPaneOpenLeavesTimerOnTopOff) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 1;
    t.app.OpenMenuIndex = 2;
    Process(t, L"MessageDriveNotReady");
    EXPECT_FALSE(t.app.frmMain.TimerOnTop.Enabled());
}

TEST(MessageDialog, BeforeTheMainWindowTheBarIsNotTouched) {
    TestApp t;
    t.app.settings.OptionAlwaysOnTop = 0;
    t.app.frmMain.TimerOnTop.SetEnabled(true);
    t.app.frmMain.SetTopMost(true);
    t.app.message.MessageBeforeMainWindow = true;
    t.dialogs.Answer([&](qs::FrmMessage& form) {
        EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
        EXPECT_TRUE(t.app.frmMain.TopMost());
        form.ImageCancel.Press();
    });
    Process(t, L"MessageGetUserName");
    EXPECT_TRUE(t.app.frmMain.TimerOnTop.Enabled());
    EXPECT_TRUE(t.app.frmMain.TopMost());
}

TEST(MessageDialog, BugDialogAtStartUpShowsTheFixedImagesOfFrmBut) {
    TestApp t;
    t.app.place.StartingUp = true;
    t.app.MessageToShow = L"Quillstart:Bug:AtStartSysPath";
    qs::MessageBug(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].okPicture, L"ImageMU(2)");
    EXPECT_EQ(ShownMessages(t)[0].cancelPicture, L"ImageMU(2)");
}

TEST(MessageDialog, HiddenButtonAtStartUpTakesTheBlankImage) {
    TestApp t;
    t.app.place.StartingUp = true;
    Process(t, L"MessageDriveNotReady");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].okPicture, L"ImageMU(2)");
    EXPECT_EQ(ShownMessages(t)[0].cancelPicture, L"ImageMZ(0)");
}

TEST(MessageDialog, BugDialogAfterStartUpShowsTheSetUpImagesOfTheTheme) {
    TestApp t;
    // Theme 3 ("Color 4"): its pictures differ from the fixed start-up ones.
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    t.app.MessageToShow = L"Quillstart:Bug:ActionProgramStartA";
    qs::MessageBug(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].okPicture, L"ImageMU(17)");
    EXPECT_EQ(ShownMessages(t)[0].cancelPicture, L"ImageMU(17)");
}

TEST(MessageDialog, HiddenButtonAfterStartUpTakesTheBlankImageOfTheTheme) {
    TestApp t;
    // Theme 3 ("Color 4"): its pictures differ from the fixed start-up ones.
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    Process(t, L"MessageDriveNotReady");
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].okPicture, L"ImageMU(17)");
    EXPECT_EQ(ShownMessages(t)[0].cancelPicture, L"ImageMZ(3)");
}

TEST(MessageDialog, ButtonsTakeThePressedPictureOnMouseDownAndTheSetOnMouseUp) {
    TestApp t;
    // Theme 3 ("Color 4"): its pictures differ from the fixed start-up ones.
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    t.dialogs.Answer([](qs::FrmMessage& form) {
        form.ImageOK.UserMouseDown(qs::ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMD(7)");
        form.ImageOK.UserMouseUp(qs::ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMU(17)");
        form.ImageOK.UserClick();
    });
    Process(t, L"MessageDriveNotReady");
}

TEST(MessageDialog, ButtonsAtStartUpTakeTheFixedPressedPictureBothWays) {
    TestApp t;
    t.app.place.StartingUp = true;
    t.dialogs.Answer([](qs::FrmMessage& form) {
        form.ImageCancel.UserMouseDown(qs::ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(qs::ui::PictureName(form.ImageCancel.Picture()), L"ImageMD(1)");
        form.ImageCancel.UserMouseUp(qs::ui::LeftButton, 0, 0, 0);
        EXPECT_EQ(qs::ui::PictureName(form.ImageCancel.Picture()), L"ImageMD(1)");
        form.ImageCancel.UserClick();
    });
    t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
    qs::MessageBug(t.app);
}

TEST(MessageDialog, FailureWhileShowingReportsTheDialogsOwnTag) {
    TestApp t;
    t.dialogs.Answer([](qs::FrmMessage&) { throw std::runtime_error("window failed"); });
    Process(t, L"MessageDriveNotReady");
    ASSERT_EQ(ShownMessages(t).size(), 2u);
    EXPECT_EQ(ShownMessages(t)[1].entry, MessageEntry::Bug);
    EXPECT_EQ(ShownMessages(t)[1].key, L"Quillstart:Bug:MessageAAAct");
    EXPECT_FALSE(t.app.frmMessage.IsLoaded());
}

TEST(MessageDialog, DialogFailingAlsoForItsOwnReportStopsReporting) {
    TestApp t;
    const auto fail = [](qs::FrmMessage&) { throw std::runtime_error("window failed"); };
    t.dialogs.Answer(fail);
    t.dialogs.Answer(fail);
    Process(t, L"MessageDriveNotReady");
    EXPECT_EQ(ShownMessages(t).size(), 2u);
}

TEST(MessageDialog, ShortcutTasksShowTheirMessages) {
    TestApp t;
    t.Type(L"a.CreateAppShortcut");
    t.Enter();
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageShortcutCreated");
}

}  // namespace
