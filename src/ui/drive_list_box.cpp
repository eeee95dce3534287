#include "ui/drive_list_box.h"

#include "common/failure.h"
#include "common/text_case.h"

namespace qs::ui {

DriveListBox::DriveListBox(Form& owner, std::wstring name, FileBrowsing& files)
    : ComboBox(owner, ControlKind::DriveListBox, std::move(name), false), files_(files) {
    // A choice in the list, by the user or by code, is the box's Change.
    Click = [this] {
        if (Change) Change();
    };
}

std::wstring DriveListBox::DriveText(const DriveEntry& drive) {
    std::wstring text = LCase(std::wstring(1, drive.letter)) + L":";
    if (drive.ready && !drive.volumeName.empty()) text += L" [" + drive.volumeName + L"]";
    return text;
}

void DriveListBox::Refresh() {
    const std::wstring chosen = Drive();
    drives_ = files_.ListDrives();
    Clear();
    for (const DriveEntry& drive : drives_) AddItem(DriveText(drive));
    if (chosen.empty()) return;
    const std::int32_t at = IndexOfLetter(UpperChar(chosen[0]));
    if (at >= 0) SetListIndex(at);
}

std::wstring DriveListBox::Drive() const { return ListIndex() < 0 ? L"" : std::wstring(List(ListIndex())); }

std::int32_t DriveListBox::IndexOfLetter(wchar_t letter) const {
    for (std::size_t i = 0; i < drives_.size(); ++i) {
        if (drives_[i].letter == letter) return static_cast<std::int32_t>(i);
    }
    return -1;
}

void DriveListBox::SetDrive(const std::wstring& text) {
    if (text.empty()) throw SystemCallFailed("no drive");
    const wchar_t letter = UpperChar(text[0]);
    std::int32_t at = IndexOfLetter(letter);
    if (at < 0) {
        Refresh();
        at = IndexOfLetter(letter);
    }
    if (at < 0) throw SystemCallFailed("no such drive");
    if (at != ListIndex()) SetListIndex(at);
}

}  // namespace qs::ui
