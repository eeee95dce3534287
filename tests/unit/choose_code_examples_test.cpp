// The Code And Command pane's answer to every pairing of its two character
// lists: an example with its explanation, a refusal in words, or nothing.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "choose_setup.h"

namespace qs::test {
namespace {

const std::wstring Refused = L"This Combination is not a valid Code.";

struct Example {
    std::wstring command;
    std::wstring explanation;
};

// The 23 valid codes, with the maker's addresses as samples.
const std::map<std::wstring, Example>& ValidExamples() {
    static const std::map<std::wstring, Example> examples = {
        {L"a.",
         {L"a.CreateAppShortcut",
          L"Here 1st Char of Code \"a\" means the Command is for some \"Additional Task\". 2nd Char \".\" (dot) "
          L"means the Launch Name (rest of the Command) is predefined in the App (not added by the user).\r\n\r\n"
          L"This Command creates a shortcut and puts an icon of \"Quillstart\" on the Desktop. Also creates a "
          L"shortcut key for the Application : \"Shift + Ctrl + L\"."}},
        {L"c.",
         {L"c.System",
          L"Here 1st Char \"c\" means the command is for a Control Panel Applet. This Command opens Control "
          L"Panel's System applet."}},
        {L"d.", {L"d.Downloads", L"\"d\" for Directory (Folder). This Command opens Downloads Directory."}},
        {L"e.",
         {L"e.feedback@quillstart.example",
          L"\"e\" for email address. this Command open the email program to write an email addressed to "
          L"feedback@quillstart.example."}},
        {L"r.",
         {L"r.xxxxxx",
          L"\"r\" for morvane's other program. It will work only if and when you have morvane's any other "
          L"program. \"xxxxxx\" will be replaced by the name of a program."}},
        {L"d-",
         {L"d-Tools",
          L"2nd Char \"-\" means that the Launch Name (last part of the Command) is a name given by the user to "
          L"identify a Directory which has already been added  in the Launch List by the user."}},
        {L"e-",
         {L"e-morvane",
          L"Here 2nd Char \"-\" means an email address has been added by the user in the Launch List and "
          L"\"morvane\" was choosen as the Launch name of the email address. This Command opens the email "
          L"program to write an email to the choosen address."}},
        {L"f-",
         {L"f-myNote",
          L"\"f\" for a File, \"-\" means user added to the Launch List choosing the Launch Name of the File as "
          L"\"myNote\". This Command opens the File with default application."}},
        {L"p-",
         {L"p-FavPlayer",
          L"This Command runs the program added by the user to the Launch List setting it's Launch Name as "
          L"\"FavPlayer\"."}},
        {L"w-",
         {L"w-myPlace",
          L"\"w\" for web address (URL), \"-\" means it was added by the user to the Launch List and \"myPlace\" "
          L"is the Launch Name. This Command will open the selected web address of which \"myPlace\" was choosen "
          L"as the Launch Name."}},
        {L"d=",
         {L"d=C:\\Morvane\\Quillstart",
          L"This is a complete Command with no Launch Name. This Command opens \"C:\\Morvane\\Quillstart\" "
          L"Directory."}},
        {L"e=",
         {L"e=feedback@quillstart.example",
          L"This is a complete Command with no Launch Name. This Command open the email program to write an "
          L"email addressed to \"feedback@quillstart.example\"."}},
        {L"f=",
         {L"f=C:\\Morvane\\Quillstart\\Settings.txt",
          L"This is a complete Command with no Launch Name. This Command runs the associated program to open the "
          L"file \"C:\\Morvane\\Quillstart\\Settings.txt\"."}},
        {L"p=",
         {L"p=C:\\Morvane\\Quillstart\\Quillstart.exe",
          L"This is a complete Command with no Launch Name. This Command runs the program "
          L"\"C:\\Morvane\\Quillstart\\Quillstart.exe\"."}},
        {L"w=",
         {L"w=http://www.quillstart.example",
          L"This is a complete Command with no Launch Name. This Command open the page "
          L"\"http://www.quillstart.example\" in your browser."}},
        {L"w:",
         {L"w:www.quillstart.example",
          L"Here 2nd CChar \":\" means first, no web address added to Launch List, there is no Launch Name, it's a "
          L"full Command. Second, a part of the Command, \"http://\" will be substituted by the Char \":\". So the "
          L"Complete Command will be \"http://www.quillstart.example\""}},
        {L"w;",
         {L"w;quillstart.example",
          L"Here 2nd Char \";\" (semicolon) means almost same as \":\" (colon), the difference is it substitute "
          L"the text \"http://www.\" in the Command. So the complete Command will be "
          L"\"http://www.quillstart.example\""}},
        {L"c/",
         {L"c/morvane",
          L"As colon and semicolon, \"/\" means there is no Launch Name, it's a complete Command. It also means "
          L"the first Char will substitute a text and the \"/\" will substitute another to help make the Command "
          L"complete. \"/\" substitutes \"http://www.\" and 1st Char \"c\" substitute \".com\" to make the "
          L"complete Command as \"http://www.morvane.com\""}},
        {L"g/",
         {L"g/example", L"\"g\"subtitutes \".gov\". So the complete Command is \"http://www.example.gov\""}},
        {L"i/", {L"i/morvane", L"\"i\" for \".info\". So the complete Command is \"http://www.morvane.info\""}},
        {L"n/", {L"n/morvane", L"\"n\" for \".net\". Complete Command is \"http://www.morvane.net\""}},
        {L"o/", {L"o/morvane", L"\"n\" for \".org\". Complete Command is \"http://www.morvane.org\""}},
        {L"t/", {L"t/morvane", L"\"t\" for \".tv\". Complete Command is \"http://www.morvane.tv\""}},
    };
    return examples;
}

const std::set<std::wstring>& RefusedCodes() {
    static const std::set<std::wstring> codes = {
        L"f.", L"w.", L"a-", L"c-", L"r-", L"a=", L"c=", L"r=", L"a:", L"c:", L"d:", L"e:", L"f:", L"p:", L"r:",
        L"a;", L"c;", L"d;", L"e;", L"f;", L"p;", L"r;", L"a/", L"d/", L"e/", L"f/", L"p/", L"r/", L"w/",
    };
    return codes;
}

struct ChooseCodeExamples : ::testing::Test {
    ChooseApp t;
    CodeCommandPane& pane = t.choose().Code;
    void Pick(std::int32_t first, std::int32_t second) {
        pane.ComboCode1st.UserSelected(first);
        pane.ComboCode2nd.UserSelected(second);
    }
};

TEST_F(ChooseCodeExamples, EachOfThe78PairingsShowsItsExampleItsRefusalOrNothing) {
    int valid = 0;
    int refused = 0;
    int blank = 0;
    std::set<std::wstring> seen;
    for (std::int32_t i = 0; i < pane.ComboCode1st.ListCount(); ++i) {
        for (std::int32_t j = 0; j < pane.ComboCode2nd.ListCount(); ++j) {
            const std::wstring code = std::wstring(pane.ComboCode1st.List(i)) + std::wstring(pane.ComboCode2nd.List(j));
            // A valid code first, so that a blank answer is seen to empty
            // the targets.
            Pick(0, 0);
            Pick(i, j);
            const std::wstring& command = pane.TextCommand.Text();
            const std::wstring& explanation = pane.LabelCommand.Caption();
            const auto example = ValidExamples().find(code);
            if (example != ValidExamples().end()) {
                EXPECT_EQ(command, example->second.command) << code;
                EXPECT_EQ(explanation, example->second.explanation) << code;
                if (seen.insert(code).second) ++valid;
            } else if (RefusedCodes().count(code) != 0) {
                EXPECT_EQ(command, Refused) << code;
                EXPECT_EQ(explanation, Refused) << code;
                if (seen.insert(code).second) ++refused;
            } else {
                EXPECT_EQ(command, L"") << code;
                EXPECT_EQ(explanation, L"") << code;
                if (seen.insert(code).second) ++blank;
            }
        }
    }
    EXPECT_EQ(seen.size(), 78u);
    EXPECT_EQ(valid, 23);
    EXPECT_EQ(refused, 29);
    EXPECT_EQ(blank, 26);
}

TEST_F(ChooseCodeExamples, PDotAndGDotGoBlankRatherThanBeingRefused) {
    Pick(5, 0);
    EXPECT_EQ(pane.TextCommand.Text(), L"");
    EXPECT_EQ(pane.LabelCommand.Caption(), L"");
    Pick(9, 0);
    EXPECT_EQ(pane.TextCommand.Text(), L"");
    Pick(4, 0);
    EXPECT_EQ(pane.TextCommand.Text(), Refused);
}

TEST_F(ChooseCodeExamples, CStandsTwiceWithTwoExplanationsAndTheSameCode) {
    EXPECT_EQ(pane.ComboCode1st.List(1), L"c");
    EXPECT_EQ(pane.ComboCode1st.List(8), L"c");
    Pick(1, 3);
    EXPECT_EQ(pane.TextCode1st.Text(), L"Control Panel Applet");
    const std::wstring command = pane.TextCommand.Text();
    const std::wstring explanation = pane.LabelCommand.Caption();
    EXPECT_EQ(command, L"c/morvane");
    Pick(8, 3);
    EXPECT_EQ(pane.TextCode1st.Text(), L"If used before \"/\", substitute text \".com\"");
    EXPECT_EQ(pane.TextCommand.Text(), command);
    EXPECT_EQ(pane.LabelCommand.Caption(), explanation);
    Pick(8, 0);
    EXPECT_EQ(pane.TextCommand.Text(), L"c.System");
}

TEST_F(ChooseCodeExamples, SelectingOnlyOneListShowsItsExplanationAndLeavesTheExampleAsItWas) {
    const std::wstring startText = pane.LabelCommand.Caption();
    pane.ComboCode1st.UserSelected(7);
    EXPECT_EQ(pane.TextCode1st.Text(), L"Web Address (URL)");
    EXPECT_EQ(pane.TextCommand.Text(), L"Command = Command Code + Launch Name");
    EXPECT_EQ(pane.LabelCommand.Caption(), startText);
    ChooseApp other;
    CodeCommandPane& second = other.choose().Code;
    second.ComboCode2nd.UserSelected(4);
    EXPECT_EQ(second.TextCode2nd.Text(), L"Colon if after \"w\", adds \"http://\" in a Command");
    EXPECT_EQ(second.TextCommand.Text(), L"Command = Command Code + Launch Name");
    EXPECT_EQ(second.LabelCommand.Caption(), startText);
    EXPECT_EQ(second.ComboCode1st.ListIndex(), -1);
}

TEST_F(ChooseCodeExamples, GAndDotAfterAValidCodeEmptyTheExampleAndItsExplanation) {
    Pick(0, 0);
    ASSERT_EQ(pane.TextCommand.Text(), L"a.CreateAppShortcut");
    pane.ComboCode1st.UserSelected(9);
    EXPECT_EQ(pane.TextCommand.Text(), L"");
    EXPECT_EQ(pane.LabelCommand.Caption(), L"");
    EXPECT_EQ(pane.TextCode1st.Text(), L"If used before \"/\", substitute text \".gov\"");
    EXPECT_EQ(pane.TextCode2nd.Text(), L"Dot = Predefined Launch Name");
}

TEST_F(ChooseCodeExamples, EachListIsIndependentOfTheOther) {
    Pick(2, 1);
    EXPECT_EQ(pane.ComboCode1st.ListIndex(), 2);
    EXPECT_EQ(pane.ComboCode2nd.ListIndex(), 1);
    EXPECT_EQ(pane.ComboCode1st.ListCount(), 14);
    EXPECT_EQ(pane.ComboCode2nd.ListCount(), 6);
    pane.ComboNameCP.UserSelected(5);
    EXPECT_EQ(pane.TextCommand.Text(), L"d-Tools");
}

TEST_F(ChooseCodeExamples, TheListsDoNothingWhileTheProgramStarts) {
    t.app.place.StartingUp = true;
    Pick(0, 0);
    t.app.place.StartingUp = false;
    EXPECT_EQ(pane.TextCode1st.Text(), L"");
    EXPECT_EQ(pane.TextCode2nd.Text(), L"");
    EXPECT_EQ(pane.TextCommand.Text(), L"Command = Command Code + Launch Name");
}

}  // namespace
}  // namespace qs::test
