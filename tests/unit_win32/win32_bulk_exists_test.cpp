// The Windows existence tests in bulk against the single tests, on a real
// tree: every answer must be the same, whatever the form of the path.
#include <gtest/gtest.h>

#include <windows.h>

#include <random>
#include <string>
#include <vector>

#include "text_views.h"
#include "win32_system.h"

namespace {

std::wstring TempFolder() {
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = ::GetTempPathW(MAX_PATH, buffer);
    return std::wstring(buffer, length);
}

// The other case of a letter, as Windows maps it.
wchar_t FlipCase(wchar_t c) {
    wchar_t text[2] = {c, 0};
    if (::IsCharUpperW(c)) {
        ::CharLowerBuffW(text, 1);
    } else {
        ::CharUpperBuffW(text, 1);
    }
    return text[0];
}

class Win32BulkExists : public ::testing::Test {
protected:
    void SetUp() override {
        root = TempFolder() + L"QuillstartBulkTest" + std::to_wstring(::GetCurrentProcessId());
        MakeFolder(root);
    }
    void TearDown() override { RemoveTree(root); }

    void MakeFolder(const std::wstring& path) { ASSERT_TRUE(::CreateDirectoryW(path.c_str(), nullptr)) << path.size(); }
    void MakeFile(const std::wstring& path, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE) << path.size();
        ::CloseHandle(file);
    }
    static void RemoveTree(const std::wstring& folder) {
        WIN32_FIND_DATAW entry{};
        const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &entry);
        if (search != INVALID_HANDLE_VALUE) {
            do {
                const std::wstring name = entry.cFileName;
                if (name == L"." || name == L"..") continue;
                const std::wstring path = folder + L"\\" + name;
                ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
                if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                    RemoveTree(path);
                } else {
                    ::DeleteFileW(path.c_str());
                }
            } while (::FindNextFileW(search, &entry));
            ::FindClose(search);
        }
        ::RemoveDirectoryW(folder.c_str());
    }

    // Each answer of the bulk tests against the single test of its path.
    void ExpectSameAnswers(const std::vector<std::wstring>& paths) {
        const std::vector<bool> files = sys.FilesExist(qs::test::Views(paths));
        const std::vector<bool> folders = sys.FoldersExist(qs::test::Views(paths));
        ASSERT_EQ(files.size(), paths.size());
        ASSERT_EQ(folders.size(), paths.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            EXPECT_EQ(files[i], sys.FileExists(paths[i])) << "file test, path " << i;
            EXPECT_EQ(folders[i], sys.FolderExists(paths[i])) << "folder test, path " << i;
            found += files[i] || folders[i] ? 1 : 0;
        }
    }

    qs::win::Win32System sys;
    std::wstring root;
    int found = 0;
};

