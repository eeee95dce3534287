// The file system and whole-file text through the ANSI code page.
#include <gtest/gtest.h>

#include <windows.h>

#include <memory>
#include <string>

#include "common/failure.h"
#include "win32_system.h"

namespace {

std::wstring TempFolder() {
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = ::GetTempPathW(MAX_PATH, buffer);
    return std::wstring(buffer, length);
}

class Win32Files : public ::testing::Test {
protected:
    void SetUp() override {
        folder = TempFolder() + L"QuillstartFilesTest" + std::to_wstring(::GetCurrentProcessId());
        ::CreateDirectoryW(folder.c_str(), nullptr);
        file = folder + L"\\List.Morvane";
    }
    void TearDown() override {
        ::DeleteFileW(file.c_str());
        ::RemoveDirectoryW((folder + L"\\Sub").c_str());
        ::RemoveDirectoryW(folder.c_str());
    }
    std::string RawBytes() const {
        HANDLE h = ::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        if (h == INVALID_HANDLE_VALUE) return {};
        char buffer[256] = {};
        DWORD read = 0;
        ::ReadFile(h, buffer, sizeof(buffer), &read, nullptr);
        ::CloseHandle(h);
        return std::string(buffer, read);
    }
    qs::win::Win32System sys;
    std::wstring folder;
    std::wstring file;
};

TEST_F(Win32Files, TextRoundTripKeepsCrLfAndLatin1) {
    const std::wstring text = L"\"Caf\u00E9\",\"C:\\Tools\"\r\n\"Two\",\"2\"\r\n";
    sys.WriteTextFile(file, text);
    EXPECT_EQ(sys.ReadTextFile(file), text);
}

TEST_F(Win32Files, FileIsWrittenInTheAnsiCodePage) {
    sys.WriteTextFile(file, L"\u00E9\r\n");
    const std::string bytes = RawBytes();
    if (::GetACP() == 1252) {
        EXPECT_EQ(bytes, std::string("\xE9\r\n"));
    } else {
        // One byte per character in any single-byte code page, no BOM.
        EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
        EXPECT_LE(bytes.size(), 4u);
    }
}

TEST_F(Win32Files, WriteReplacesTheWholeFile) {
    sys.WriteTextFile(file, L"a much longer first text\r\n");
    sys.WriteTextFile(file, L"short");
    EXPECT_EQ(sys.ReadTextFile(file), L"short");
}

TEST_F(Win32Files, EmptyFileReadsAsEmptyText) {
    sys.WriteTextFile(file, L"");
    EXPECT_TRUE(sys.FileExists(file));
    EXPECT_EQ(sys.ReadTextFile(file), L"");
}

TEST_F(Win32Files, AFilesBytesAreItsRawBytesAndTheirTextIsTheTextReadMappedOrCopied) {
    const std::wstring text = L"\"Caf\u00E9\",\"C:\\Tools\"\r\n\"Two\",\"2\"\r\n";
    sys.WriteTextFile(file, text);
    for (const bool onFixedDisk : {true, false}) {
        const std::unique_ptr<qs::FileBytes> bytes = sys.ReadFileBytes(file, onFixedDisk);
        EXPECT_EQ(std::string(bytes->View()), RawBytes()) << onFixedDisk;
        EXPECT_EQ(sys.TextOfBytes(bytes->View()), sys.ReadTextFile(file)) << onFixedDisk;
        // Another program may read the file while its bytes are held.
        EXPECT_EQ(RawBytes().size(), bytes->View().size()) << onFixedDisk;
    }
    if (::GetACP() == 1252) EXPECT_TRUE(sys.OneCharacterPerByte());
}

TEST_F(Win32Files, AnEmptyFilesBytesAreNoneMappedOrCopied) {
    sys.WriteTextFile(file, L"");
    EXPECT_TRUE(sys.ReadFileBytes(file, true)->View().empty());
    EXPECT_TRUE(sys.ReadFileBytes(file, false)->View().empty());
}

TEST_F(Win32Files, ReadingTheBytesOfAMissingFileThrows) {
    EXPECT_THROW(sys.ReadFileBytes(folder + L"\\missing.txt", true), qs::SystemCallFailed);
    EXPECT_THROW(sys.ReadFileBytes(folder + L"\\missing.txt", false), qs::SystemCallFailed);
}

TEST_F(Win32Files, ReadingAMissingFileThrows) {
    EXPECT_THROW(sys.ReadTextFile(folder + L"\\missing.txt"), qs::SystemCallFailed);
}

TEST_F(Win32Files, WritingIntoAMissingFolderThrows) {
    EXPECT_THROW(sys.WriteTextFile(folder + L"\\no\\such\\file.txt", L"x"), qs::SystemCallFailed);
}

TEST_F(Win32Files, FileAndFolderTestsTellThemApart) {
    sys.WriteTextFile(file, L"x");
    EXPECT_TRUE(sys.FileExists(file));
    EXPECT_FALSE(sys.FolderExists(file));
    EXPECT_TRUE(sys.FolderExists(folder));
    EXPECT_FALSE(sys.FileExists(folder));
    EXPECT_FALSE(sys.FileExists(folder + L"\\missing.txt"));
    EXPECT_FALSE(sys.FolderExists(folder + L"\\Missing"));
}

TEST_F(Win32Files, CreateFolderMakesItAndThrowsWhenItExists) {
    const std::wstring sub = folder + L"\\Sub";
    sys.CreateFolder(sub);
    EXPECT_TRUE(sys.FolderExists(sub));
    EXPECT_THROW(sys.CreateFolder(sub), qs::SystemCallFailed);
}

TEST_F(Win32Files, CreateFolderThrowsWithoutItsParent) {
    EXPECT_THROW(sys.CreateFolder(folder + L"\\No\\Parent"), qs::SystemCallFailed);
}

TEST_F(Win32Files, DeleteFileRemovesItAndThrowsWhenMissing) {
    sys.WriteTextFile(file, L"x");
    sys.DeleteFile(file);
    EXPECT_FALSE(sys.FileExists(file));
    EXPECT_THROW(sys.DeleteFile(file), qs::SystemCallFailed);
}

TEST_F(Win32Files, AttributesOfAFolderHaveTheDirectoryBit) {
    EXPECT_EQ(sys.GetAttributes(folder) & 16, 16);
    sys.WriteTextFile(file, L"x");
    EXPECT_EQ(sys.GetAttributes(file) & 16, 0);
    EXPECT_THROW(sys.GetAttributes(folder + L"\\missing"), qs::SystemCallFailed);
}

TEST_F(Win32Files, DriveNameOfAPath) {
    EXPECT_EQ(sys.GetDriveName(L"C:\\Windows\\System32"), L"C:");
    EXPECT_EQ(sys.GetDriveName(L"d:"), L"d:");
    EXPECT_EQ(sys.GetDriveName(L"\\\\server\\share\\x"), L"");
    EXPECT_EQ(sys.GetDriveName(L"relative\\path"), L"");
}

TEST_F(Win32Files, DriveCIsAFixedDrive) {
    const qs::DriveInfo drive = sys.GetDrive(L"C:");
    EXPECT_EQ(drive.letter, L"C");
    EXPECT_EQ(drive.path, L"C:");
    EXPECT_EQ(drive.type, qs::DriveType::Fixed);
    EXPECT_EQ(sys.GetDrive(L"c:").letter, L"C");
}

TEST_F(Win32Files, MissingDriveThrows) {
    // Find a letter that names no drive here.
    const DWORD drives = ::GetLogicalDrives();
    for (int i = 25; i >= 3; --i) {
        if ((drives & (1u << i)) != 0) continue;
        const std::wstring name = std::wstring(1, static_cast<wchar_t>(L'A' + i)) + L":";
        EXPECT_THROW(sys.GetDrive(name), qs::SystemCallFailed);
        return;
    }
    FAIL() << "every drive letter is in use";
}

TEST_F(Win32Files, NonDriveNameThrows) { EXPECT_THROW(sys.GetDrive(L""), qs::SystemCallFailed); }

TEST_F(Win32Files, ApplicationFolderEndsInABackslashAndHoldsTheExe) {
    const std::wstring app = sys.ApplicationFolder();
    ASSERT_FALSE(app.empty());
    EXPECT_EQ(app.back(), L'\\');
    wchar_t exe[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, exe, MAX_PATH);
    EXPECT_EQ(std::wstring(exe).substr(0, app.size()), app);
}

}  // namespace
