// The name prompt of the message dialog: the three name boxes, what they
// take, the live preview, and the replies that store the names.
#include <gtest/gtest.h>

#include "shown_messages.h"
#include "startup/active_message.h"
#include "theme/active_theme.h"

namespace {

using qs::FrmMessage;
using qs::test::ShownMessages;
using qs::test::TestApp;
using qs::test::TypeName;
using qs::test::TypeNameAndEnter;

void Ask(TestApp& t, const std::wstring& key) {
    t.app.MessageToShow = key;
    qs::MessageProcess(t.app);
}

std::wstring Preview(const std::wstring& first, const std::wstring& last, const std::wstring& nick) {
    return L"First Name: " + first + L"\r\nLast Name: " + last + L"\r\nNick Name : " + nick;
}

TEST(MessageNamePrompt, NameBoxesAreHiddenByDefault) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_FALSE(form.LabelName(i).Visible());
            EXPECT_FALSE(form.TextName(i).Visible());
        }
        form.ImageOK.Press();
    });
    Ask(t, L"MessageDriveNotReady");
}

TEST(MessageNamePrompt, NameBoxesShowWithTheirCaptionsAndTabOrder) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        const wchar_t* captions[3] = {L"First Name", L"Last Name", L"Nick Name"};
        for (int i = 0; i < 3; ++i) {
            EXPECT_TRUE(form.LabelName(i).Visible());
            EXPECT_EQ(form.LabelName(i).Caption(), captions[i]);
            EXPECT_TRUE(form.TextName(i).Visible());
            EXPECT_EQ(form.TextName(i).TabIndex(), i);
        }
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, GetUserNameHidesOKUntilALetterIsTyped) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        EXPECT_FALSE(form.ImageOK.Visible());
        form.TextName(1).TypeText(L"S");
        EXPECT_TRUE(form.ImageOK.Visible());
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, GetUserNameEnterDoesNothingUntilALetterIsTyped) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(0).TypeKey(13);
        EXPECT_TRUE(form.IsLoaded());
        EXPECT_TRUE(form.Visible());
        form.TextName(0).TypeText(L"Ann");
        form.TextName(0).TypeKey(13);
        EXPECT_FALSE(form.IsLoaded());
    });
    Ask(t, L"MessageGetUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"Ann");
}

TEST(MessageNamePrompt, GetUserNameDeletingAllLettersHidesOKAgain) {
    TestApp t;
    // Theme 3 ("Color 4"): its pictures differ from the fixed start-up ones.
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(2).TypeText(L"Al");
        EXPECT_TRUE(form.ImageOK.Visible());
        form.TextName(2).TypeText(L"\b\b");
        EXPECT_FALSE(form.ImageOK.Visible());
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMZ(3)");
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, NameBoxesTakeLettersAndBackspaceOnly) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(0).TypeText(L"Jo 2-n_Zz\x00E9.");
        EXPECT_EQ(form.TextName(0).Text(), L"JonZz");
        form.TextName(0).TypeText(L"\b");
        EXPECT_EQ(form.TextName(0).Text(), L"JonZ");
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, TypingShowsTheLivePreviewWithEmptyForBlankNames) {
    TestApp t;
    // Theme 3 ("Color 4"): its pictures differ from the fixed start-up ones.
    std::int16_t theme = 3;
    qs::ThemeCreate(t.app, theme);
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(1).TypeText(L"Smith");
        EXPECT_EQ(form.TextMessage.Text(), Preview(L"Empty", L"Smith", L"Empty"));
        form.TextName(0).TypeText(L"Ann");
        form.TextName(2).TypeText(L"Annie");
        EXPECT_EQ(form.TextMessage.Text(), Preview(L"Ann", L"Smith", L"Annie"));
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMU(17)");
        EXPECT_EQ(qs::ui::PictureName(form.ImageCancel.Picture()), L"ImageMU(17)");
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, PreviewAtStartUpUsesTheFixedImages) {
    TestApp t;
    t.app.place.StartingUp = true;
    t.dialogs.Answer([](FrmMessage& form) {
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMZ(0)");
        form.TextName(0).TypeText(L"A");
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMU(2)");
        form.TextName(0).TypeText(L"\b");
        EXPECT_EQ(qs::ui::PictureName(form.ImageOK.Picture()), L"ImageMZ(0)");
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageGetUserName");
}

TEST(MessageNamePrompt, GetUserNameOKStoresTheThreeNames) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        form.TextName(0).TypeText(L"Ann");
        form.TextName(1).TypeText(L"Smith");
        form.TextName(2).TypeText(L"Annie");
        form.ImageOK.Press();
    });
    Ask(t, L"MessageGetUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"Ann");
    EXPECT_EQ(t.app.family.UserLastName, L"Smith");
    EXPECT_EQ(t.app.family.UserNickName, L"Annie");
}

