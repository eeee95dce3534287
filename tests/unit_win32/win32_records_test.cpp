// The registry door and the settings record through the real Windows layer:
// RegistryValue on the registry of the current user, and "Set.Morvane"
// created, saved and read back in a folder on drive C:.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "common/application.h"
#include "data/control_data.h"
#include "data/registry_value.h"
#include "win32_system.h"

namespace {

const std::wstring kTestValue = L"HKEY_CURRENT_USER\\Software\\QuillstartUnitTest\\RecordsValue";
const std::string kDefaultFixedFile = "10\r\n57\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n0\r\n";

std::wstring Registry(qs::Application& app, std::int16_t action, std::wstring key, std::wstring value = L"") {
    return qs::RegistryValue(app, action, key, value);
}

class Win32RegistryValue : public ::testing::Test {
protected:
    void TearDown() override {
        Registry(app, qs::RegistryDelete, kTestValue);
        ::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\QuillstartUnitTest");
    }
    qs::win::Win32System sys;
    qs::Application app{sys};
};

TEST_F(Win32RegistryValue, WrittenValueReadsBack) {
    EXPECT_EQ(Registry(app, qs::RegistryWrite, kTestValue, L"C:\\Quillstart\\Quillstart.exe"), L"");
    EXPECT_EQ(Registry(app, qs::RegistryRead, kTestValue), L"C:\\Quillstart\\Quillstart.exe");
    // The value really is in the registry, as another program reads it.
    wchar_t data[MAX_PATH] = {};
    DWORD size = sizeof(data);
    ASSERT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"Software\\QuillstartUnitTest", L"RecordsValue", RRF_RT_REG_SZ,
                             nullptr, data, &size),
              ERROR_SUCCESS);
    EXPECT_STREQ(data, L"C:\\Quillstart\\Quillstart.exe");
}

TEST_F(Win32RegistryValue, DeletedValueReadsAsEmpty) {
    Registry(app, qs::RegistryWrite, kTestValue, L"soon gone");
    EXPECT_EQ(Registry(app, qs::RegistryDelete, kTestValue), L"");
    EXPECT_EQ(Registry(app, qs::RegistryRead, kTestValue), L"");
    HKEY key = nullptr;
    ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\QuillstartUnitTest", 0, KEY_READ, &key), ERROR_SUCCESS);
    EXPECT_EQ(::RegQueryValueExW(key, L"RecordsValue", nullptr, nullptr, nullptr, nullptr), ERROR_FILE_NOT_FOUND);
    ::RegCloseKey(key);
}

TEST_F(Win32RegistryValue, MissingValueReadsAsEmpty) {
    EXPECT_EQ(Registry(app, qs::RegistryRead, kTestValue), L"");
    EXPECT_EQ(Registry(app, qs::RegistryRead, L"HKEY_CURRENT_USER\\Software\\NoSuchQuillstartKey\\Value"), L"");
}

TEST_F(Win32RegistryValue, FailuresAreIgnored) {
    EXPECT_EQ(Registry(app, qs::RegistryDelete, kTestValue), L"");
    EXPECT_EQ(Registry(app, qs::RegistryWrite, L"HKEY_NOWHERE\\Software\\Value", L"x"), L"");
    EXPECT_TRUE(app.MessageToShow.empty());
}

std::wstring TempFolderOnC() {
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = ::GetTempPathW(MAX_PATH, buffer);
    return std::wstring(buffer, length) + L"QuillstartRecordsTest" + std::to_wstring(::GetCurrentProcessId());
}

