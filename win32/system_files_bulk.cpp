// Existence tests in bulk: the targets of a list load are grouped by parent
// folder, and a folder that holds several of them is read once with one
// listing instead of one GetFileAttributesW per target. Every answer is the
// one the single test would give: whatever a listing cannot settle for
// certain goes to the single test.
#include <unordered_map>

#include "listed_path.h"
#include "win32_system.h"

namespace qs::win {

namespace {

// Fewer targets than this in one folder take the single test, which costs
// less than opening a listing of a folder that may be large.
constexpr std::size_t kTargetsWorthAListing = 4;

enum class Wanted { File, Folder };

bool SingleTest(Win32System& sys, std::wstring_view target, Wanted wanted) {
    const std::wstring path(target);
    return wanted == Wanted::File ? sys.FileExists(path) : sys.FolderExists(path);
}

// What the listing showed for one name of the targets.
struct Sighting {
    bool exact = false;         // an entry spelled exactly so
    DWORD exactAttributes = 0;
    int caseVariants = 0;       // entries equal to it when A-Z are folded
    DWORD variantAttributes = 0;
};

// One listing of a folder, matched against the names of its targets.
class FolderListing {
public:
    explicit FolderListing(const std::vector<const std::wstring*>& names) {
        for (const std::wstring* name : names) {
            if (sightings_.try_emplace(*name).second) byFolded_[FoldAscii(*name)].push_back(name);
        }
        exactMissing_ = sightings_.size();
    }

    // Reads the folder; false when it cannot be read to the end.
    bool Read(const std::wstring& folder) {
        const std::wstring pattern = folder + L"\\*";
        WIN32_FIND_DATAW entry{};
        FindHandle search(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
        if (!search) return false;
        do {
            See(entry);
            // Every name found as spelled: no other entry can change an answer.
            if (exactMissing_ == 0) return true;
        } while (::FindNextFileW(search.Get(), &entry));
        return ::GetLastError() == ERROR_NO_MORE_FILES;
    }

    // The answer for one target, or false in `settled` when only the single
    // test can tell.
    bool Answer(const std::wstring& name, Wanted wanted, bool& settled) const {
        const Sighting& seen = sightings_.at(name);
        DWORD attributes = 0;
        settled = true;
        if (seen.exact) {
            attributes = seen.exactAttributes;
        } else if (otherCaseRules_ || !IsPlainAscii(name) || seen.caseVariants > 1) {
            // Case beyond A-Z, or several entries that differ only in case
            // (a case-sensitive folder): the system's own lookup decides.
            settled = false;
            return false;
        } else if (seen.caseVariants == 1) {
            attributes = seen.variantAttributes;
        } else {
            return false;
        }
        if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            settled = false;
            return false;
        }
        const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return wanted == Wanted::Folder ? folder : !folder;
    }

private:
    void See(const WIN32_FIND_DATAW& entry) {
        const std::wstring name = entry.cFileName;
        if (!IsPlainAscii(name)) otherCaseRules_ = true;
        const auto exact = sightings_.find(name);
        if (exact != sightings_.end() && !exact->second.exact) {
            exact->second.exact = true;
            exact->second.exactAttributes = entry.dwFileAttributes;
            --exactMissing_;
        }
        const auto variants = byFolded_.find(FoldAscii(name));
        if (variants == byFolded_.end()) return;
        for (const std::wstring* target : variants->second) {
            Sighting& seen = sightings_.at(*target);
            ++seen.caseVariants;
            seen.variantAttributes = entry.dwFileAttributes;
        }
    }

    std::unordered_map<std::wstring, Sighting> sightings_;
    std::unordered_map<std::wstring, std::vector<const std::wstring*>> byFolded_;
    std::size_t exactMissing_ = 0;
    // The folder holds names outside 7-bit text, whose case may fold onto A-Z.
    bool otherCaseRules_ = false;
};

std::vector<bool> ExistInBulk(Win32System& sys, const std::vector<std::wstring_view>& paths, Wanted wanted) {
    std::vector<bool> answers(paths.size(), false);
    std::vector<ListedPath> split(paths.size());
    // Parent folder as written -> positions of its targets.
    std::unordered_map<std::wstring, std::vector<std::size_t>> byFolder;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (SplitListedPath(paths[i], split[i])) {
            byFolder[split[i].parent].push_back(i);
        } else {
            answers[i] = SingleTest(sys, paths[i], wanted);
        }
    }
    for (const auto& [folder, positions] : byFolder) {
        std::vector<const std::wstring*> names;
        for (std::size_t i : positions) names.push_back(&split[i].name);
        if (positions.size() >= kTargetsWorthAListing) {
            FolderListing listing(names);
            if (listing.Read(folder)) {
                for (std::size_t i : positions) {
                    bool settled = false;
                    answers[i] = listing.Answer(split[i].name, wanted, settled);
                    if (!settled) answers[i] = SingleTest(sys, paths[i], wanted);
                }
                continue;
            }
        }
        for (std::size_t i : positions) answers[i] = SingleTest(sys, paths[i], wanted);
    }
    return answers;
}

}  // namespace

std::vector<bool> Win32System::FilesExist(const std::vector<std::wstring_view>& paths) {
    return ExistInBulk(*this, paths, Wanted::File);
}

std::vector<bool> Win32System::FoldersExist(const std::vector<std::wstring_view>& paths) {
    return ExistInBulk(*this, paths, Wanted::Folder);
}

}  // namespace qs::win
