// The fixed vocabulary and the completion of predefined Launch Names.
#include <gtest/gtest.h>

#include "command/tables.h"
#include "common/text_case.h"
#include "test_app.h"

namespace {

using qs::test::TestApp;

TEST(Tables, GroupTaskFolderAndAppletNames) {
    TestApp t;
    const auto& tb = t.app.tables;
    EXPECT_EQ(tb.ProgramVersion, L"4.2019");
    EXPECT_EQ(tb.ListGroupNames, (std::array<std::wstring, 5>{L"File", L"Folder", L"Program", L"Email", L"Web URL"}));
    EXPECT_EQ(tb.ATaskNames, (std::array<std::wstring, 5>{L"Help", L"ChangeUserName", L"CreateAppShortcut",
                                                          L"DeleteAPPShortcut", L"StartScreensaver"}));
    EXPECT_EQ(tb.SpecialFolderNames[0], L"Desktop");
    EXPECT_EQ(tb.SpecialFolderNames[3], L"MyDocuments");
    EXPECT_EQ(tb.SpecialFolderNames[8], L"Startup");
    EXPECT_EQ(tb.ControlPanelNames[0], L"Accessibility");
    EXPECT_EQ(tb.ControlPanelNames[7], L"DesktopSettings");
    EXPECT_EQ(tb.ControlPanelNames[15], L"Themes");
    EXPECT_EQ(tb.FeedbackMailAddress[0], L"feedback@quillstart.example");
    EXPECT_EQ(tb.FeedbackMailSubject[0], L"Quillstart - Found Bug");
}

TEST(Tables, AppletTableHoldsTwentyTwoRowsInAlphabeticalOrderWithSixTypedOnly) {
    TestApp t;
    int typedOnly = 0;
    for (std::size_t i = 0; i < qs::AppletTable.size(); ++i) {
        if (i > 0) {
            EXPECT_LT(std::wstring(qs::AppletTable[i - 1].name), std::wstring(qs::AppletTable[i].name));
        }
        bool listed = false;
        for (const auto& name : t.app.tables.ControlPanelNames)
            if (qs::LCase(name) == qs::AppletTable[i].name) listed = true;
        if (!listed) ++typedOnly;
    }
    EXPECT_EQ(typedOnly, 6);
    EXPECT_STREQ(qs::AppletTable[13].name, L"keyboard");
    EXPECT_STREQ(qs::AppletTable[13].commandLine, L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @1");
    EXPECT_STREQ(qs::AppletTable[2].commandLine, L"rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter");
    EXPECT_STREQ(qs::AppletTable[9].commandLine, L"rundll32.exe rnaui.dll,RnaWizard");
}

TEST(Tables, CodeCharactersAndTheirExplanations) {
    EXPECT_STREQ(qs::CodeFirstCharacters[1].character, L"c");
    EXPECT_STREQ(qs::CodeFirstCharacters[8].character, L"c");
    EXPECT_STREQ(qs::CodeFirstCharacters[8].explanation, L"If used before \"/\", substitute text \".com\"");
    EXPECT_STREQ(qs::CodeFirstCharacters[6].explanation, L"Morvane's Other Programs");
    EXPECT_STREQ(qs::CodeSecondCharacters[3].explanation, L"Slash adds text \"http://www.\" in a Command");
    EXPECT_STREQ(qs::CodeSecondCharacters[5].explanation, L"Semicolon if after \"w\", adds \"http://www.\"");
}

struct Completion : ::testing::Test {
    TestApp t;
    const qs::ui::TextBox& box() { return t.app.frmMain.TextMain; }
    void ExpectSelected(const std::wstring& text, const std::wstring& selected) {
        EXPECT_EQ(box().Text(), text);
        EXPECT_EQ(box().SelText(), selected);
    }
};

TEST_F(Completion, AppletNamesCompleteToTheFirstInTableOrder) {
    t.Type(L"c.d");
    ExpectSelected(L"c.DateTime", L"ateTime");
    t.ClearBox();
    t.Type(L"c.de");
    ExpectSelected(L"c.DesktopIcon", L"sktopIcon");
    t.ClearBox();
    t.Type(L"c.desktops");
    ExpectSelected(L"c.DesktopSettings", L"ettings");
}

TEST_F(Completion, TaskNamesComplete) {
    t.Type(L"a.c");
    ExpectSelected(L"a.ChangeUserName", L"hangeUserName");
    t.ClearBox();
    t.Type(L"a.cr");
    ExpectSelected(L"a.CreateAppShortcut", L"eateAppShortcut");
    t.ClearBox();
    t.Type(L"a.d");
    ExpectSelected(L"a.DeleteAPPShortcut", L"eleteAPPShortcut");
}

TEST_F(Completion, TypedCapitalOfTheCodeStays) {
    t.Type(L"C.sy");
    ExpectSelected(L"C.System", L"stem");
}

TEST_F(Completion, TypedOnlyAppletIsNotCompletedButStarts) {
    t.Type(L"c.keyboard");
    EXPECT_EQ(box().Text(), L"c.keyboard");
    t.Enter();
    ASSERT_EQ(t.sys.launches.size(), 1u);
    EXPECT_EQ(t.LastTarget(), L"rundll32.exe shell32.dll,Control_RunDLL main.cpl @1");
    EXPECT_EQ(box().Text(), L"");
}

TEST_F(Completion, FullNameIsRewrittenWithTheTablesCapitalsAndNothingSelected) {
    t.Type(L"d.fonts");
    ExpectSelected(L"d.Fonts", L"");
}

TEST_F(Completion, EntryShorterThanTheTypedTextNeverMatches) {
    // Pasted whole, so no shorter prefix was completed on the way.
    t.app.frmMain.TextMain.UserEdited(L"d.fontsx", 8, 0);
    EXPECT_EQ(box().Text(), L"d.fontsx");
    EXPECT_EQ(box().SelLength(), 0);
}

TEST_F(Completion, NextLetterReplacesTheSelectedTailAndSearchesAgain) {
    t.Type(L"c.d");
    t.Type(L"e");
    ExpectSelected(L"c.DesktopIcon", L"sktopIcon");
}

}  // namespace
