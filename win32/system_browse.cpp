// The drives and folder entries for the drive, folder and file boxes.
#include "common/failure.h"
#include "drive_type.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

namespace {

// While it lives, Windows answers a drive with no medium with an error
// instead of asking the user to insert a disk.
class QuietDriveErrors {
public:
    QuietDriveErrors() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &previous_); }
    ~QuietDriveErrors() { ::SetThreadErrorMode(previous_, nullptr); }
    QuietDriveErrors(const QuietDriveErrors&) = delete;
    QuietDriveErrors& operator=(const QuietDriveErrors&) = delete;

private:
    DWORD previous_ = 0;
};

}  // namespace

std::vector<DriveEntry> Win32System::ListDrives() {
    QuietDriveErrors quiet;
    std::vector<DriveEntry> drives;
    const DWORD mask = ::GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if ((mask & (1u << i)) == 0) continue;
        const wchar_t letter = static_cast<wchar_t>(L'A' + i);
        const wchar_t root[] = {letter, L':', L'\\', L'\0'};
        const UINT type = ::GetDriveTypeW(root);
        if (type == DRIVE_NO_ROOT_DIR) continue;
        DriveEntry drive;
        drive.letter = letter;
        drive.type = DriveTypeFromSystem(type);
        // A network share may be slow to answer: it is taken as ready, unnamed.
        if (type == DRIVE_REMOTE) {
            drive.ready = true;
        } else {
            wchar_t name[MAX_PATH + 1] = {};
            drive.ready = ::GetVolumeInformationW(root, name, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0) != 0;
            if (drive.ready) drive.volumeName = name;
        }
        drives.push_back(drive);
    }
    return drives;
}

FolderListing Win32System::ListFolder(const std::wstring& folder) {
    QuietDriveErrors quiet;
    const std::wstring pattern = (!folder.empty() && folder.back() == L'\\' ? folder : folder + L"\\") + L"*";
    WIN32_FIND_DATAW found{};
    FindHandle search(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr, 0));
    if (!search) {
        const DWORD error = ::GetLastError();
        if (error == ERROR_FILE_NOT_FOUND) return {};
        ThrowSystemError("FindFirstFileExW", error);
    }
    FolderListing listing;
    do {
        const std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        FolderEntry entry{name, static_cast<std::int32_t>(found.dwFileAttributes & 0xFFFF)};
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            listing.folders.push_back(entry);
        } else {
            listing.files.push_back(entry);
        }
    } while (::FindNextFileW(search.Get(), &found));
    return listing;
}

}  // namespace qs::win
