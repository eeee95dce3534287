#include "ui/dir_list_box.h"

#include <algorithm>

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::ui {

namespace {

constexpr std::int32_t HiddenOrSystem = 2 | 4;

// "C:\a\b" -> {"C:\", "C:\a", "C:\a\b"}.
std::vector<std::wstring> Ancestry(const std::wstring& path) {
    std::vector<std::wstring> chain{path.substr(0, 3)};
    for (std::size_t i = 3; i <= path.size(); ++i) {
        if (i == path.size() || path[i] == L'\\') {
            if (i > 3) chain.push_back(path.substr(0, i));
        }
    }
    return chain;
}

}  // namespace

std::wstring WithTrailingBackslash(const std::wstring& path) {
    if (!path.empty() && path.back() == L'\\') return path;
    return path + L"\\";
}

DirListBox::DirListBox(Form& owner, std::wstring name, FileBrowsing& files)
    : ListBox(owner, ControlKind::DirListBox, std::move(name), false), files_(files) {}

std::wstring DirListBox::Resolve(const std::wstring& path) const {
    if (path.size() < 2 || path[1] != L':') throw SystemCallFailed("not a folder path");
    const wchar_t letter = UpperChar(path[0]);
    if (path.size() == 2 || path[2] != L'\\') {
        const auto last = lastOnDrive_.find(letter);
        return last != lastOnDrive_.end() ? last->second : std::wstring(1, letter) + L":\\";
    }
    std::wstring full = std::wstring(1, letter) + path.substr(1);
    while (full.size() > 3 && full.back() == L'\\') full.pop_back();
    return full;
}

void DirListBox::SetPath(const std::wstring& path) {
    const std::wstring full = Resolve(path);
    FolderListing listing = files_.ListFolder(full);
    std::sort(listing.folders.begin(), listing.folders.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return CompareNoCase(a.name, b.name) < 0; });
    const bool changed = full != path_;
    path_ = full;
    lastOnDrive_[full[0]] = full;
    folders_ = Ancestry(full);
    depths_.clear();
    for (std::size_t i = 0; i < folders_.size(); ++i) depths_.push_back(static_cast<std::int32_t>(i));
    const auto depth = static_cast<std::int32_t>(folders_.size());
    for (const FolderEntry& folder : listing.folders) {
        if ((folder.attributes & HiddenOrSystem) != 0) continue;
        folders_.push_back(WithTrailingBackslash(full) + folder.name);
        depths_.push_back(depth);
    }
    Clear();
    for (std::size_t i = 0; i < folders_.size(); ++i) {
        const std::wstring& folder = folders_[i];
        AddItem(i == 0 ? folder : folder.substr(folder.rfind(L'\\') + 1));
    }
    SetListIndex(depth - 1);
    if (changed && Change) Change();
}

const std::wstring& DirListBox::FolderAt(std::int32_t index) const {
    if (index < 0 || index >= static_cast<std::int32_t>(folders_.size())) throw SubscriptOutOfRange();
    return folders_[static_cast<std::size_t>(index)];
}

std::int32_t DirListBox::DepthAt(std::int32_t index) const {
    if (index < 0 || index >= static_cast<std::int32_t>(depths_.size())) throw SubscriptOutOfRange();
    return depths_[static_cast<std::size_t>(index)];
}

void DirListBox::UserOpened(std::int32_t index) {
    if (index < 0 || index >= static_cast<std::int32_t>(folders_.size()) || !Shown() || !Enabled()) return;
    try {
        SetPath(folders_[static_cast<std::size_t>(index)]);
    } catch (const SystemCallFailed&) {
        // The folder cannot be read: the box stays where it was.
    }
}

}  // namespace qs::ui
