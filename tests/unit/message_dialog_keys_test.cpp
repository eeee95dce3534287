// The message dialog from the keyboard and by its captions: Enter answers
// with the first button where it shows, Esc with the second, and a click on
// a button's caption is a click on the button.
#include <gtest/gtest.h>

#include "shown_messages.h"
#include "startup/active_message.h"

namespace {

using qs::FrmMessage;
using qs::test::ShownMessages;
using qs::test::TestApp;

bool Showing(const FrmMessage& form) { return form.IsLoaded() && form.Visible(); }

std::size_t MailLaunches(TestApp& t) {
    std::size_t count = 0;
    for (const auto& launch : t.sys.launches)
        if (launch.target.rfind(L"mailto:", 0) == 0) ++count;
    return count;
}

void ShowBug(TestApp& t) {
    t.app.MessageToShow = L"Quillstart:Bug:ThemeCreate";
    qs::MessageBug(t.app);
}

void Process(TestApp& t, const std::wstring& key) {
    t.app.MessageToShow = key;
    qs::MessageProcess(t.app);
}

TEST(MessageDialogKeys, EnterInTheMessageAnswersYesOnTheBugDialog) {
    TestApp t;
    bool closedByKey = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.TextMessage.TypeKey(13);
        closedByKey = !Showing(form);
    });
    ShowBug(t);
    EXPECT_TRUE(closedByKey);
    EXPECT_EQ(MailLaunches(t), 1u);
}

TEST(MessageDialogKeys, EscInTheMessageAnswersNoOnTheBugDialog) {
    TestApp t;
    bool closedByKey = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.TextMessage.TypeKey(27);
        closedByKey = !Showing(form);
    });
    ShowBug(t);
    EXPECT_TRUE(closedByKey);
    EXPECT_EQ(MailLaunches(t), 0u);
    EXPECT_EQ(t.app.MessageToShow, L"");
}

TEST(MessageDialogKeys, EscDoesNothingWhereOnlyOKShows) {
    TestApp t;
    bool stillShowing = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.TextMessage.TypeKey(27);
        stillShowing = Showing(form);
    });
    Process(t, L"MessageShortcutCreated");
    EXPECT_TRUE(stillShowing);
}

TEST(MessageDialogKeys, EnterClosesAnOrdinaryMessage) {
    TestApp t;
    bool closedByKey = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.TextMessage.TypeKey(13);
        closedByKey = !Showing(form);
    });
    Process(t, L"MessageShortcutCreated");
    EXPECT_TRUE(closedByKey);
    EXPECT_EQ(t.app.MessageToShow, L"");
}

TEST(MessageDialogKeys, MessageStaysReadOnlyUnderEveryKey) {
    TestApp t;
    std::wstring before;
    std::wstring after;
    t.dialogs.Answer([&](FrmMessage& form) {
        before = form.TextMessage.Text();
        form.TextMessage.TypeText(L"abc");
        after = form.TextMessage.Text();
    });
    Process(t, L"MessageShortcutCreated");
    EXPECT_FALSE(before.empty());
    EXPECT_EQ(after, before);
}

TEST(MessageDialogKeys, EnterInTheMessageDoesNothingWhileOKIsHidden) {
    TestApp t;
    bool stillShowing = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        ASSERT_FALSE(form.ImageOK.Visible());
        form.TextMessage.TypeKey(13);
        stillShowing = Showing(form);
    });
    Process(t, L"MessageGetUserName");
    EXPECT_TRUE(stillShowing);
}

TEST(MessageDialogKeys, EscInANameBoxAnswersCancelAndStoresNoName) {
    TestApp t;
    bool closedByKey = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.TextName(0).TypeText(L"Ann");
        form.TextName(0).TypeKey(27);
        closedByKey = !Showing(form);
    });
    Process(t, L"MessageGetUserName");
    EXPECT_TRUE(closedByKey);
    EXPECT_EQ(t.app.family.UserFirstName, L"");
}

TEST(MessageDialogKeys, ClickOnTheYesCaptionSendsTheReport) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) { form.LabelOK.UserClick(); });
    ShowBug(t);
    EXPECT_EQ(MailLaunches(t), 1u);
}

TEST(MessageDialogKeys, ClickOnTheNoCaptionAnswersNo) {
    TestApp t;
    bool closedByClick = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.LabelCancel.UserClick();
        closedByClick = !Showing(form);
    });
    ShowBug(t);
    EXPECT_TRUE(closedByClick);
    EXPECT_EQ(MailLaunches(t), 0u);
}

TEST(MessageDialogKeys, ClickOnTheCaptionOfAHiddenButtonDoesNothing) {
    TestApp t;
    bool stillShowing = false;
    t.dialogs.Answer([&](FrmMessage& form) {
        form.LabelOK.UserClick();
        stillShowing = Showing(form);
    });
    Process(t, L"MessageGetUserName");
    EXPECT_TRUE(stillShowing);
}

TEST(MessageDialogKeys, ClickOnTheOKCaptionStoresTheTypedName) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(0).TypeText(L"Ann");
        form.LabelOK.UserClick();
    });
    Process(t, L"MessageGetUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"Ann");
    EXPECT_EQ(ShownMessages(t).size(), 1u);
}

}  // namespace
