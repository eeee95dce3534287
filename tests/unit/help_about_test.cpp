// What Help's Load writes into its labels: the greeting by the user's
// chosen name or the system's, the program's name and version, the maker.
#include <gtest/gtest.h>

#include "help_app.h"

namespace {

using qs::test::HelpApp;

TEST(HelpAbout, WithAnEmptyNickNameTheGreetingUsesTheSystemUsersName) {
    HelpApp t;
    t.app.family.UserNickName = L"";
    t.app.place.UserNameEnv = L"ann";
    qs::FrmHelp& h = t.OpenHelp();
    EXPECT_EQ(h.LabelHelpWelcome.Caption(), L"Welcome ann");
    EXPECT_EQ(h.LabelHelpHello.Caption(), L"ann");
    EXPECT_EQ(h.LabelHelpNickName.Caption(), L"ann");
}

TEST(HelpAbout, ANickNameIsUsedBeforeTheSystemUsersName) {
    HelpApp t;
    t.app.family.UserNickName = L"Bee";
    t.app.place.UserNameEnv = L"ann";
    qs::FrmHelp& h = t.OpenHelp();
    EXPECT_EQ(h.LabelHelpWelcome.Caption(), L"Welcome Bee");
    EXPECT_EQ(h.LabelHelpHello.Caption(), L"Bee");
    EXPECT_EQ(h.LabelHelpNickName.Caption(), L"Bee");
}

TEST(HelpAbout, ANameChangedWhileClosedShowsAtTheNextOpening) {
    HelpApp t;
    t.app.family.UserNickName = L"Bee";
    t.OpenHelp();
    t.ClickHelpButton();
    t.app.family.UserNickName = L"Cy";
    EXPECT_EQ(t.OpenHelp().LabelHelpWelcome.Caption(), L"Welcome Cy");
}

TEST(HelpAbout, TheAboutPanelNamesTheProgramItsVersionAndItsMaker) {
    HelpApp t;
    qs::FrmHelp& h = t.OpenHelp();
    EXPECT_EQ(h.LabelHelpAppNameA.Caption(), L"Quillstart");
    EXPECT_EQ(h.LabelHelpAppNameB.Caption(), L"My illstart !!");
    EXPECT_EQ(h.LabelHelpAppVersion.Caption(), L"Fresh! New! 4.2019");
    EXPECT_EQ(h.LabelHelpExtraA.Caption(), L"Don't believe Me? Ask Morvane!");
    EXPECT_EQ(h.LabelHelpExtraB.Caption(), L"Ask feedback@quillstart.example - I don't care.");
    EXPECT_EQ(h.LabelHelpExtraC.Caption(), L"Can't Find Morvane's Home?   It's Here:");
    EXPECT_EQ(h.LabelHelpExtraD.Caption(), L"quillstart.example");
}

TEST(HelpAbout, TheFixedCaptionsOfBothPanelsAndTheTopicList) {
    HelpApp t;
    qs::FrmHelp& h = t.OpenHelp();
    const wchar_t* const captions[] = {
        L"Topics:",
        L"Add To List",
        L"Find Topics On Your Left",
        L"Please Select A Topic",
        L"Much better is to view online Help instead. Since there are all picture to compare with, it will make "
        L"much easier to understand descriptions. To view online Help please click the Command bellow:",
        L"View online help anytime by typing above Command in the \"Main Text Box\" and pressing \"Enter\" key on "
        L"your keyboard.",
        L"This Is",
        L"And This Is",
        L"How About That !!",
    };
    ASSERT_EQ(h.LabelNoUse.Count(), 9);
    for (std::int16_t i = 0; i < 9; ++i) EXPECT_EQ(h.LabelNoUse(i).Caption(), captions[i]) << i;
    EXPECT_EQ(h.LabelHelpOnline.Caption(), L"a.Help");
}

TEST(HelpAbout, TheTopicsUnderAddToListStandInsideItsCaption) {
    HelpApp t;
    qs::FrmHelp& h = t.OpenHelp();
    const qs::ui::Label& caption = h.LabelNoUse(1);
    for (std::int16_t i = 0; i < 13; ++i) {
        const bool under = h.LabelHelpTopic(i).Top() > caption.Top() && h.LabelHelpTopic(i).Top() < h.LineTopicB.Top();
        EXPECT_EQ(under, i >= 3 && i <= 5) << i;
        EXPECT_EQ(h.LabelHelpTopic(i).Left() > caption.Left(), i >= 3 && i <= 5) << i;
    }
}

TEST(HelpAbout, ThePanelsStandWhereLoadPutsThem) {
    HelpApp t;
    qs::FrmHelp& h = t.OpenHelp();
    EXPECT_EQ(h.TextHelp.Top(), 480);
    EXPECT_EQ(h.TextHelp.Left(), 1560);
    EXPECT_EQ(h.PictureHelpMe.Top(), 1440);
    EXPECT_EQ(h.PictureHelpMe.Left(), 1560);
    EXPECT_EQ(h.FrameHelpAbout.Top(), 1440);
    EXPECT_EQ(h.FrameHelpAbout.Left(), 1560);
    EXPECT_EQ(h.PictureTopic.Left(), 240);
    EXPECT_EQ(h.PictureTopic.Top(), 840);
    // Everything lies inside the window.
    for (const qs::ui::Control* c : h.Controls()) {
        EXPECT_LE(c->Left() + c->Width(), h.Width()) << std::string(c->Name().begin(), c->Name().end());
        EXPECT_LE(c->Top() + c->Height(), h.Height()) << std::string(c->Name().begin(), c->Name().end());
    }
}

}  // namespace