TEST(MessageNamePrompt, GetUserNameCancelStoresNothing) {
    TestApp t;
    t.dialogs.Answer(TypeName(0, L"Ann"));
    Ask(t, L"MessageGetUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"");
}

TEST(MessageNamePrompt, ChangeUserNameWithAKnownFirstNameShowsThePreviewAtOnce) {
    TestApp t;
    t.app.family.UserFirstName = L"Ann";
    t.app.family.UserNickName = L"Annie";
    t.dialogs.Answer([](FrmMessage& form) {
        EXPECT_EQ(form.TextMessage.Text(), Preview(L"Ann", L"Empty", L"Annie"));
        EXPECT_EQ(form.TextName(0).Text(), L"Ann");
        EXPECT_EQ(form.TextName(2).Text(), L"Annie");
        EXPECT_EQ(form.TextName(0).SelStart(), 3);
        form.ImageCancel.Press();
    });
    Ask(t, L"MessageChangeUserName");
}

TEST(MessageNamePrompt, ChangeUserNameWithAllNamesEmptyKeepsThePromptAndOK) {
    TestApp t;
    t.dialogs.Answer([](FrmMessage& form) {
        EXPECT_EQ(form.TextMessage.Text(), L"Please type your name above. Use only alphabets please.");
        EXPECT_TRUE(form.ImageOK.Visible());
        form.ImageOK.Press();
    });
    Ask(t, L"MessageChangeUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"");
    EXPECT_EQ(t.app.family.UserLastName, L"");
    EXPECT_EQ(t.app.family.UserNickName, L"");
}

TEST(MessageNamePrompt, ChangeUserNameOKReplacesTheNames) {
    TestApp t;
    t.app.family.UserFirstName = L"Ann";
    t.app.family.UserLastName = L"Smith";
    t.dialogs.Answer([](FrmMessage& form) {
        // The caret stands at the start of every box but the first.
        form.TextName(1).SetSelStart(5);
        form.TextName(1).TypeText(L"\b\b\b\b\bJones");
        form.TextName(2).TypeText(L"Nan");
        form.ImageOK.Press();
    });
    Ask(t, L"MessageChangeUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"Ann");
    EXPECT_EQ(t.app.family.UserLastName, L"Jones");
    EXPECT_EQ(t.app.family.UserNickName, L"Nan");
}

TEST(MessageNamePrompt, ChangeUserNameCancelKeepsTheNames) {
    TestApp t;
    t.app.family.UserFirstName = L"Ann";
    t.dialogs.Answer(TypeName(0, L"Bob"));
    Ask(t, L"MessageChangeUserName");
    EXPECT_EQ(t.app.family.UserFirstName, L"Ann");
}

TEST(MessageNamePrompt, EnterInANameBoxClicksOKWhenItShows) {
    TestApp t;
    t.dialogs.Answer(TypeNameAndEnter(2, L"Annie"));
    Ask(t, L"MessageChangeUserName");
    EXPECT_EQ(t.app.family.UserNickName, L"Annie");
}

TEST(MessageNamePrompt, TheNextMessageFindsTheNameBoxesHiddenAndEmpty) {
    TestApp t;
    t.dialogs.Answer(TypeName(0, L"Ann"));
    Ask(t, L"MessageGetUserName");
    t.dialogs.Answer([](FrmMessage& form) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_FALSE(form.TextName(i).Visible());
            EXPECT_EQ(form.TextName(i).Text(), L"");
        }
        EXPECT_EQ(form.TextMessage.Text(), L"The Drive you are trying to select is not ready.");
        form.ImageOK.Press();
    });
    Ask(t, L"MessageDriveNotReady");
    EXPECT_EQ(ShownMessages(t).size(), 2u);
}

TEST(MessageNamePrompt, ChangeUserNameTaskAsksForTheNewName) {
    TestApp t;
    t.Type(L"a.ChangeUserName");
    t.Enter();
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageChangeUserName");
    EXPECT_EQ(ShownMessages(t)[0].heading, L"New Name Please");
}

}  // namespace
