#include "startup/message_texts.h"

#include <utility>

#include "common/maker.h"

namespace qs {

namespace {

const std::wstring CRLF = L"\r\n";

std::wstring NeedScriptRuntimeBody() {
    return L"Your machine need Microsoft Scripting Runtime update to run this Program." + CRLF + CRLF +
           L"Please download the installation package of the Program which includes all necessary files need to "
           L"run it." +
           CRLF + CRLF + L"Installation package is available at " + maker::WebSite + L".";
}

// A message's key and how its text is made: a look-up builds only the text
// of the message it finds.
struct FatalEntry {
    const wchar_t* key;
    std::wstring (*body)();
};

// The fatal messages, in the order they are looked up.
constexpr FatalEntry FatalTable[] = {
    {L"MessageSmallScreen",
     []() -> std::wstring {
         return L"Screen resolution must be at least 1200x800 for Quillstart to run correctly. Since your screen "
                L"resolution doesn't meet the requirement, Quillstart will exit now.";
     }},
    {L"MessageNeedSriptRuntime", []() -> std::wstring { return NeedScriptRuntimeBody(); }},
    {L"MessageMyPathNotFound",
     []() -> std::wstring {
         return L"Did you rename 'Quillstart.exe' or renamed or moved the folder of 'Quillstart.exe' or any folder on "
                L"the path?" +
                CRLF + CRLF +
                L"Are you trying to run the program with a Program Launcher without even using the program at least "
                L"once?" +
                CRLF + CRLF + L"Whatever the problem is, to solve it you need to do the followings:" + CRLF + CRLF +
                L"     1. Rename back the file name to 'Quillstart.exe' if renamed." + CRLF +
                L"     2. Run the program at least once without using any Program Launcher.";
     }},
    {L"MessageMediaUnknown", []() -> std::wstring { return L"The Program encountered a problem and will exit now."; }},
    {L"MessageMediaCDRom",
     []() -> std::wstring {
         return L"This Program runs from Removable Media, such as, Floppy or Flash Drive but not from CD/DVD-ROM." +
                CRLF + CRLF + L"Program will exit now.";
     }},
    {L"MessageProgFileNameChanged",
     []() -> std::wstring {
         return L"This program doesn't run if the name of the program file is changed. Original program file name is:" +
                CRLF + CRLF + L"Quillstart.exe" + CRLF + CRLF +
                L"If you changed the name of the file then please change it back to it's original name.";
     }},
};

std::wstring FirstStartBody() {
    return L"If you missed it, main program window is at the top left corner of your screen. You can drag it by "
           L"clicking left mouse button on small flat part at the right of the window or at the middle of 1st and "
           L"2nd button." +
           CRLF + CRLF + L"Buttons from left :" + CRLF + CRLF +
           L"The left most round button Minimize|Maximize the main window keeping the window on screen. If the "
           L"window is minimized, only the round button stays in view which also can be dragged as the main "
           L"window." +
           CRLF + CRLF + L"\"+\"  Show|Hide Add To Launch List Pane." + CRLF +
           L"\">\"  Show|Hide Open (File|App) Pane." + CRLF + L"\"L\"  Show|Hide Launch List Pane." + CRLF +
           L"\"C\"  Show|Hide Code And Command Pane." + CRLF + L"\"P\"  Show|Hide Preferences Pane." + CRLF +
           L"\"?\"  Show|Hide Help." + CRLF + CRLF + L"\"W\"  Show/Hide Add Web URL (location) Pane." + CRLF +
           L"Small round button next to \"W\" button shows the \"QuickLauncher\" window just in case anybody want "
           L"it." +
           CRLF + CRLF +
           L"\"M\"  Minimize application window In Tray. To bring it back just hover mouse pointer over tray icon." +
           CRLF + L"\"X\"  Exit button." + CRLF + CRLF +
           L"You will type Command in the Text Box (in between left most round button and \"+\" button) and press "
           L"\"Enter\" on your keyboard to run the Command. For more information on Command, Command Code and Launch "
           L"Name please check Help. Also please have a look on \"Code and Command\" Pane." +
           CRLF + CRLF +
           L"Worth to mention, you don't have to type the complete Launch Name in a Command, Quillstart auto fills "
           L"Launch Name part of the Command, that might help a little." +
           CRLF + CRLF + L"Hope You Enjoy." + CRLF + CRLF + L"Morvane" + CRLF + maker::MailAddress;
}

ProcessMessage Plain(std::wstring body) { return {L"", std::move(body), L"OK", L""}; }

// An ordinary message's key and how it is made; the duplicate's Launch Name
// is what one of them shows.
struct OrdinaryEntry {
    const wchar_t* key;
    ProcessMessage (*message)(const std::wstring& duplicateItemName);
};

// The ordinary messages, in the order they are looked up.
constexpr OrdinaryEntry OrdinaryTable[] = {
    {L"MessageSystemItemNotAllowed",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(L"System Folder or any File/Folder in it can not be opened or added to Launch List." + CRLF +
                      CRLF +
                      L"However, some Special Folders can be opened with Predefined Commands. Please check Code and "
                      L"Command.");
     }},
    {L"MessageFisrtStart", [](const std::wstring&) -> ProcessMessage { return Plain(FirstStartBody()); }},
    {L"MessageXXUnsafeItem",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(
             L"Quillstart can't add to list files and folders with some specific attribute or extension. This item "
             L"can't be added to the list.");
     }},
    {L"MessageFamilyProgram",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(
             L"This is Morvane's Program." + CRLF + CRLF +
             L"There is no need to add this program in the List. To run Morvane's program that you already have, "
             L"type \"r.\" as CommandCode and the program name (such as, \"Quillstart\") as LaunchName and press "
             L"enter on your keyboard." +
             CRLF + CRLF + L"Here is an example:" + CRLF + CRLF +
             L"To launch \"Quillstart\" type \"r.Quillstart\" and press \"Enter\" key.");
     }},
    {L"WrongPathToAdd",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(
             L"To add a Program, File or Folder in your Launch List, those must be on a Fixed Drive or on the same "
             L"Drive that Quillstart is running from. The selected item is not, so it can't be added.");
     }},
    {L"MessagePathAlreadyListed",
     [](const std::wstring& duplicateItemName) -> ProcessMessage {
         return Plain(L"Selected item has already been included in the List. Launch Name of the selected item is:" +
                      CRLF + CRLF + duplicateItemName);
     }},
    {L"MessageNameAlreadyListed",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(
             L"The name you typed is listed name for another item in it's group." + CRLF + CRLF +
             L"Two different items in the same group (Groups : Program, File, Folder, Web Page, Email Address) "
             L"can't be listed with same name. Type a different name please.");
     }},
    {L"MessageDriveNotReady",
     [](const std::wstring&) -> ProcessMessage { return Plain(L"The Drive you are trying to select is not ready."); }},
    {L"MessageExePathNotFound",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(L"Could not find the Path of the selected Program, reason undetermined." + CRLF +
                      L"It can not be added to List.");
     }},
    {L"MessageShortcutCreated",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(L"A shortcut of Quillstart has been created and placed on your Desktop.");
     }},
    {L"MessageShortcutDeleted",
     [](const std::wstring&) -> ProcessMessage {
         return Plain(L"Shortcut of Quillstart has been deleted from your Desktop.");
     }},
    {L"MessageGetUserName",
     [](const std::wstring&) -> ProcessMessage {
         return {
             L"Your Name Please",
             L"Thank you for trying Quillstart." + CRLF + CRLF +
                 L"Just to become friends you can type your name above - completely optional! If you do, please use "
                 L"only alphabets." +
                 CRLF + CRLF + L"morvane" + CRLF + maker::MailAddress,
             L"Cancel", L"Input012"};
     }},
    {L"MessageChangeUserName",
     [](const std::wstring&) -> ProcessMessage {
         return {L"New Name Please", L"Please type your name above. Use only alphabets please.", L"OKCancel",
                 L"Input012"};
     }},
};

}  // namespace

std::optional<std::wstring> FatalMessageBody(const std::wstring& key) {
    for (const FatalEntry& entry : FatalTable)
        if (key == entry.key) return entry.body();
    return std::nullopt;
}

std::optional<ProcessMessage> OrdinaryMessage(const std::wstring& key, const std::wstring& duplicateItemName) {
    for (const OrdinaryEntry& entry : OrdinaryTable)
        if (key == entry.key) return entry.message(duplicateItemName);
    return std::nullopt;
}

}  // namespace qs
