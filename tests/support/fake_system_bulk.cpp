// The test system's existence tests in bulk: targets are grouped by their
// parent folder on the host, each parent is listed once, and a name is found
// by the host file system's own rule, which is what the single tests rely on.
// Paths the listing cannot stand for take the single test.
#include <system_error>
#include <unordered_map>

#include "common/failure.h"
#include "fake_system.h"

namespace qs::test {

namespace fs = std::filesystem;

namespace {

// A path the listing can answer: a drive, then at least one part, none of
// them "." or ".." (which the host resolves through the folders around).
bool ListingCanAnswer(const std::wstring& windowsPath) {
    std::wstring part;
    int parts = 0;
    for (wchar_t c : windowsPath.substr(2) + L"\\") {
        if (c == L'\\' || c == L'/') {
            if (part == L"." || part == L"..") return false;
            if (!part.empty()) ++parts;
            part.clear();
        } else {
            part.push_back(c);
        }
    }
    return parts > 0;
}

// A Windows host folds the case of names and strips trailing dots and blanks
// in its own lookups: a name the listing lacks as spelled is asked of the
// single test there. A Linux host compares names exactly, as the listing does.
#ifdef _WIN32
constexpr bool kHostRewritesNames = true;
#else
constexpr bool kHostRewritesNames = false;
#endif

struct Entry {
    bool file = false;
    bool folder = false;
};

}  // namespace

bool FakeSystem::ExistsSingly(const std::wstring& path, EntryKind kind) {
    return kind == EntryKind::File ? FileExists(path) : FolderExists(path);
}

std::vector<bool> FakeSystem::ExistInBulk(const std::vector<std::wstring_view>& targets, EntryKind kind) {
    const std::vector<std::wstring> paths(targets.begin(), targets.end());
    std::vector<bool> answers(paths.size(), false);
    // Host parent folder -> the positions of the paths inside it.
    std::unordered_map<fs::path::string_type, std::vector<std::size_t>> byParent;
    std::vector<fs::path> hosts(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        try {
            hosts[i] = HostPath(paths[i]);
        } catch (const SystemCallFailed&) {
            continue;  // no drive, or one not mapped: the single test says no
        }
        if (!ListingCanAnswer(paths[i])) {
            answers[i] = ExistsSingly(paths[i], kind);
            continue;
        }
        byParent[hosts[i].parent_path().native()].push_back(i);
    }
    for (const auto& [parent, positions] : byParent) {
        std::error_code error;
        fs::directory_iterator listing(parent, error);
        ++folderListings;
        if (error) {
            for (std::size_t i : positions) answers[i] = ExistsSingly(paths[i], kind);
            continue;
        }
        std::unordered_map<fs::path::string_type, Entry> entries;
        for (const fs::directory_entry& entry : listing) {
            std::error_code ignored;
            entries[entry.path().filename().native()] = {entry.is_regular_file(ignored), entry.is_directory(ignored)};
        }
        for (std::size_t i : positions) {
            const auto at = entries.find(hosts[i].filename().native());
            if (at == entries.end()) {
                if (kHostRewritesNames) answers[i] = ExistsSingly(paths[i], kind);
                continue;
            }
            answers[i] = kind == EntryKind::File ? at->second.file : at->second.folder;
        }
    }
    return answers;
}

std::vector<bool> FakeSystem::FilesExist(const std::vector<std::wstring_view>& paths) {
    return ExistInBulk(paths, EntryKind::File);
}

std::vector<bool> FakeSystem::FoldersExist(const std::vector<std::wstring_view>& paths) {
    return ExistInBulk(paths, EntryKind::Folder);
}

}  // namespace qs::test
