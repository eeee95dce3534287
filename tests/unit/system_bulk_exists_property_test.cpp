// The test system's existence tests in bulk answer exactly as its single
// tests, over random trees of files and folders and random paths into them:
// present, missing, in other case, through missing or file parents, and in
// every odd form a path can take.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "fake_system.h"
#include "text_views.h"

namespace qs::test {
namespace {

const std::vector<std::wstring> kParts = {L"a",        L"A",     L"ab",    L"Ab",     L"x.txt", L"X.TXT", L"Dir",
                                          L"dir",      L"name.", L"name ", L" lead",  L"PROGRA~1", L".hidden",
                                          L"con",      L"b.exe", L"B.Exe"};

const std::vector<std::wstring> kOddPaths = {L"",         L"C:",         L"C:\\",        L"relative\\a",
                                             L"Q:\\a",    L"\\\\server\\share\\a",      L"\\\\?\\C:\\a",
                                             L"C:a",      L"C:\\*",      L"C:\\a?",      L"C:\\a\\..\\a"};

class RandomTree {
public:
    RandomTree(FakeSystem& sys, unsigned seed) : sys_(sys), rng_(seed) {}

    // Makes files and folders and returns paths to test: those made, case
    // variants and broken forms of them, missing ones and odd ones.
    std::vector<std::wstring> Grow(int entries) {
        std::vector<std::wstring> folders = {L"C:", L"D:"};
        std::vector<std::wstring> made;
        for (int i = 0; i < entries; ++i) {
            const std::wstring parent = folders[Pick(folders.size())];
            const std::wstring path = parent + L"\\" + kParts[Pick(kParts.size())];
            if (Chance(2)) {
                std::error_code ignored;
                std::filesystem::create_directories(sys_.HostPath(path), ignored);
                if (std::filesystem::is_directory(sys_.HostPath(path))) folders.push_back(path);
            } else if (!std::filesystem::is_directory(sys_.HostPath(path))) {
                sys_.PutFile(path);
            }
            made.push_back(path);
        }
        std::vector<std::wstring> paths = kOddPaths;
        for (const std::wstring& path : made) {
            paths.push_back(path);
            paths.push_back(Varied(path));
            paths.push_back(path + L"\\" + kParts[Pick(kParts.size())]);
            paths.push_back(path + (Chance(2) ? L"\\" : L"\\\\x"));
            paths.push_back(path + L"\\.\\" + kParts[Pick(kParts.size())]);
            paths.push_back(L"C:\\missing\\" + kParts[Pick(kParts.size())]);
            paths.push_back(path.substr(0, 2) + L"/" + path.substr(3));
        }
        std::shuffle(paths.begin(), paths.end(), rng_);
        return paths;
    }

private:
    std::size_t Pick(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_); }
    bool Chance(int oneIn) { return Pick(static_cast<std::size_t>(oneIn)) == 0; }

    // The path with the case of its letters flipped at random.
    std::wstring Varied(std::wstring path) {
        for (wchar_t& c : path) {
            if (!Chance(3)) continue;
            if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - 32);
            else if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c + 32);
        }
        return path;
    }

    FakeSystem& sys_;
    std::mt19937 rng_;
};

TEST(BulkExistence, TestSystemAnswersInBulkAsItsSingleTestsOverRandomTrees) {
    int filesFound = 0;
    int foldersFound = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        FakeSystem sys;
        sys.MapDrive(L'D', DriveType::Removable);
        const std::vector<std::wstring> paths = RandomTree(sys, seed).Grow(30);
        const std::vector<bool> files = sys.FilesExist(Views(paths));
        const std::vector<bool> folders = sys.FoldersExist(Views(paths));
        ASSERT_EQ(files.size(), paths.size());
        ASSERT_EQ(folders.size(), paths.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            EXPECT_EQ(files[i], sys.FileExists(paths[i])) << "seed " << seed << ", file test of " << paths.size();
            EXPECT_EQ(folders[i], sys.FolderExists(paths[i])) << "seed " << seed << ", folder test";
            filesFound += files[i] ? 1 : 0;
            foldersFound += folders[i] ? 1 : 0;
        }
    }
    // The trees are rich enough that both kinds are found many times.
    EXPECT_GT(filesFound, 100);
    EXPECT_GT(foldersFound, 100);
}

TEST(BulkExistence, EachParentFolderIsListedOnce) {
    FakeSystem sys;
    std::vector<std::wstring> paths;
    for (int i = 0; i < 20; ++i) {
        const std::wstring path = L"C:\\Apps\\t" + std::to_wstring(i) + L".exe";
        if (i % 3 != 0) sys.PutFile(path);
        paths.push_back(path);
        paths.push_back(L"C:\\Docs\\d" + std::to_wstring(i) + L".txt");
    }
    const int before = sys.folderListings;
    const std::vector<bool> answers = sys.FilesExist(Views(paths));
    EXPECT_EQ(sys.folderListings - before, 2);
    for (std::size_t i = 0; i < paths.size(); ++i) EXPECT_EQ(answers[i], sys.FileExists(paths[i])) << i;
}

TEST(BulkExistence, NoPathsGiveNoAnswers) {
    FakeSystem sys;
    EXPECT_TRUE(sys.FilesExist({}).empty());
    EXPECT_TRUE(sys.FoldersExist({}).empty());
}

}  // namespace
}  // namespace qs::test