TEST_F(Win32BulkExists, EveryFormOfPathIsAnsweredAsTheSingleTestAnswersIt) {
    const std::wstring f = root + L"\\Folder";
    MakeFolder(f);
    MakeFolder(f + L"\\Sub");
    MakeFolder(f + L"\\Hidden Dir");
    ::SetFileAttributesW((f + L"\\Hidden Dir").c_str(), FILE_ATTRIBUTE_HIDDEN);
    MakeFile(f + L"\\a.txt");
    MakeFile(f + L"\\B.TXT");
    MakeFile(f + L"\\hidden.txt", FILE_ATTRIBUTE_HIDDEN);
    MakeFile(f + L"\\system.dat", FILE_ATTRIBUTE_SYSTEM);
    MakeFile(f + L"\\read only.txt", FILE_ATTRIBUTE_READONLY);
    MakeFile(f + L"\\A Long File Name.document");
    MakeFile(f + L"\\caf\u00E9.txt");
    MakeFile(f + L"\\.profile");
    for (int i = 0; i < 12; ++i) MakeFile(f + L"\\n" + std::to_wstring(i) + L".exe");
    wchar_t shortName[MAX_PATH] = {};
    ::GetShortPathNameW((f + L"\\A Long File Name.document").c_str(), shortName, MAX_PATH);

    std::vector<std::wstring> paths = {
        f + L"\\a.txt", f + L"\\A.TXT", f + L"\\b.txt", f + L"\\B.TXT", f + L"\\Sub", f + L"\\SUB", f + L"\\sub\\",
        f + L"\\Hidden Dir", f + L"\\hidden dir", f + L"\\hidden.txt", f + L"\\system.dat", f + L"\\SYSTEM.DAT",
        f + L"\\read only.txt", f + L"\\A Long File Name.document", f + L"\\a long file name.DOCUMENT",
        shortName, f + L"\\caf\u00E9.txt", f + L"\\CAF\u00C9.TXT", f + L"\\.profile", f + L"\\.PROFILE",
        // Win32 strips trailing dots and blanks before the lookup.
        f + L"\\a.txt.", f + L"\\a.txt ", f + L"\\a.txt. .", f + L"\\Sub.", f + L"\\Sub \\a.txt",
        // Missing entries, missing parents, a file as a parent.
        f + L"\\nothing.txt", f + L"\\Missing\\a.txt", f + L"\\a.txt\\inside", root + L"\\Gone\\Sub",
        // Relative parts, doubled and forward slashes.
        f + L"\\.\\a.txt", f + L"\\Sub\\..\\a.txt", f + L"\\\\a.txt", root + L"/Folder/a.txt",
        // Wildcards, streams, devices, long-path and network forms.
        f + L"\\a*.txt", f + L"\\?.txt", f + L"\\a.txt::$DATA", f + L"\\nul", f + L"\\CON.txt", f + L"\\com1",
        L"\\\\?\\" + f + L"\\a.txt", L"\\\\localhost\\C$\\nothing.txt", L"C:\\", L"C:", L"C:a.txt", L"a.txt", L"",
        f + L"\\" + std::wstring(300, L'x'),
    };
    for (int i = 0; i < 14; ++i) paths.push_back(f + L"\\n" + std::to_wstring(i) + (i % 2 ? L".exe" : L".EXE"));
    ExpectSameAnswers(paths);
    EXPECT_GT(found, 20);
}

TEST_F(Win32BulkExists, RandomTreesAreAnsweredAsTheSingleTestsAnswerThem) {
    const std::vector<std::wstring> parts = {L"a", L"A", L"ab", L"Ab", L"x.txt", L"X.TXT", L"Dir", L"name.",
                                             L"name ", L"PROGRA~1", L".hidden", L"b.exe", L"B.Exe", L"\u00E9t\u00E9"};
    std::mt19937 rng(7);
    auto pick = [&rng](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng); };
    for (int round = 0; round < 6; ++round) {
        const std::wstring base = root + L"\\Tree" + std::to_wstring(round);
        MakeFolder(base);
        std::vector<std::wstring> folders = {base};
        std::vector<std::wstring> paths;
        for (int i = 0; i < 60; ++i) {
            const std::wstring path = folders[pick(folders.size())] + L"\\" + parts[pick(parts.size())];
            if (pick(3) == 0) {
                if (::CreateDirectoryW(path.c_str(), nullptr)) folders.push_back(path);
            } else {
                const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                                  pick(4) == 0 ? FILE_ATTRIBUTE_HIDDEN : FILE_ATTRIBUTE_NORMAL, nullptr);
                if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
            }
            paths.push_back(path);
            std::wstring varied = path;
            for (std::size_t c = base.size(); c < varied.size(); ++c) {
                if (pick(3) != 0) continue;
                varied[c] = FlipCase(varied[c]);
            }
            paths.push_back(varied);
            paths.push_back(path + L"\\" + parts[pick(parts.size())]);
            paths.push_back(base + L"\\Missing\\" + parts[pick(parts.size())]);
        }
        std::shuffle(paths.begin(), paths.end(), rng);
        ExpectSameAnswers(paths);
    }
    EXPECT_GT(found, 100);
}

}  // namespace
