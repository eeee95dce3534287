// Every message the program can show, compared with the texts as the
// document of the program's messages writes them.
#include <gtest/gtest.h>

#include "common/maker.h"
#include "doc_text.h"
#include "shown_messages.h"
#include "startup/active_message.h"

namespace {

using qs::MessageEntry;
using qs::test::Doc;
using qs::test::ProgramEnded;
using qs::test::ShownMessages;
using qs::test::TestApp;

const std::wstring ExitNow = L"\r\n\r\nQuillstart will exit now.";

// Shows a fatal key, answers the dialog, and returns the body it showed.
std::wstring FatalBody(const std::wstring& key) {
    TestApp t;
    t.app.MessageToShow = key;
    EXPECT_THROW(qs::MessageEnd(t.app), ProgramEnded);
    const auto shown = ShownMessages(t);
    EXPECT_EQ(shown.size(), 1u);
    if (shown.empty()) return L"";
    EXPECT_EQ(shown[0].entry, MessageEntry::End);
    return shown[0].body;
}

// Shows an ordinary key and returns the body it showed.
std::wstring OrdinaryBody(const std::wstring& key) {
    TestApp t;
    t.app.MessageToShow = key;
    qs::MessageProcess(t.app);
    const auto shown = ShownMessages(t);
    EXPECT_EQ(shown.size(), 1u);
    if (shown.empty()) return L"";
    EXPECT_EQ(shown[0].entry, MessageEntry::Process);
    EXPECT_EQ(shown[0].key, key);
    return shown[0].body;
}

}  // namespace

TEST(MessageTexts, FatalSmallScreen) {
    EXPECT_EQ(
        FatalBody(L"MessageSmallScreen"),
        Doc(LR"doc("Screen resolution must be at least 1200x800 for Quillstart to run correctly. Since your screen resolution doesn't meet the requirement, Quillstart will exit now.")doc") +
            ExitNow);
}

TEST(MessageTexts, FatalNeedSriptRuntime) {
    EXPECT_EQ(
        FatalBody(L"MessageNeedSriptRuntime"),
        Doc(LR"doc("Your machine need Microsoft Scripting Runtime update to run this Program." CRLF CRLF "Please download the installation package of the Program which includes all necessary files need to run it." CRLF CRLF "Installation package is available at ")doc") +
            qs::maker::WebSite + L"." + ExitNow);
}

TEST(MessageTexts, FatalMyPathNotFound) {
    EXPECT_EQ(
        FatalBody(L"MessageMyPathNotFound"),
        Doc(LR"doc("Did you rename 'Quillstart.exe' or renamed or moved the folder of 'Quillstart.exe' or any folder on the path?" CRLF CRLF "Are you trying to run the program with a Program Launcher without even using the program at least once?" CRLF CRLF "Whatever the problem is, to solve it you need to do the followings:" CRLF CRLF "     1. Rename back the file name to 'Quillstart.exe' if renamed." CRLF "     2. Run the program at least once without using any Program Launcher.")doc") +
            ExitNow);
}

TEST(MessageTexts, FatalMediaUnknown) {
    EXPECT_EQ(FatalBody(L"MessageMediaUnknown"),
              Doc(LR"doc("The Program encountered a problem and will exit now.")doc") + ExitNow);
}

TEST(MessageTexts, FatalMediaCDRom) {
    EXPECT_EQ(
        FatalBody(L"MessageMediaCDRom"),
        Doc(LR"doc("This Program runs from Removable Media, such as, Floppy or Flash Drive but not from CD/DVD-ROM." CRLF CRLF "Program will exit now.")doc") +
            ExitNow);
}

TEST(MessageTexts, FatalProgFileNameChanged) {
    EXPECT_EQ(
        FatalBody(L"MessageProgFileNameChanged"),
        Doc(LR"doc("This program doesn't run if the name of the program file is changed. Original program file name is:" CRLF CRLF "Quillstart.exe" CRLF CRLF "If you changed the name of the file then please change it back to it's original name.")doc") +
            ExitNow);
}

TEST(MessageTexts, OrdinarySystemItemNotAllowed) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageSystemItemNotAllowed"),
        Doc(LR"doc("System Folder or any File/Folder in it can not be opened or added to Launch List." CRLF CRLF "However, some Special Folders can be opened with Predefined Commands. Please check Code and Command.")doc"));
}

