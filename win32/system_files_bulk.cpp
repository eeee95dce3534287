// Existence tests in bulk: the targets of a list load are grouped by parent
// folder, and a folder that holds several of them is read once with one
// listing instead of one GetFileAttributesW per target. Every answer is the
// one the single test would give: whatever a listing cannot settle for
// certain goes to the single test.
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "listed_path.h"
#include "win32_system.h"

namespace qs::win {

namespace {

// Fewer targets than this in one folder take the single test, which costs
// less than opening a listing of a folder that may be large.
constexpr std::size_t kTargetsWorthAListing = 4;

// The arena's first block: large enough that the system hands it out, and
// takes it back, as whole pages rather than from the program's small blocks.
constexpr std::size_t kArenaStart = 1 << 20;

enum class Wanted { File, Folder };

bool SingleTest(Win32System& sys, std::wstring_view target, Wanted wanted) {
    const std::wstring path(target);
    return wanted == Wanted::File ? sys.FileExists(path) : sys.FolderExists(path);
}

// Hashing and comparing names with A-Z folded, so that entries that differ
// from a target only in that case find it without a folded copy.
struct FoldedHash {
    std::size_t operator()(std::wstring_view name) const {
        std::size_t hash = 14695981039346656037ull;
        for (wchar_t c : name) hash = (hash ^ static_cast<std::size_t>(FoldAscii(c))) * 1099511628211ull;
        return hash;
    }
};
struct FoldedEqual {
    bool operator()(std::wstring_view a, std::wstring_view b) const {
        if (a.size() != b.size()) return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (FoldAscii(a[i]) != FoldAscii(b[i])) return false;
        return true;
    }
};

// What the listing showed for one name of the targets: `exact` for the name
// as spelled; the variants are counted for all spellings that fold alike.
struct Sighting {
    bool exact = false;  // an entry spelled exactly so
    DWORD exactAttributes = 0;
};
struct Variants {
    int count = 0;  // entries equal to the name when A-Z are folded
    DWORD attributes = 0;
};

// One listing of a folder, matched against the names of its targets. The
// names are views into the targets; the tables live in the caller's arena.
class FolderListing {
public:
    FolderListing(const std::pmr::vector<std::wstring_view>& names, std::pmr::memory_resource* arena)
        : sightings_(arena), variants_(arena) {
        for (std::wstring_view name : names) {
            if (sightings_.try_emplace(name).second) variants_.try_emplace(name);
        }
        exactMissing_ = sightings_.size();
    }

    // Reads the folder; false when it cannot be read to the end.
    bool Read(std::wstring_view folder) {
        const std::wstring pattern = std::wstring(folder) + L"\\*";
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
    bool Answer(std::wstring_view name, Wanted wanted, bool& settled) const {
        const Sighting& seen = sightings_.at(name);
        const Variants& variants = variants_.at(name);
        DWORD attributes = 0;
        settled = true;
        if (seen.exact) {
            attributes = seen.exactAttributes;
        } else if (otherCaseRules_ || !IsPlainAscii(name) || variants.count > 1) {
            // Case beyond A-Z, or several entries that differ only in case
            // (a case-sensitive folder): the system's own lookup decides.
            settled = false;
            return false;
        } else if (variants.count == 1) {
            attributes = variants.attributes;
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
        const std::wstring_view name = entry.cFileName;
        if (!IsPlainAscii(name)) otherCaseRules_ = true;
        const auto exact = sightings_.find(name);
        if (exact != sightings_.end() && !exact->second.exact) {
            exact->second.exact = true;
            exact->second.exactAttributes = entry.dwFileAttributes;
            --exactMissing_;
        }
        const auto variants = variants_.find(name);
        if (variants == variants_.end()) return;
        ++variants->second.count;
        variants->second.attributes = entry.dwFileAttributes;
    }

    std::pmr::unordered_map<std::wstring_view, Sighting> sightings_;
    std::pmr::unordered_map<std::wstring_view, Variants, FoldedHash, FoldedEqual> variants_;
    std::size_t exactMissing_ = 0;
    // The folder holds names outside 7-bit text, whose case may fold onto A-Z.
    bool otherCaseRules_ = false;
};

std::vector<bool> ExistInBulk(Win32System& sys, const std::vector<std::wstring_view>& paths, Wanted wanted) {
    // Everything worked out on the way lives in one arena of large blocks,
    // given back whole at the end, so that the thousands of small entries
    // of a list load leave no scattered holes behind them.
    std::pmr::monotonic_buffer_resource arena(kArenaStart);
    std::vector<bool> answers(paths.size(), false);
    std::pmr::vector<ListedPath> split(paths.size(), &arena);
    // Parent folder as written -> positions of its targets.
    std::pmr::unordered_map<std::wstring_view, std::pmr::vector<std::size_t>> byFolder(&arena);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (SplitListedPath(paths[i], split[i])) {
            byFolder[split[i].parent].push_back(i);
        } else {
            answers[i] = SingleTest(sys, paths[i], wanted);
        }
    }
    for (const auto& [folder, positions] : byFolder) {
        if (positions.size() >= kTargetsWorthAListing) {
            std::pmr::vector<std::wstring_view> names(&arena);
            names.reserve(positions.size());
            for (std::size_t i : positions) names.push_back(split[i].name);
            FolderListing listing(names, &arena);
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
