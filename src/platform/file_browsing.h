#pragma once
// What the drive, folder and file boxes ask of the operating system: the
// drives with their types and volume names, and the entries of one folder.
#include <cstdint>
#include <string>
#include <vector>

namespace qs {

// Drive types as the file system reports them.
enum class DriveType : std::int16_t { Unknown = 0, Removable = 1, Fixed = 2, Network = 3, CDRom = 4, RamDisk = 5 };

struct DriveEntry {
    wchar_t letter = L'C';  // upper-case
    DriveType type = DriveType::Unknown;
    // False for a drive that holds no medium; its volume name is then not read.
    bool ready = false;
    std::wstring volumeName;
};

struct FolderEntry {
    std::wstring name;
    std::int32_t attributes = 0;  // 2 hidden, 4 system, 16 folder, 32 archive
};

struct FolderListing {
    std::vector<FolderEntry> folders;  // without "." and ".."
    std::vector<FolderEntry> files;
};

class FileBrowsing {
public:
    virtual ~FileBrowsing() = default;
    // Every drive letter in use, from A to Z.
    virtual std::vector<DriveEntry> ListDrives() = 0;
    // The subfolders and files of `folder` ("C:\Tools" or "C:\"). Throws
    // SystemCallFailed when the folder cannot be read (a drive that is not
    // ready, a folder that is gone or closed to the user).
    virtual FolderListing ListFolder(const std::wstring& folder) = 0;
};

}  // namespace qs
