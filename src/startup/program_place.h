#pragma once
// Where the program runs and where its data lives, decided once at start.
#include <cstdint>
#include <string>

namespace qs {

struct ProgramPlace {
    bool StartingUp = false;
    std::wstring UserNameEnv;
    std::wstring ComputerName;
    std::wstring ProgramDriveLetter;
    std::wstring ProgramDriveLetterUpper;
    std::int16_t WindowsFolderLength = 0;
    std::wstring WindowsRoot;
    std::wstring ProgramRoot;
    bool OnRemovable = false;
    // The desktop's work area, in pixels.
    std::int32_t WorkAreaLeft = 0;
    std::int32_t WorkAreaTop = 0;
    std::int32_t WorkAreaRight = 0;
    std::int32_t WorkAreaBottom = 0;
};

// Every data file's full path.
struct DataFiles {
    std::wstring FileGuru;
    std::wstring FileKinfold;
    std::wstring FileComData;
    std::wstring FileListMail;
    std::wstring FileListWeb;
    std::wstring FileUsbData;
    std::wstring FileListUsbFile;
    std::wstring FileListUsbFold;
    std::wstring FileListUsbProg;
    std::wstring FileSet;
    std::wstring FileListFile;
    std::wstring FileListFold;
    std::wstring FileListProg;
};

}  // namespace qs
