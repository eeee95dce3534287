// The registry by full path, on a test key of the current user.
#include <gtest/gtest.h>

#include "common/failure.h"
#include "registry_path.h"
#include "win32_system.h"

namespace {

const std::wstring kKey = L"HKEY_CURRENT_USER\\Software\\QuillstartUnitTest\\";

class Win32Registry : public ::testing::Test {
protected:
    void TearDown() override {
        try {
            sys.RegDelete(kKey + L"Value");
        } catch (const qs::SystemCallFailed&) {
            // Already gone: the test deleted it itself.
        }
        ::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\QuillstartUnitTest");
    }
    qs::win::Win32System sys;
};

TEST_F(Win32Registry, WrittenValueReadsBack) {
    sys.RegWrite(kKey + L"Value", L"C:\\Tools\\Quillstart.exe");
    EXPECT_EQ(sys.RegRead(kKey + L"Value"), L"C:\\Tools\\Quillstart.exe");
}

TEST_F(Win32Registry, ShortRootNameReachesTheSameValue) {
    sys.RegWrite(kKey + L"Value", L"abc");
    EXPECT_EQ(sys.RegRead(L"HKCU\\Software\\QuillstartUnitTest\\Value"), L"abc");
}

TEST_F(Win32Registry, OverwriteReplacesTheValue) {
    sys.RegWrite(kKey + L"Value", L"first");
    sys.RegWrite(kKey + L"Value", L"second");
    EXPECT_EQ(sys.RegRead(kKey + L"Value"), L"second");
}

TEST_F(Win32Registry, DeletedValueCannotBeRead) {
    sys.RegWrite(kKey + L"Value", L"gone soon");
    sys.RegDelete(kKey + L"Value");
    EXPECT_THROW(sys.RegRead(kKey + L"Value"), qs::SystemCallFailed);
}

TEST_F(Win32Registry, ReadingAMissingValueThrows) {
    EXPECT_THROW(sys.RegRead(kKey + L"NoSuchValue"), qs::SystemCallFailed);
    EXPECT_THROW(sys.RegRead(L"HKEY_CURRENT_USER\\Software\\NoSuchKeyForQuillstart\\Value"), qs::SystemCallFailed);
}

TEST_F(Win32Registry, DeletingAMissingValueThrows) {
    EXPECT_THROW(sys.RegDelete(kKey + L"NoSuchValue"), qs::SystemCallFailed);
}

TEST_F(Win32Registry, UnknownRootThrows) {
    EXPECT_THROW(sys.RegRead(L"HKEY_NOWHERE\\Software\\Value"), qs::SystemCallFailed);
}

TEST(RegistryPath, SplitsRootKeyAndValueName) {
    const auto path = qs::win::ParseRegistryPath(
        L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\Morvane Quillstart");
    EXPECT_EQ(path.root, HKEY_CURRENT_USER);
    EXPECT_EQ(path.subKey, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    EXPECT_EQ(path.valueName, L"Morvane Quillstart");
}

TEST(RegistryPath, TrailingBackslashNamesTheDefaultValue) {
    const auto path = qs::win::ParseRegistryPath(L"hklm\\Software\\Classes\\");
    EXPECT_EQ(path.root, HKEY_LOCAL_MACHINE);
    EXPECT_EQ(path.subKey, L"Software\\Classes");
    EXPECT_EQ(path.valueName, L"");
}

TEST(RegistryPath, PathWithoutKeyThrows) {
    EXPECT_THROW(qs::win::ParseRegistryPath(L"HKCU\\Value"), qs::SystemCallFailed);
    EXPECT_THROW(qs::win::ParseRegistryPath(L"HKCU"), qs::SystemCallFailed);
}

}  // namespace
