#include "ui/file_list_box.h"

#include <algorithm>

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::ui {

namespace {

constexpr std::int32_t HiddenOrSystem = 2 | 4;

bool Matches(const std::wstring& name, std::size_t n, const std::wstring& pattern, std::size_t p) {
    while (p < pattern.size()) {
        if (pattern[p] == L'*') {
            for (std::size_t k = n; k <= name.size(); ++k) {
                if (Matches(name, k, pattern, p + 1)) return true;
            }
            return false;
        }
        if (n >= name.size() || (pattern[p] != L'?' && pattern[p] != name[n])) return false;
        ++n;
        ++p;
    }
    return n == name.size();
}

}  // namespace

bool MatchesPattern(const std::wstring& name, const std::wstring& pattern) {
    if (pattern == L"*.*" || pattern == L"*") return true;
    return Matches(LCase(name), 0, LCase(pattern), 0);
}

FileListBox::FileListBox(Form& owner, std::wstring name, FileBrowsing& files)
    : ListBox(owner, ControlKind::FileListBox, std::move(name), false), files_(files) {}

void FileListBox::SetPath(const std::wstring& path) {
    const std::wstring before = path_;
    path_ = path;
    try {
        Refresh();
    } catch (const SystemCallFailed&) {
        path_ = before;
        throw;
    }
}

void FileListBox::SetPattern(const std::wstring& pattern) {
    pattern_ = pattern;
    if (!path_.empty()) Refresh();
}

void FileListBox::Refresh() {
    FolderListing listing = files_.ListFolder(path_);
    std::sort(listing.files.begin(), listing.files.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return CompareNoCase(a.name, b.name) < 0; });
    Clear();
    for (const FolderEntry& file : listing.files) {
        if ((file.attributes & HiddenOrSystem) != 0 || !MatchesPattern(file.name, pattern_)) continue;
        AddItem(file.name);
    }
}

std::wstring FileListBox::FileName() const { return ListIndex() < 0 ? L"" : std::wstring(List(ListIndex())); }

}  // namespace qs::ui
