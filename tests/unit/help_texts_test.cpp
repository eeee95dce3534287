// The help texts: the lines a user must follow stand word for word and in
// their order, step numbers as written, and the Commands they show do what
// the texts say.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "help_app.h"
#include "windows/help_texts.h"

namespace {

using qs::HelpTopicText;

std::vector<std::wstring> LinesOf(const std::wstring& text) {
    std::vector<std::wstring> lines;
    std::size_t start = 0;
    for (std::size_t at = text.find(L"\r\n"); at != std::wstring::npos; at = text.find(L"\r\n", start)) {
        lines.push_back(text.substr(start, at - start));
        start = at + 2;
    }
    lines.push_back(text.substr(start));
    return lines;
}

// Each piece is found in the text, each after the one before it.
void ExpectInOrder(std::int16_t topic, const std::vector<std::wstring>& pieces) {
    const std::wstring text = HelpTopicText(topic);
    std::size_t from = 0;
    for (const auto& piece : pieces) {
        const std::size_t at = text.find(piece, from);
        ASSERT_NE(at, std::wstring::npos) << "topic " << topic << " lacks, in its place: "
                                          << std::string(piece.begin(), piece.end());
        from = at + piece.size();
    }
}

// The numbers that begin the lines of a topic, in order.
std::wstring StepNumbers(std::int16_t topic) {
    std::wstring numbers;
    for (const auto& line : LinesOf(HelpTopicText(topic))) {
        if (line.size() > 1 && line[0] >= L'1' && line[0] <= L'9' && line[1] == L'.') numbers += line[0];
    }
    return numbers;
}

TEST(HelpTexts, EveryTextTopicHasTextWithCrLfBetweenLinesAndAboutHasNone) {
    for (std::int16_t i = 0; i < 12; ++i) {
        const std::wstring text = HelpTopicText(i);
        EXPECT_GT(LinesOf(text).size(), 3u) << i;
        // No bare line feed or carriage return: lines part by CRLF only.
        std::wstring rest = text;
        for (std::size_t at = rest.find(L"\r\n"); at != std::wstring::npos; at = rest.find(L"\r\n")) rest.erase(at, 2);
        EXPECT_EQ(rest.find_first_of(L"\r\n"), std::wstring::npos) << i;
    }
    EXPECT_THROW(HelpTopicText(12), qs::SubscriptOutOfRange);
}

TEST(HelpTexts, IntroductionOpensWithTheProgramAndClosesWithTheBookmarks) {
    const auto lines = LinesOf(HelpTopicText(0));
    EXPECT_EQ(lines.front(), L"Quillstart is a program launcher. but it can also launch web URLs, files, folders and a "
                             L"few Control Panel applets.");
    ExpectInOrder(0, {L"To make it work user need to:", L"1. ", L"2. ", L"3. ",
                      L"in between round button at the left and \"+\" button in the picture above", L"Enter"});
    EXPECT_EQ(StepNumbers(0), L"123");
    const std::wstring last = lines.back();
    EXPECT_EQ(last.substr(last.size() - 63), L"In other word, user can carry their bookmarks in a flash drive.");
}

TEST(HelpTexts, InstallNamesTheProgramFileAndTheFiveUninstallSteps) {
    ExpectInOrder(1, {L"Quillstart is stand alone. No installation required. save the file Quillstart.exe anywhere, "
                      L"even on a flash drive, and run it.",
                      L".exe file", L"After upgrading, new program file will find your old setting automatically.",
                      L"1. ", L"a.DeleteAPPShortcut", L"2. ", L"Preferences", L"3. ", L"4. ", L"5. ", L"Morvane",
                      L"flash drive", L"root", L"system drive"});
    EXPECT_EQ(StepNumbers(1), L"12345");
}

TEST(HelpTexts, InterfaceNamesEveryButtonOfTheBarInItsOrder) {
    ExpectInOrder(2, {L"The main window of Quillstart is very simple. Looks like a pencil with a few buttons and a text "
                      L"box drawn on it.",
                      L"By clicking at the edges", L"\"+\"", L"\">\"", L"\"L\"", L"\"C\"", L"\"P\"", L"\"?\"", L"\"W\"",
                      L"Small round button next to \"W\" button", L"\"M\"",
                      L"To restore the window just hover mouse pointer on app icon on the tray.",
                      L"\"X\" is the exit button."});
}

TEST(HelpTexts, WebUrlStepsAreNumberedOneTwoTwoFourFive) {
    ExpectInOrder(3, {L"To add web URL in Launch List:", L"\"W\"", L"\"URL\" Text box", L"\"Enter\" key", L"\"Enter\" again"});
    EXPECT_EQ(StepNumbers(3), L"12245");
}

TEST(HelpTexts, ProgramHasTheEightStepsOfThePointer) {
    ExpectInOrder(4, {L"Add an Application (Program) in the Launch List:", L"\"+\"", L"Find Program Path"});
    EXPECT_EQ(StepNumbers(4), L"12345678");
}

TEST(HelpTexts, AllItemHasSixStepsAndEndsWithTheEasyWay) {
    ExpectInOrder(5, {L"Add App|File|Folder|Email|Web URL to Launch List:"});
    EXPECT_EQ(StepNumbers(5), L"123456");
    EXPECT_EQ(LinesOf(HelpTopicText(5)).back(),
              L"There is a little easy way to add App and web URL. In \"Add To List\" please check \"Web URL\" and "
              L"\"Program\".");
}

TEST(HelpTexts, ViewListSaysWhyEachGroupIsDeletedAlone) {
    ExpectInOrder(6, {L"\"L\"", L"Launch List is the place where you can:", L"Why?",
                      L"Just to make sure, if the click was an accident, everything does not get deleted just by one "
                      L"click."});
}

TEST(HelpTexts, TypeACommandExplainsTheExample) {
    ExpectInOrder(7, {L"A Command is the total of a Command Code and a Launch Name.", L"p-myPlayer", L"Please note:",
                      L"What the Command Code \"p-\" means:", L"1st", L"2nd", L"auto fills"});
}

TEST(HelpTexts, CodeAndCommandListsTheFirstAndSecondCharacters) {
    ExpectInOrder(8, {L"Characters that can be used in a Command Code as 1st Char:", L"a = ", L"c = ", L"d = ", L"e = ",
                      L"f = ", L"p = ", L"r = ", L"w = ", L"\".com\", \".gov\", \".info\", \".net\", \".org\", \".tv\"",
                      L"2nd characters of Codes and what those means:", L"\"-\"", L"\".\"", L"d.Fonts", L"\"=\"",
                      L"p=", L"\"/\"", L"\"C\""});
}

TEST(HelpTexts, MoreCommandsForUrlOffersEveryShortForm) {
    ExpectInOrder(9, {L"w-myURL", L"There are a few shortcut ways to launch an web URL without adding the URL in the "
                                  L"Launch List. Here are the examples of the Commands:",
                      L"w:", L"w;", L"n/morvane", L"c/morvane", L"o/morvane", L"info/morvane", L"tv/morvane"});
}

TEST(HelpTexts, QuickLauncherOpensWithItsPurposeAndWalksBothParts) {
    ExpectInOrder(10, {L"QuickLauncher helps to keep 20 items of a group (Program, File, Folder etc) from Launch List "
                       L"handy to open just by one mouse click.",
                       L"\"D\", \"F\", \"P\", \"E\", \"W\"", L"20 round buttons", L"Bottom part:", L"20 labels"});
}

TEST(HelpTexts, ThingsToRememberCountsOneToNineThenAToC) {
    const auto lines = LinesOf(HelpTopicText(11));
    EXPECT_EQ(lines.front().substr(0, 30), L"#1. The program is very easy. ");
    ExpectInOrder(11, {L"2. ", L"a.Help", L"3. ", L"4. ", L"5. ", L"6. ", L"7. ", L"8. ", L"9. ", L"A. ", L"B. ",
                       L"C. ", L"Little more:", L"\".\"", L"\"-\"", L"\"=\""});
}

// The short forms the text offers open what the text says they open.
TEST(HelpTexts, TheShortWebCommandsOpenTheAddressesTheTextGives) {
    const std::wstring text = HelpTopicText(9);
    for (const std::wstring command : {L"w:www.morvane.com", L"w;morvane.com", L"n/morvane", L"c/morvane", L"o/morvane"}) {
        qs::test::HelpApp t;
        t.Type(command);
        t.Enter();
        ASSERT_EQ(t.sys.launches.size(), 1u) << std::string(command.begin(), command.end());
        EXPECT_NE(text.find(command + L" opens \"" + t.LastTarget() + L"\""), std::wstring::npos)
            << std::string(command.begin(), command.end());
    }
}

TEST(HelpTexts, TheCommandsTheTextsNameAreTheProgramsOwn) {
    qs::test::HelpApp t;
    const auto& tasks = t.app.tables.ATaskNames;
    EXPECT_NE(std::find(tasks.begin(), tasks.end(), L"DeleteAPPShortcut"), tasks.end());
    EXPECT_NE(std::find(tasks.begin(), tasks.end(), L"Help"), tasks.end());
    const auto& folders = t.app.tables.SpecialFolderNames;
    EXPECT_NE(std::find(folders.begin(), folders.end(), L"Fonts"), folders.end());
}

}  // namespace
