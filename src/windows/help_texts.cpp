// The help texts, topic by topic. The program's and its maker's names and
// the maker's addresses come from their constants; everything else is the
// program's own words. Step numbers stand as written, repeats included.
#include "windows/help_texts.h"

#include <string_view>
#include <vector>

#include "common/failure.h"
#include "common/maker.h"

namespace qs {

namespace {

using Lines = std::vector<std::wstring>;

const std::wstring Program = maker::ProgramName;
const std::wstring Maker = maker::MakerName;

// The maker's name as a Command's example takes it.
std::wstring MakerLower() {
    std::wstring lower;
    for (const wchar_t c : Maker) lower += (c >= L'A' && c <= L'Z') ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    return lower;
}

Lines Introduction() {
    return {
        Program + L" is a program launcher. but it can also launch web URLs, files, folders and a few Control Panel "
                  L"applets.",
        L"",
        L"To make it work user need to:",
        L"1. Add items (programs, files, folders, email addresses, web URLs) to the Launch List.",
        L"2. Choose a short Launch Name for each item while adding it.",
        L"3. Type a Command in the text box (in between round button at the left and \"+\" button in the picture "
        L"above) and press \"Enter\" key on the keyboard.",
        L"",
        L"A Command Code and a Launch Name make a Command. There is no space in between them. A Command Code has two "
        L"characters: the first tells the type of the item, the second where its Launch Name comes from.",
        L"",
        L"Some Launch Names are predefined: the System Folders (Desktop, Fonts, MyDocuments ...) and a few Control "
        L"Panel applets. No more applets can be added to them.",
        L"",
        Program + L" needs no installation. Run it from a flash drive and use it on several computers: the web URLs "
                  L"and email addresses of the Launch List are kept on the drive and go with it. In other word, "
                  L"user can carry their bookmarks in a flash drive.",
    };
}

Lines Install() {
    return {
        L"Install:",
        Program + L" is stand alone. No installation required. save the file " + Program +
            L".exe anywhere, even on a flash drive, and run it.",
        L"",
        L"Upgrade:",
        L"Save the new program file the same way and delete the old .exe file. After upgrading, new program file "
        L"will find your old setting automatically.",
        L"",
        L"Uninstall:",
        L"1. Delete the shortcut key (and the icon on the Desktop) by typing the Command \"a.DeleteAPPShortcut\" and "
        L"pressing \"Enter\".",
        L"2. Unselect \"Start With Windows\" in \"Preferences\" and save.",
        L"3. Exit " + Program + L" by the \"X\" button.",
        L"4. Delete the file " + Program + L".exe.",
        L"5. Delete the folder \"" + Maker + L"\", unless you keep another program of " + Maker +
            L": that folder holds the data of all of them, and deleting it destroys all their data.",
        L"",
        L"When " + Program + L" runs from a flash drive, the folder \"" + Maker +
            L"\" is in the root of the flash drive; on a computer it is in the root of the system drive.",
    };
}

Lines Interface() {
    return {
        L"The main window of " + Program +
            L" is very simple. Looks like a pencil with a few buttons and a text box drawn on it.",
        L"",
        L"Drag it by the small flat part between the round button and the text box, or by the flat part at the "
        L"right end. This Help window is dragged By clicking at the edges.",
        L"",
        L"Text box: type a Command here and press \"Enter\".",
        L"Round button at the left: Minimize|Maximize the main window on screen.",
        L"\"+\": Show|Hide the Add To Launch List pane.",
        L"\">\": Show|Hide the Open (File|App) pane.",
        L"\"L\": Show|Hide the Launch List pane.",
        L"\"C\": Show|Hide the Code And Command pane.",
        L"\"P\": Show|Hide the Preferences pane.",
        L"\"?\": Show|Hide this Help.",
        L"\"W\": Show|Hide the Add Web URL pane.",
        L"Small round button next to \"W\" button: Show|Hide the QuickLauncher.",
        L"\"M\": Minimize the main window in the tray. To restore the window just hover mouse pointer on app icon "
        L"on the tray.",
        L"\"X\" is the exit button.",
    };
}

Lines WebUrl() {
    return {
        L"To add web URL in Launch List:",
        L"",
        L"1. Click the \"W\" button on the main window. The Add Web URL pane opens at its right.",
        L"2. Type the URL in the \"URL\" Text box, or drag the URL from your browser and drop it there.",
        L"2. Type a short Launch Name in the \"Name\" Text box that shows beside it.",
        L"4. Press \"Enter\" key. The URL is added to the Launch List.",
        L"5. Press \"Enter\" again to hide the pane.",
    };
}

Lines ProgramTopic() {
    return {
        L"Add an Application (Program) in the Launch List:",
        L"",
        L"1. Run the program you want to add.",
        L"2. Click the \"+\" button on the main window.",
        L"3. Press and hold the left mouse button on \"Find Program Path\".",
        L"4. Keep holding and move the mouse pointer over the window of the program.",
        L"5. Release the mouse button. The path of the program shows in the pane.",
        L"6. Type a short Launch Name in the box under \"Type Launch Name Here :\".",
        L"7. Press \"Enter\" key. The program is added to the Launch List.",
        L"8. Press \"Enter\" again to hide the pane.",
    };
}

Lines AllItem() {
    return {
        L"Add App|File|Folder|Email|Web URL to Launch List:",
        L"",
        L"1. Click the \"+\" button on the main window. The Add Item window opens.",
        L"2. Under \"Select Item To Add :\" select what to add: Program, File, Folder, Email or Web URL.",
        L"3. For a Program, File or Folder select the drive, then the folder, then the file (Double Click To "
        L"Select). For an Email or a Web URL type the address.",
        L"4. Type a short Launch Name in the box under \"Type Launch Name Here :\".",
        L"5. Press \"Enter\" key or click the OK button. The item is added to the Launch List.",
        L"6. Click the close button to hide the window.",
        L"",
        L"There is a little easy way to add App and web URL. In \"Add To List\" please check \"Web URL\" and "
        L"\"Program\".",
    };
}

Lines ViewList() {
    return {
        L"To view the Launch List click the \"L\" button on the main window. Select a group (File, Folder, Program, "
        L"Email, Web URL) to see its items.",
        L"",
        L"Launch List is the place where you can:",
        L"- Change the Launch Name of an item.",
        L"- Run an item.",
        L"- Remove an item from the list.",
        L"- Delete a whole list.",
        L"",
        L"Each group is deleted separately, and only after you confirm it.",
        L"Why?",
        L"Just to make sure, if the click was an accident, everything does not get deleted just by one click.",
    };
}

Lines TypeACommand() {
    return {
        L"A Command is the total of a Command Code and a Launch Name.",
        L"",
        L"For example, a media player was added to the Launch List as a Program with the Launch Name \"myPlayer\". "
        L"The Command to run it is:",
        L"p-myPlayer",
        L"",
        L"Please note:",
        L"There is no space in between the Command Code and the Launch Name.",
        L"",
        L"What the Command Code \"p-\" means:",
        L"1st character \"p\": the item is a Program.",
        L"2nd character \"-\": the Launch Name was given by the user when the item was added to the Launch List.",
        L"",
        L"Type the Command in the text box of the main window and press \"Enter\" key.",
        L"",
        Program + L" auto fills the Launch Name while you type. Usually typing the first or second character of "
                  L"the Launch Name after the Command Code is enough.",
    };
}

Lines CodeAndCommand() {
    return {
        L"Characters that can be used in a Command Code as 1st Char:",
        L"a = Additional Task of " + Program,
        L"c = Control Panel Applet",
        L"d = Directory (Folder)",
        L"e = Email Address",
        L"f = File",
        L"p = Program (Application)",
        L"r = " + Maker + L"'s Other Programs",
        L"w = Web Address (URL)",
        L"Before \"/\", \"c\", \"g\", \"i\", \"n\", \"o\", \"t\" stand for the endings \".com\", \".gov\", \".info\", "
        L"\".net\", \".org\", \".tv\".",
        L"",
        L"2nd characters of Codes and what those means:",
        L"\"-\" = Launch Name given by the user in the Launch List. Example: \"p-myPlayer\".",
        L"\".\" = predefined Launch Name. Example: \"d.Fonts\" opens the Fonts folder.",
        L"\"=\" = the complete path of the item. Example: \"p=C:\\Program Files\\Player\\Player.exe\".",
        L"\"/\" = adds \"http://www.\" and the ending named by the 1st Char. Example: \"c/" + MakerLower() +
            L"\".",
        L"",
        L"For every pair of characters and an example Command, click the \"C\" button on the main window.",
    };
}

Lines MoreCommandsForUrl() {
    const std::wstring maker = MakerLower();
    return {
        L"A web URL added to the Launch List runs by the Command \"w-\" and its Launch Name: \"w-myURL\".",
        L"",
        L"There are a few shortcut ways to launch an web URL without adding the URL in the Launch List. Here are the "
        L"examples of the Commands:",
        L"",
        L"w:www." + maker + L".com opens \"http://www." + maker + L".com\" (\":\" stands for \"http://\").",
        L"w;" + maker + L".com opens \"http://www." + maker + L".com\" (\";\" stands for \"http://www.\").",
        L"n/" + maker + L" opens \"http://www." + maker + L".net\".",
        L"c/" + maker + L" opens \"http://www." + maker + L".com\".",
        L"o/" + maker + L" opens \"http://www." + maker + L".org\".",
        L"info/" + maker + L" opens \"http://www." + maker + L".info\".",
        L"tv/" + maker + L" opens \"http://www." + maker + L".tv\".",
    };
}

Lines QuickLauncher() {
    return {
        L"QuickLauncher helps to keep 20 items of a group (Program, File, Folder etc) from Launch List handy to open "
        L"just by one mouse click.",
        L"",
        L"Show|Hide it by the small round button next to \"W\" on the main window. Drag it by its flat parts.",
        L"",
        L"Top part, from left to right:",
        L"Round button: Minimize QuickLauncher on screen.",
        L"Arrows: Items go back and forward, 20 at a time.",
        L"\"D\", \"F\", \"P\", \"E\", \"W\": show the buttons of the Directory, File, Program, Email or Web URL list.",
        L"The 20 round buttons: one click opens the item. Hover the mouse pointer on a button to see its item.",
        L"Small button: Show|Hide the bottom part.",
        L"Small button at the right end: Hide QuickLauncher.",
        L"",
        L"Bottom part:",
        L"Total items of the group, the type of the group, and the range of items showing.",
        L"The 20 labels: the position of each button's item in the list.",
        L"Small button at the right end: Hide the bottom part.",
    };
}

Lines ThingsToRemember() {
    return {
        L"#1. The program is very easy. Add an item once, then run it by its Command.",
        L"2. For online Help type \"a.Help\" and press \"Enter\".",
        L"3. A Command is a Command Code followed by a Launch Name, with no space in between.",
        L"4. A Command Code has two characters.",
        L"5. Give every item a short Launch Name that is easy to remember.",
        L"6. Two items of one group can not have the same Launch Name.",
        L"7. Launch Names are predefined for System Folders and a few Control Panel applets.",
        L"8. You don't have to type the whole Launch Name: " + Program + L" auto fills it.",
        L"9. Press \"Esc\" to empty the text box.",
        L"A. Program, File and Folder items added from a flash drive stay with the drive.",
        L"B. Email addresses and web URLs go with the flash drive too.",
        L"C. Everything you change is saved when " + Program + L" exits.",
        L"",
        L"Little more:",
        L"\".\" as 2nd character means a predefined Launch Name.",
        L"\"-\" as 2nd character means a Launch Name you gave in the Launch List.",
        L"\"=\" as 2nd character means a complete path or address.",
    };
}

std::wstring Joined(const Lines& lines) {
    std::wstring text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) text += L"\r\n";
        text += lines[i];
    }
    return text;
}

}  // namespace

std::wstring HelpTopicText(std::int16_t topic) {
    switch (topic) {
        case 0: return Joined(Introduction());
        case 1: return Joined(Install());
        case 2: return Joined(Interface());
        case 3: return Joined(WebUrl());
        case 4: return Joined(ProgramTopic());
        case 5: return Joined(AllItem());
        case 6: return Joined(ViewList());
        case 7: return Joined(TypeACommand());
        case 8: return Joined(CodeAndCommand());
        case 9: return Joined(MoreCommandsForUrl());
        case 10: return Joined(QuickLauncher());
        case 11: return Joined(ThingsToRemember());
        default: throw SubscriptOutOfRange();
    }
}

}  // namespace qs
