// The Code And Command pane as it loads and stands: its captions, its
// lists of characters and predefined names, the start text, and every list
// and box read-only.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "choose_setup.h"

namespace qs::test {
namespace {

struct ChooseCodePane : ::testing::Test {
    ChooseApp t;
    CodeCommandPane& pane = t.choose().Code;
};

TEST_F(ChooseCodePane, TheStartStateShowsTheFirstPredefinedNamesAndTheInvitation) {
    EXPECT_EQ(pane.ComboCode1st.ListIndex(), -1);
    EXPECT_EQ(pane.ComboCode2nd.ListIndex(), -1);
    EXPECT_EQ(pane.ComboNameATask.ListIndex(), 0);
    EXPECT_EQ(pane.ComboNameCP.ListIndex(), 0);
    EXPECT_EQ(pane.ComboNameDir.ListIndex(), 0);
    EXPECT_EQ(pane.ComboNameEmail.ListIndex(), 0);
    EXPECT_EQ(pane.TextCommand.Text(), L"Command = Command Code + Launch Name");
    EXPECT_EQ(pane.LabelCommand.Caption(),
              L"Select 1st and 2nd char. of Command Code in the above Combo boxes, view an example Command in the "
              L"Example Textbox above and an explanation of the Command here.\r\n\r\nTo start with, please select "
              L"\"a\" as first Char and a \".\" (dot) as second Char of Code.");
    EXPECT_EQ(pane.TextCode1st.Text(), L"");
    EXPECT_EQ(pane.TextCode2nd.Text(), L"");
}

TEST_F(ChooseCodePane, TheCharacterListsHoldTheirTablesInOrder) {
    const std::vector<std::wstring> first = {L"a", L"c", L"d", L"e", L"f", L"p", L"r",
                                             L"w", L"c", L"g", L"i", L"n", L"o", L"t"};
    EXPECT_EQ(pane.ComboCode1st.Items(), first);
    const std::vector<std::wstring> second = {L".", L"-", L"=", L"/", L":", L";"};
    EXPECT_EQ(pane.ComboCode2nd.Items(), second);
    const wchar_t* firstTexts[14] = {
        L"Additional Action",
        L"Control Panel Applet",
        L"Directory (Folder)",
        L"Email Address",
        L"File",
        L"Program (Application)",
        L"Morvane's Other Programs",
        L"Web Address (URL)",
        L"If used before \"/\", substitute text \".com\"",
        L"If used before \"/\", substitute text \".gov\"",
        L"If used before \"/\", substitute text \".info\"",
        L"If used before \"/\", substitute text \".net\"",
        L"If used before \"/\", substitute text \".org\"",
        L"If used before \"/\", substitute text \".tv\"",
    };
    for (std::int32_t i = 0; i < 14; ++i) {
        pane.ComboCode1st.UserSelected(i);
        EXPECT_EQ(pane.TextCode1st.Text(), firstTexts[i]) << i;
    }
    const wchar_t* secondTexts[6] = {
        L"Dot = Predefined Launch Name",
        L"Dash = User Defined Launch Name",
        L"Equal = Complete Path Of The Item",
        L"Slash adds text \"http://www.\" in a Command",
        L"Colon if after \"w\", adds \"http://\" in a Command",
        L"Semicolon if after \"w\", adds \"http://www.\"",
    };
    for (std::int32_t i = 0; i < 6; ++i) {
        pane.ComboCode2nd.UserSelected(i);
        EXPECT_EQ(pane.TextCode2nd.Text(), secondTexts[i]) << i;
    }
}

TEST_F(ChooseCodePane, TheFourListsOfPredefinedNamesLeaveOutTheFifthTask) {
    const std::vector<std::wstring> tasks = {L"Help", L"ChangeUserName", L"CreateAppShortcut",
                                             L"DeleteAPPShortcut"};
    EXPECT_EQ(pane.ComboNameATask.Items(), tasks);
    const std::vector<std::wstring> applets = {
        L"Accessibility", L"AddNewPrinter", L"AddRemove", L"Appearance", L"ControlPanel", L"DateTime",
        L"DesktopIcon",   L"DesktopSettings", L"Fonts",   L"Internet",   L"Mouse",        L"Multimedia",
        L"Regional",      L"Screensaver",   L"System",    L"Themes"};
    EXPECT_EQ(pane.ComboNameCP.Items(), applets);
    const std::vector<std::wstring> folders = {L"Desktop", L"Favorites", L"Fonts",     L"MyDocuments", L"Programs",
                                               L"Recent",  L"SendTo",    L"StartMenu", L"Startup"};
    EXPECT_EQ(pane.ComboNameDir.Items(), folders);
    const std::vector<std::wstring> mail = {L"feedback@quillstart.example"};
    EXPECT_EQ(pane.ComboNameEmail.Items(), mail);
}

TEST_F(ChooseCodePane, EveryCaptionStandsByteForByte) {
    EXPECT_EQ(pane.LabelCaption.Caption(), L"CommandCode And Predefined Launch Name:");
    const wchar_t* noCode[15] = {
        L"A CommandCode and a Launch Name makes a Command. CommandCode has 2 characters. In most cases 1st char "
        L"identifies the type of the item (File, Program etc.) and 2nd char identifies the type of the Launch Name "
        L"(short name, full path etc.). Launch Name identifies actual item of the Command.",
        L"1st Character Of Code :",
        L"What It Identifies Or Do",
        L"2nd Character Of Code :",
        L"What It Identifies Or Do",
        L"Example:",
        L"Predefined Names:",
        L"Additional Task:",
        L"Control Panel :",
        L"Special Folders :",
        L"Email :",
        L"Type Command Code And Launch Name in the Main Textbox",
        L"No space in between Command Code and Launch Name",
        L"Press \"Enter\" key on your Keyboard",
        L"Oh, Yeah !!",
    };
    ASSERT_EQ(pane.LabelNoCode.Count(), 15);
    for (std::int16_t i = 0; i < 15; ++i) EXPECT_EQ(pane.LabelNoCode(i).Caption(), noCode[i]) << i;
    EXPECT_EQ(pane.LabelNoCodeB(0).Caption(), L"How To Run A Command?");
    EXPECT_EQ(pane.LabelNoCodeB(1).Caption(), L"Then?");
    EXPECT_EQ(pane.LabelNoCodeB(2).Caption(), L"That's it ?!!");
    const wchar_t* codes[4] = {L"a.", L"c.", L"d.", L"e."};
    for (std::int16_t i = 0; i < 4; ++i) EXPECT_EQ(pane.LabelCode(i).Caption(), codes[i]);
}

TEST_F(ChooseCodePane, EveryListAndBoxSwallowsEveryKey) {
    std::vector<std::function<void(std::int16_t&)>*> handlers;
    for (ui::ComboBox* list : {&pane.ComboCode1st, &pane.ComboCode2nd, &pane.ComboNameATask, &pane.ComboNameCP,
                               &pane.ComboNameDir, &pane.ComboNameEmail}) {
        handlers.push_back(&list->KeyPress);
    }
    for (ui::TextBox* box : {&pane.TextCode1st, &pane.TextCode2nd, &pane.TextCommand}) {
        handlers.push_back(&box->KeyPress);
        EXPECT_TRUE(box->Locked());
    }
    for (auto* handler : handlers) {
        for (const std::int16_t typed : {std::int16_t{'x'}, std::int16_t{13}, std::int16_t{8}, std::int16_t{32}}) {
            std::int16_t key = typed;
            (*handler)(key);
            EXPECT_EQ(key, 0) << typed;
        }
    }
    pane.TextCommand.TypeText(L"abc");
    EXPECT_EQ(pane.TextCommand.Text(), L"Command = Command Code + Launch Name");
}

TEST(ChooseCodeKeys, EscInAListOrABoxClosesThePaneThroughTheBar) {
    BarApp t;
    t.app.frmChoose.Load();
    t.ClickMenu(3);
    ASSERT_TRUE(t.app.frmChoose.Visible());
    std::int16_t esc = 27;
    t.app.frmChoose.Code.TextCommand.KeyPress(esc);
    EXPECT_EQ(esc, 0);
    EXPECT_FALSE(t.app.frmChoose.Visible());
    EXPECT_EQ(t.app.OpenMenuIndex, -1);
    t.ClickMenu(3);
    esc = 27;
    t.app.frmChoose.Code.ComboNameDir.KeyPress(esc);
    EXPECT_FALSE(t.app.frmChoose.Visible());
}

TEST(ChooseCodeKeys, TheSelectionsAndTextsStayWhenThePaneClosesAndOpensAgain) {
    BarApp t;
    t.app.frmChoose.Load();
    CodeCommandPane& pane = t.app.frmChoose.Code;
    t.ClickMenu(3);
    pane.ComboCode1st.UserSelected(7);
    pane.ComboCode2nd.UserSelected(5);
    t.app.frmChoose.PictureHideCode.Press();
    ASSERT_FALSE(t.app.frmChoose.Visible());
    t.ClickMenu(3);
    EXPECT_TRUE(t.app.frmChoose.PictureCode.Visible());
    EXPECT_EQ(pane.ComboCode1st.ListIndex(), 7);
    EXPECT_EQ(pane.ComboCode2nd.ListIndex(), 5);
    EXPECT_EQ(pane.TextCommand.Text(), L"w;quillstart.example");
}

TEST_F(ChooseCodePane, TheListsAndBoxesAreNamedByTheirCaptionsAndTakeTheTabInOrder) {
    EXPECT_EQ(pane.ComboCode1st.AccessibleName(), L"1st Character Of Code :");
    EXPECT_EQ(pane.ComboCode2nd.AccessibleName(), L"2nd Character Of Code :");
    EXPECT_EQ(pane.TextCommand.AccessibleName(), L"Example:");
    EXPECT_EQ(pane.ComboNameCP.AccessibleName(), L"Control Panel :");
    EXPECT_EQ(pane.ComboCode1st.ToolTipText(), L"Select Char 1");
    EXPECT_EQ(pane.ComboCode2nd.ToolTipText(), L"Select Char 2");
    const ui::Control* order[] = {&pane.ComboCode1st, &pane.TextCode1st,    &pane.ComboCode2nd,
                                  &pane.TextCode2nd,  &pane.TextCommand,    &pane.ComboNameATask,
                                  &pane.ComboNameCP,  &pane.ComboNameDir,   &pane.ComboNameEmail};
    for (std::size_t i = 1; i < std::size(order); ++i) EXPECT_LT(order[i - 1]->TabIndex(), order[i]->TabIndex());
    EXPECT_LT(order[8]->TabIndex(), t.choose().PictureHideCode.TabIndex());
}

TEST_F(ChooseCodePane, ThePaneLiesInsidePictureCode) {
    const ui::Frame& code = t.choose().PictureCode;
    for (const ui::Control* c : t.choose().Controls()) {
        if (c->Container() != &code) continue;
        EXPECT_GE(c->Left(), code.Left()) << std::string(c->Name().begin(), c->Name().end());
        EXPECT_LE(c->Left() + c->Width(), code.Left() + code.Width());
        EXPECT_LE(c->Top() + c->Height(), code.Top() + code.Height());
    }
    EXPECT_EQ(pane.ComboNameEmail.Container(), &code);
    EXPECT_EQ(pane.LabelNoCode(14).Container(), &code);
}

}  // namespace
}  // namespace qs::test
