#pragma once
// The file box: the files of Path that match Pattern ("*.exe", "*.*"), by
// name, as the Windows file list shows them: hidden and system files are
// left out. Click fires when a file is chosen, by the user or by code.
#include <cstdint>
#include <string>

#include "platform/file_browsing.h"
#include "ui/list_box.h"

namespace qs::ui {

class FileListBox : public ListBox {
public:
    FileListBox(Form& owner, std::wstring name, FileBrowsing& files);

    const std::wstring& Path() const { return path_; }
    // Moves to a folder and lists it; throws SystemCallFailed when the folder
    // cannot be read, and then keeps its list.
    void SetPath(const std::wstring& path);
    const std::wstring& Pattern() const { return pattern_; }
    // Lists the folder again with the new pattern.
    void SetPattern(const std::wstring& pattern);
    // Reads the folder again; nothing stays chosen.
    void Refresh();

    // The name of the chosen file; "" when none is chosen.
    std::wstring FileName() const;

private:
    FileBrowsing& files_;
    std::wstring path_;
    std::wstring pattern_ = L"*.*";
};

// Whether a file name matches a pattern of "*" and "?" wildcards, case
// ignored; "*.*" matches every name, with or without an extension.
bool MatchesPattern(const std::wstring& name, const std::wstring& pattern);

}  // namespace qs::ui
