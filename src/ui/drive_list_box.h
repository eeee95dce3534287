#pragma once
// The drive box: every drive as Windows shows it, "c: [System]" (the letter
// in lower case, the volume name in brackets when the drive is ready and
// named), one of them chosen. Change fires when the chosen drive changes,
// by the user or by code. It is a drop-down: its keys reach KeyPress first.
#include <functional>
#include <string>
#include <vector>

#include "platform/file_browsing.h"
#include "ui/combo_box.h"

namespace qs::ui {

class DriveListBox : public ComboBox {
public:
    DriveListBox(Form& owner, std::wstring name, FileBrowsing& files);

    // Reads the drives afresh, keeping the chosen one.
    void Refresh();

    // The chosen drive's text; "" before the first Refresh.
    std::wstring Drive() const;
    // Chooses the drive of `text`'s first letter ("c:\Tools", "c: [System]").
    // Throws SystemCallFailed for a letter that is no drive.
    void SetDrive(const std::wstring& text);

    // The text the box shows for a drive.
    static std::wstring DriveText(const DriveEntry& drive);

    std::function<void()> Change;

private:
    std::int32_t IndexOfLetter(wchar_t letter) const;

    FileBrowsing& files_;
    std::vector<DriveEntry> drives_;
};

}  // namespace qs::ui
