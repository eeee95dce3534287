// The file system with the file-system object's rules, and whole-file text
// in the machine's 8-bit code page.
#include <string>

#include "ansi_text.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "drive_type.h"
#include "mapped_file.h"
#include "system_error.h"
#include "win32_system.h"

namespace qs::win {

namespace {

FileHandle OpenToRead(const std::wstring& path) {
    FileHandle file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) ThrowLastError("CreateFileW");
    return file;
}

std::size_t SizeToRead(HANDLE file) {
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file, &size)) ThrowLastError("GetFileSizeEx");
    if (size.QuadPart > 0x7FFFFFFF) throw SystemCallFailed("file too large to read");
    return static_cast<std::size_t>(size.QuadPart);
}

std::string ReadWhole(HANDLE file, std::size_t size) {
    std::string bytes(size, '\0');
    DWORD read = 0;
    if (!bytes.empty() && !::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) {
        ThrowLastError("ReadFile");
    }
    bytes.resize(read);
    return bytes;
}

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

// The attribute bits the file-system object reports.
constexpr DWORD kReportedAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                      FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_ARCHIVE |
                                      FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_COMPRESSED;

}  // namespace

std::wstring Win32System::GetDriveName(const std::wstring& path) {
    if (path.size() >= 2 && IsLetter(path[0]) && path[1] == L':') return path.substr(0, 2);
    return L"";
}

DriveInfo Win32System::GetDrive(const std::wstring& driveName) {
    if (driveName.empty() || !IsLetter(driveName[0]) || (driveName.size() > 1 && driveName[1] != L':')) {
        throw SystemCallFailed("GetDrive: not a drive name");
    }
    const std::wstring letter(1, UpperChar(driveName[0]));
    const std::wstring root = letter + L":\\";
    const UINT type = ::GetDriveTypeW(root.c_str());
    if (type == DRIVE_NO_ROOT_DIR) throw SystemCallFailed("GetDrive: no such drive");
    return {letter, letter + L":", DriveTypeFromSystem(type)};
}

bool Win32System::FileExists(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Win32System::FolderExists(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void Win32System::CreateFolder(const std::wstring& path) {
    if (!::CreateDirectoryW(path.c_str(), nullptr)) ThrowLastError("CreateDirectoryW");
}

std::int32_t Win32System::GetAttributes(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) ThrowLastError("GetFileAttributesW");
    return static_cast<std::int32_t>(attributes & kReportedAttributes);
}

void Win32System::DeleteFile(const std::wstring& path) {
    if (!::DeleteFileW(path.c_str())) ThrowLastError("DeleteFileW");
}

std::wstring Win32System::ReadTextFile(const std::wstring& path) {
    FileHandle file = OpenToRead(path);
    return FromAnsi(ReadWhole(file.Get(), SizeToRead(file.Get())));
}

std::wstring Win32System::TextOfBytes(std::string_view bytes) { return FromAnsi(bytes); }

bool Win32System::OneCharacterPerByte() {
    // Every code page Windows runs as the ANSI one keeps the ASCII
    // characters where they are; a single-byte one maps each byte to one
    // character.
    static const bool single = [] {
        CPINFO info{};
        return ::GetCPInfo(CP_ACP, &info) != FALSE && info.MaxCharSize == 1;
    }();
    return single;
}

std::unique_ptr<FileBytes> Win32System::ReadFileBytes(const std::wstring& path, bool onFixedDisk) {
    FileHandle file = OpenToRead(path);
    const std::size_t size = SizeToRead(file.Get());
    // A file on a fixed disk is mapped. One on a drive that can go away
    // while it is read is read into memory, since a view of it would fault
    // once the drive is gone; an empty file cannot be mapped.
    if (size > 0 && onFixedDisk) return std::make_unique<MappedFile>(file.Get(), size);
    return std::make_unique<ReadBytes>(ReadWhole(file.Get(), size));
}

void Win32System::WriteTextFile(const std::wstring& path, const std::wstring& text) {
    const std::string bytes = ToAnsi(text);
    FileHandle file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) ThrowLastError("CreateFileW");
    DWORD written = 0;
    if (!bytes.empty() && !::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) {
        ThrowLastError("WriteFile");
    }
    if (written != bytes.size()) throw SystemCallFailed("WriteFile: short write");
}

}  // namespace qs::win
