#pragma once
// The folder box: the folder tree of Path, as the classic folder box shows
// it: the drive's root, each folder down to Path, then Path's subfolders,
// each indented one step deeper. Path is "C:\" at a root and has no trailing
// backslash below it. Change fires when Path changes, by the user's double
// click or by code. Hidden and system folders are not listed.
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/file_browsing.h"
#include "ui/list_box.h"

namespace qs::ui {

class DirListBox : public ListBox {
public:
    DirListBox(Form& owner, std::wstring name, FileBrowsing& files);

    const std::wstring& Path() const { return path_; }
    // Moves to a folder; a drive alone ("d:", "d: [Data]") goes back to the
    // folder last shown on that drive, or its root. Throws SystemCallFailed
    // when the folder cannot be read, and then stays where it was.
    void SetPath(const std::wstring& path);

    // The full path of the folder at a position of the list.
    const std::wstring& FolderAt(std::int32_t index) const;
    // How deep the folder at a position lies: 0 for the root.
    std::int32_t DepthAt(std::int32_t index) const;

    std::function<void()> Change;

    // The user double-clicked a folder: the box opens it. A folder that
    // cannot be read leaves the box where it was.
    void UserOpened(std::int32_t index);

private:
    std::wstring Resolve(const std::wstring& path) const;

    FileBrowsing& files_;
    std::wstring path_;
    std::vector<std::wstring> folders_;
    std::vector<std::int32_t> depths_;
    std::map<wchar_t, std::wstring> lastOnDrive_;
};

// "C:\Tools" -> "C:\Tools\", "C:\" stays.
std::wstring WithTrailingBackslash(const std::wstring& path);

}  // namespace qs::ui
