#pragma once
// Where the program runs and where its data files lie, decided once at start.
#include <cstdint>
#include <string>

#include "platform/system.h"

namespace qs {

struct ProgramPlace {
    // True from the first statement of start-up until the theme exists.
    bool StartingUp = false;
    // True when the program runs from a removable (flash) drive.
    bool OnRemovable = false;
    // The program drive's letter as the system gives it, and upper-cased.
    std::wstring ProgramDriveLetter;
    std::wstring ProgramDriveLetterUpper;
    // The program's drive as the system answered at start, and the drive
    // name it was asked by: its type is not asked twice.
    std::wstring ProgramDriveName;
    DriveInfo ProgramDrive;
    // Leading parts through the first backslash, as "C:\".
    std::wstring WindowsRoot;
    std::wstring ProgramRoot;
    std::wstring ComputerName;
    // The environment's "username".
    std::wstring UserNameEnv;
    std::int16_t WindowsFolderLength = 0;
    // The desktop's work area, in pixels.
    std::int32_t WorkAreaLeft = 0;
    std::int32_t WorkAreaTop = 0;
    std::int32_t WorkAreaRight = 0;
    std::int32_t WorkAreaBottom = 0;

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
// Set the paths of the files in the family, shared data and computer data
// folders.
void AssignFamilyFilePaths(ProgramPlace& place, const DataFolders& folders);
void AssignSharedFilePaths(ProgramPlace& place, const DataFolders& folders);
void AssignComputerFilePaths(ProgramPlace& place, const DataFolders& folders);
// Sets every file path of `place` from its folders.
void AssignDataFilePaths(ProgramPlace& place);

}  // namespace qs