class Win32SetRecord : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(TempFolderOnC().substr(0, 3), L"C:\\");
        ::CreateDirectoryW(folder.c_str(), nullptr);
        autostartBefore = Registry(app, qs::RegistryRead, qs::AutostartValueName);
        Prepare(app);
    }
    void TearDown() override {
        ::DeleteFileW(file.c_str());
        ::RemoveDirectoryW(folder.c_str());
        if (autostartBefore.empty()) {
            Registry(app, qs::RegistryDelete, qs::AutostartValueName);
        } else {
            Registry(app, qs::RegistryWrite, qs::AutostartValueName, autostartBefore);
        }
    }
    void Prepare(qs::Application& a) const {
        a.ProgramFolder = L"C:\\Quillstart\\";
        a.ProgramFile = L"C:\\Quillstart\\Quillstart.exe";
        a.place.OnRemovable = false;
        a.place.FileSet = file;
    }
    std::string RawBytes() const {
        HANDLE h = ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (h == INVALID_HANDLE_VALUE) return "<missing>";
        char buffer[512] = {};
        DWORD read = 0;
        ::ReadFile(h, buffer, sizeof(buffer), &read, nullptr);
        ::CloseHandle(h);
        return std::string(buffer, read);
    }
    // Makes the file look as if it was written an hour ago; returns that time.
    ULONGLONG AgeFile() const {
        HANDLE h = ::CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                                 nullptr);
        if (h == INVALID_HANDLE_VALUE) return 0;
        FILETIME now{};
        ::GetSystemTimeAsFileTime(&now);
        ULARGE_INTEGER old{};
        old.LowPart = now.dwLowDateTime;
        old.HighPart = now.dwHighDateTime;
        old.QuadPart -= 36'000'000'000ULL;
        const FILETIME written{old.LowPart, old.HighPart};
        ::SetFileTime(h, nullptr, nullptr, &written);
        ::CloseHandle(h);
        return old.QuadPart;
    }
    ULONGLONG Modified() const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (!::GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) return 0;
        ULARGE_INTEGER time{};
        time.LowPart = data.ftLastWriteTime.dwLowDateTime;
        time.HighPart = data.ftLastWriteTime.dwHighDateTime;
        return time.QuadPart;
    }

    qs::win::Win32System sys;
    qs::Application app{sys};
    std::wstring folder = TempFolderOnC();
    std::wstring file = folder + L"\\Set.Morvane";
    std::wstring autostartBefore;
};

TEST_F(Win32SetRecord, FirstStartRecordsTheAutostartValueAndWritesNothing) {
    bool onRemovable = false;
    qs::ControlDataCreateNow(app, onRemovable);
    EXPECT_EQ(Registry(app, qs::RegistryRead, qs::AutostartValueName), L"C:\\Quillstart\\Quillstart.exe");
    EXPECT_EQ(::GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_TRUE(app.MessageToShow.empty());
}

TEST_F(Win32SetRecord, SaveAfterTheFirstStartWritesTheDefaultsExactly) {
    qs::ControlDataGet(app, app.place.OnRemovable);
    qs::ControlDataSave(app);
    EXPECT_EQ(RawBytes(), kDefaultFixedFile);
    EXPECT_TRUE(app.MessageToShow.empty());
}

TEST_F(Win32SetRecord, SecondSaveWithNothingChangedLeavesTheModifiedTimeAlone) {
    qs::ControlDataGet(app, app.place.OnRemovable);
    qs::ControlDataSave(app);
    const ULONGLONG aged = AgeFile();
    ASSERT_NE(aged, 0u);
    ASSERT_EQ(Modified(), aged);
    qs::ControlDataSave(app);
    EXPECT_EQ(Modified(), aged);
    EXPECT_EQ(RawBytes(), kDefaultFixedFile);
}

TEST_F(Win32SetRecord, SavedValuesReadBackInAFreshStart) {
    qs::ControlDataGet(app, app.place.OnRemovable);
    app.settings.MainLeft = 1500;
    app.settings.MainTop = -30;
    app.settings.LastFolder = L"C:\\Music\\";
    app.settings.ThemeIndex = 6;
    qs::ControlDataSave(app);
    EXPECT_EQ(RawBytes(), "10\r\n57\r\n1500\r\n-30\r\n\"C:\\Music\\\"\r\n-1\r\n-1\r\n-1\r\n8\r\n2\r\n6\r\n");

    qs::Application next(sys);
    Prepare(next);
    qs::ControlDataGet(next, next.place.OnRemovable);
    EXPECT_EQ(next.settings.MainLeft, 1500);
    EXPECT_EQ(next.settings.MainTop, -30);
    EXPECT_EQ(next.settings.LastFolder, L"C:\\Music\\");
    EXPECT_EQ(next.settings.ThemeIndex, 6);
    EXPECT_TRUE(next.MessageToShow.empty());
    // Read and saved again unchanged, the file is not touched.
    const ULONGLONG aged = AgeFile();
    qs::ControlDataSave(next);
    EXPECT_EQ(Modified(), aged);
}

}  // namespace
