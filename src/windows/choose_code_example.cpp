// The example Command and its explanation for each pairing of the two
// character lists. The 23 valid codes have an example; 29 pairings are
// refused in words; the others, "p." and "g", "i", "n", "o", "t" before
// anything but "/", are not looked at and leave the pane blank.
#include <string_view>

#include "common/application.h"
#include "common/maker.h"
#include "windows/choose_code_pane.h"
#include "windows/frm_choose.h"

namespace qs {

namespace {

constexpr std::wstring_view WebPrefix = L"http://www.";

// The maker's site without its "http://www.", as ":" and ";" shorten it.
std::wstring SampleSite() {
    std::wstring_view site = maker::WebSite;
    if (site.substr(0, WebPrefix.size()) == WebPrefix) site.remove_prefix(WebPrefix.size());
    return std::wstring(site);
}

// The name before ".gov" in the example of "g/".
constexpr const wchar_t* SampleGovernmentName = L"example";

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

constexpr const wchar_t* RefusedCodes[] = {
    L"f.", L"w.", L"a-", L"c-", L"r-", L"a=", L"c=", L"r=", L"a:", L"c:", L"d:", L"e:", L"f:", L"p:", L"r:",
    L"a;", L"c;", L"d;", L"e;", L"f;", L"p;", L"r;", L"a/", L"d/", L"e/", L"f/", L"p/", L"r/", L"w/",
};

const wchar_t* const CompleteCommand = L"This is a complete Command with no Launch Name. ";

CodeExample ValidExample(const std::wstring& code) {
    const std::wstring mail = maker::MailAddress;
    const std::wstring site = SampleSite();
    const std::wstring fullSite = std::wstring(WebPrefix) + site;
    if (code == L"a.") {
        return {L"a.CreateAppShortcut",
                L"Here 1st Char of Code \"a\" means the Command is for some \"Additional Task\". 2nd Char \".\" "
                L"(dot) means the Launch Name (rest of the Command) is predefined in the App (not added by the "
                L"user).\r\n\r\nThis Command creates a shortcut and puts an icon of \"Quillstart\" on the Desktop. "
                L"Also creates a shortcut key for the Application : \"Shift + Ctrl + L\"."};
    }
    if (code == L"c.") {
        return {L"c.System",
                L"Here 1st Char \"c\" means the command is for a Control Panel Applet. This Command opens Control "
                L"Panel's System applet."};
    }
    if (code == L"d.") {
        return {L"d.Downloads", L"\"d\" for Directory (Folder). This Command opens Downloads Directory."};
    }
    if (code == L"e.") {
        return {L"e." + mail,
                L"\"e\" for email address. this Command open the email program to write an email addressed to " +
                    mail + L"."};
    }
    if (code == L"r.") {
        return {L"r.xxxxxx",
                L"\"r\" for morvane's other program. It will work only if and when you have morvane's any other "
                L"program. \"xxxxxx\" will be replaced by the name of a program."};
    }
    if (code == L"d-") {
        return {L"d-Tools",
                L"2nd Char \"-\" means that the Launch Name (last part of the Command) is a name given by the user "
                L"to identify a Directory which has already been added  in the Launch List by the user."};
    }
    if (code == L"e-") {
        return {L"e-morvane",
                L"Here 2nd Char \"-\" means an email address has been added by the user in the Launch List and "
                L"\"morvane\" was choosen as the Launch name of the email address. This Command opens the email "
                L"program to write an email to the choosen address."};
    }
    if (code == L"f-") {
        return {L"f-myNote",
                L"\"f\" for a File, \"-\" means user added to the Launch List choosing the Launch Name of the File "
                L"as \"myNote\". This Command opens the File with default application."};
    }
    if (code == L"p-") {
        return {L"p-FavPlayer",
                L"This Command runs the program added by the user to the Launch List setting it's Launch Name as "
                L"\"FavPlayer\"."};
    }
    if (code == L"w-") {
        return {L"w-myPlace",
                L"\"w\" for web address (URL), \"-\" means it was added by the user to the Launch List and "
                L"\"myPlace\" is the Launch Name. This Command will open the selected web address of which "
                L"\"myPlace\" was choosen as the Launch Name."};
    }
    if (code == L"d=") {
        return {L"d=C:\\Morvane\\Quillstart",
                std::wstring(CompleteCommand) + L"This Command opens \"C:\\Morvane\\Quillstart\" Directory."};
    }
    if (code == L"e=") {
        return {L"e=" + mail, std::wstring(CompleteCommand) +
                                  L"This Command open the email program to write an email addressed to " +
                                  Quoted(mail) + L"."};
    }
    if (code == L"f=") {
        return {L"f=C:\\Morvane\\Quillstart\\Settings.txt",
                std::wstring(CompleteCommand) +
                    L"This Command runs the associated program to open the file "
                    L"\"C:\\Morvane\\Quillstart\\Settings.txt\"."};
    }
    if (code == L"p=") {
        return {L"p=C:\\Morvane\\Quillstart\\Quillstart.exe",
                std::wstring(CompleteCommand) +
                    L"This Command runs the program \"C:\\Morvane\\Quillstart\\Quillstart.exe\"."};
    }
    if (code == L"w=") {
        return {L"w=" + fullSite,
                std::wstring(CompleteCommand) + L"This Command open the page " + Quoted(fullSite) +
                    L" in your browser."};
    }
    if (code == L"w:") {
        return {L"w:www." + site,
                L"Here 2nd CChar \":\" means first, no web address added to Launch List, there is no Launch Name, "
                L"it's a full Command. Second, a part of the Command, \"http://\" will be substituted by the Char "
                L"\":\". So the Complete Command will be " +
                    Quoted(fullSite)};
    }
    if (code == L"w;") {
        return {L"w;" + site,
                L"Here 2nd Char \";\" (semicolon) means almost same as \":\" (colon), the difference is it "
                L"substitute the text \"http://www.\" in the Command. So the complete Command will be " +
                    Quoted(fullSite)};
    }
    if (code == L"c/") {
        return {L"c/morvane",
                L"As colon and semicolon, \"/\" means there is no Launch Name, it's a complete Command. It also "
                L"means the first Char will substitute a text and the \"/\" will substitute another to help make "
                L"the Command complete. \"/\" substitutes \"http://www.\" and 1st Char \"c\" substitute \".com\" to "
                L"make the complete Command as " +
                    Quoted(std::wstring(WebPrefix) + L"morvane.com")};
    }
    if (code == L"g/") {
        return {std::wstring(L"g/") + SampleGovernmentName,
                L"\"g\"subtitutes \".gov\". So the complete Command is " +
                    Quoted(std::wstring(WebPrefix) + SampleGovernmentName + L".gov")};
    }
    if (code == L"i/") {
        return {L"i/morvane", L"\"i\" for \".info\". So the complete Command is " +
                                  Quoted(std::wstring(WebPrefix) + L"morvane.info")};
    }
    if (code == L"n/") {
        return {L"n/morvane",
                L"\"n\" for \".net\". Complete Command is " + Quoted(std::wstring(WebPrefix) + L"morvane.net")};
    }
    // The "n" of this row is the text as it stands.
    if (code == L"o/") {
        return {L"o/morvane",
                L"\"n\" for \".org\". Complete Command is " + Quoted(std::wstring(WebPrefix) + L"morvane.org")};
    }
    if (code == L"t/") {
        return {L"t/morvane",
                L"\"t\" for \".tv\". Complete Command is " + Quoted(std::wstring(WebPrefix) + L"morvane.tv")};
    }
    return {};
}

}  // namespace

CodeExample CodeExampleOf(const std::wstring& code) {
    CodeExample example = ValidExample(code);
    if (!example.command.empty()) return example;
    for (const wchar_t* refused : RefusedCodes) {
        if (code == refused) {
            const std::wstring text = L"This Combination is not a valid Code.";
            return {text, text};
        }
    }
    return {};
}

void CodeCommandPane::ShowCodeExample(const std::wstring& code) {
    const CodeExample example = CodeExampleOf(code);
    TextCommand.SetText(example.command);
    LabelCommand.SetCaption(example.explanation);
}

void CodeCommandPane::ComboCode1stClick() {
    if (app_.place.StartingUp) return;
    const std::int32_t i = ComboCode1st.ListIndex();
    TextCode1st.SetText(FirstExplanations.at(static_cast<std::size_t>(i)));
    const std::int32_t j = ComboCode2nd.ListIndex();
    if (j >= 0) ShowCodeExample(std::wstring(ComboCode1st.List(i)) + std::wstring(ComboCode2nd.List(j)));
}

void CodeCommandPane::ComboCode2ndClick() {
    if (app_.place.StartingUp) return;
    const std::int32_t j = ComboCode2nd.ListIndex();
    TextCode2nd.SetText(SecondExplanations.at(static_cast<std::size_t>(j)));
    const std::int32_t i = ComboCode1st.ListIndex();
    if (i >= 0) ShowCodeExample(std::wstring(ComboCode1st.List(i)) + std::wstring(ComboCode2nd.List(j)));
}

}  // namespace qs
