#pragma once
// Where the program runs and where its data files lie, decided once at start.
#include <string>

namespace qs {

struct ProgramPlace {
    // True from the first statement of start-up until the theme exists.
    bool StartingUp = false;
    // True when the program runs from a removable (flash) drive.
    bool OnRemovable = false;
    // The program drive's letter as the system gives it, and upper-cased.
    std::wstring ProgramDriveLetter;
    std::wstring ProgramDriveLetterUpper;
    // Leading parts through the first backslash, as "C:\".
    std::wstring WindowsRoot;
    std::wstring ProgramRoot;
    std::wstring ComputerName;

    // Family folder.
    std::wstring FileGuru;
    std::wstring FileKinfold;
    // Shared data folder.
    std::wstring FileComData;
    std::wstring FileListMail;
    std::wstring FileListWeb;
    std::wstring FileUsbData;
    std::wstring FileListUsbFile;
    std::wstring FileListUsbFold;
    std::wstring FileListUsbProg;
    // Computer data folder.
    std::wstring FileSet;
    std::wstring FileListFile;
    std::wstring FileListFold;
    std::wstring FileListProg;
};

// The data folders, in the order in which each one's parent exists first.
struct DataFolders {
    std::wstring maker;
    std::wstring family;
    std::wstring applications;
    std::wstring sharedData;
    std::wstring computer;
    std::wstring computerData;
};

// The folders for this run: under ProgramRoot on a flash drive, under
// WindowsRoot otherwise.
DataFolders DataFoldersFor(const ProgramPlace& place);
// Sets every file path of `place` from its folders.
void AssignDataFilePaths(ProgramPlace& place);

}  // namespace qs