TEST(MessageTexts, OrdinaryFisrtStart) {
    EXPECT_EQ(OrdinaryBody(L"MessageFisrtStart"),
              Doc(LR"doc("If you missed it, main program window is at the top left corner of your screen. You can drag it by clicking left mouse button on small flat part at the right of the window or at the middle of 1st and 2nd button." CRLF CRLF "Buttons from left :" CRLF CRLF "The left most round button Minimize|Maximize the main window keeping the window on screen. If the window is minimized, only the round button stays in view which also can be dragged as the main window." CRLF CRLF ""+"  Show|Hide Add To Launch List Pane." CRLF "">"  Show|Hide Open (File|App) Pane." CRLF ""L"  Show|Hide Launch List Pane." CRLF ""C"  Show|Hide Code And Command Pane." CRLF ""P"  Show|Hide Preferences Pane." CRLF ""?"  Show|Hide Help." CRLF CRLF ""W"  Show/Hide Add Web URL (location) Pane." CRLF "Small round button next to "W" button shows the "QuickLauncher" window just in case anybody want it." CRLF CRLF ""M"  Minimize application window In Tray. To bring it back just hover mouse pointer over tray icon." CRLF ""X"  Exit button." CRLF CRLF "You will type Command in the Text Box (in between left most round button and "+" button) and press "Enter" on your keyboard to run the Command. For more information on Command, Command Code and Launch Name please check Help. Also please have a look on "Code and Command" Pane." CRLF CRLF "Worth to mention, you don't have to type the complete Launch Name in a Command, Quillstart auto fills Launch Name part of the Command, that might help a little." CRLF CRLF "Hope You Enjoy." CRLF CRLF "Morvane" CRLF)doc") +
                  qs::maker::MailAddress);
}

TEST(MessageTexts, OrdinaryXXUnsafeItem) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageXXUnsafeItem"),
        Doc(LR"doc("Quillstart can't add to list files and folders with some specific attribute or extension. This item can't be added to the list.")doc"));
}

TEST(MessageTexts, OrdinaryFamilyProgram) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageFamilyProgram"),
        Doc(LR"doc("This is Morvane's Program." CRLF CRLF "There is no need to add this program in the List. To run Morvane's program that you already have, type "r." as CommandCode and the program name (such as, "Quillstart") as LaunchName and press enter on your keyboard." CRLF CRLF "Here is an example:" CRLF CRLF "To launch "Quillstart" type "r.Quillstart" and press "Enter" key.")doc"));
}

TEST(MessageTexts, OrdinaryWrongPathToAdd) {
    EXPECT_EQ(
        OrdinaryBody(L"WrongPathToAdd"),
        Doc(LR"doc("To add a Program, File or Folder in your Launch List, those must be on a Fixed Drive or on the same Drive that Quillstart is running from. The selected item is not, so it can't be added.")doc"));
}

TEST(MessageTexts, OrdinaryPathAlreadyListed) {
    TestApp t;
    t.app.message.DuplicateItemName = L"Launch Me";
    t.app.MessageToShow = L"MessagePathAlreadyListed";
    qs::MessageProcess(t.app);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(
        ShownMessages(t)[0].body,
        Doc(LR"doc("Selected item has already been included in the List. Launch Name of the selected item is:" CRLF CRLF)doc") +
            L"Launch Me");
}

TEST(MessageTexts, OrdinaryNameAlreadyListed) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageNameAlreadyListed"),
        Doc(LR"doc("The name you typed is listed name for another item in it's group." CRLF CRLF "Two different items in the same group (Groups : Program, File, Folder, Web Page, Email Address) can't be listed with same name. Type a different name please.")doc"));
}

TEST(MessageTexts, OrdinaryDriveNotReady) {
    EXPECT_EQ(OrdinaryBody(L"MessageDriveNotReady"),
              Doc(LR"doc("The Drive you are trying to select is not ready.")doc"));
}

TEST(MessageTexts, OrdinaryExePathNotFound) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageExePathNotFound"),
        Doc(LR"doc("Could not find the Path of the selected Program, reason undetermined." CRLF "It can not be added to List.")doc"));
}

TEST(MessageTexts, OrdinaryShortcutCreated) {
    EXPECT_EQ(OrdinaryBody(L"MessageShortcutCreated"),
              Doc(LR"doc("A shortcut of Quillstart has been created and placed on your Desktop.")doc"));
}

TEST(MessageTexts, OrdinaryShortcutDeleted) {
    EXPECT_EQ(OrdinaryBody(L"MessageShortcutDeleted"),
              Doc(LR"doc("Shortcut of Quillstart has been deleted from your Desktop.")doc"));
}

TEST(MessageTexts, OrdinaryGetUserName) {
    EXPECT_EQ(
        OrdinaryBody(L"MessageGetUserName"),
        Doc(LR"doc("Thank you for trying Quillstart." CRLF CRLF "Just to become friends you can type your name above - completely optional! If you do, please use only alphabets." CRLF CRLF "morvane" CRLF)doc") +
            qs::maker::MailAddress);
}

TEST(MessageTexts, OrdinaryChangeUserName) {
    EXPECT_EQ(OrdinaryBody(L"MessageChangeUserName"),
              Doc(LR"doc("Please type your name above. Use only alphabets please.")doc"));
}
