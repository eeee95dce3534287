#pragma once
// The Add Item and Open pane: one window with two faces, opened from the
// bar's PictureMenu(0) and PictureMenu(1). Its handlers live in
// browse_set.cpp (opening, the options, the two text boxes, close),
// browse_folders.cpp (the drive, folder and file boxes, the load) and
// browse_add.cpp (the add and Open clicks and the item tests) and
// browse_find_path.cpp (a running program's path found by pointing at one
// of its windows).
#include <cstdint>
#include <string>
#include <vector>

#include "platform/system.h"
#include "ui/control_array.h"
#include "ui/dir_list_box.h"
#include "ui/drive_list_box.h"
#include "ui/file_list_box.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"
#include "ui/timer.h"

namespace qs {

struct Application;

inline constexpr std::int32_t BrowseWidth = 5400;
inline constexpr std::int32_t BrowseHeight = 8652;

class FrmBrowse : public ui::Form {
public:
    explicit FrmBrowse(Application& app);

    // The controls, in the order of the form.
    ui::PictureBox PictureBrowse;
    ui::PictureBox PictureAddCancel;
    ui::Label LabelAddCancel;
    ui::Frame FrameHideWindow;
    ui::PictureBox PictureNo;
    ui::Frame FrameBrowseOption;
    ui::ControlArray<ui::OptionButton> OptionBrowse;
    ui::DriveListBox DriveWork;
    ui::Timer TimerFindPath;
    ui::Frame FrameFindPath;
    ui::PictureBox PictureFindPath;
    ui::Label LabelFindPath;
    ui::Frame FrameAddToList;
    ui::TextBox TextAddName;
    ui::PictureBox PictureAddOK;
    ui::Frame FrameAddPath;
    ui::TextBox TextAddPath;
    ui::Label LabelAddPath;
    ui::DirListBox DirWork;
    ui::FileListBox FileWork;
    ui::Frame FrameSelect;
    ui::PictureBox PictureSelectOK;
    ui::Label LabelOpen;
    ui::Label LabelAddSelectA;
    ui::Label LabelBrowseBack;

    // The option button last clicked: 0 Program, 1 File, 2 Folder, 3 Email,
    // 4 Web URL, 5 Pic.
    std::int16_t BrowseOption = 0;
    // The last folder accepted in DirWork, and the same with a backslash.
    std::wstring CurrentFolder;
    std::wstring CurrentFolderSlash;
    // The drive last taken from DriveWork; its type is 0 until known.
    std::int16_t SelectedDriveType = 0;
    std::int16_t SelectedFileIndex = -1;
    DriveInfo SelectedDrive;
    std::wstring SelectedDriveLetter;

    // Item tests; "" or "MessageXXUnsafeItem".
    std::wstring ActAllowAttr(std::int16_t attributes) const;
    std::wstring ActAllowExt(const std::wstring& extension) const;
    std::wstring ActAllowAttrExt(const std::wstring& extension, std::int16_t attributes) const;
    // The DriveType of the drive of a path's first three characters; 0 when
    // the drive cannot be taken.
    std::int16_t ActDeclareDriveType(const std::wstring& firstThree) const;

    // Event handlers.
    void FormLoad();
    // The drive, folder and file boxes of the load, which set LastFolder:
    // filled at the first idle moment after the bar's first paint, or before
    // that by whatever needs them first (the pane's opening, the exit save).
    // Fills them once per load; later calls do nothing.
    void LoadBoxes();
    void OptionBrowseClick(std::int16_t index);
    void DriveWorkChange();
    void DirWorkChange();
    void FileWorkClick();
    void TextAddNameChange();
    void TextAddPathChange();
    void TextAddKeyPress(std::int16_t& key);
    void PictureAddOKClick();
    void PictureSelectOKClick();
    void PictureAddCancelClick();
    void PictureAddCancelMouse();
    void LabelAddCancelMouseMove();
    void FrameHideWindowMouseMove();
    void PictureFindPathMouseDown();
    void TimerFindPathTick();
    void PictureFindPathMouseUp();

    // The drag from PictureFindPath, read by the tests: whether one runs and
    // the window the pointer was last seen over.
    bool IsFindingPath() const { return FindPathActive; }
    // Whether the load's boxes have been filled.
    bool BoxesLoaded() const { return boxesLoaded_; }
    WindowHandle LastPointedWindow() const { return PointedWindow; }

    // Shows the enabled or the disabled look of an OK button.
    void SetOKButton(ui::PictureBox& button, bool enabled);

private:
    void Layout();
    void WireEvents();
    // The steps of the add click, each "" or the key that ends the add.
    std::wstring CheckPlace(const std::wstring& path, std::int16_t& driveType, std::wstring& extension);

    Application& app_;
    // True from the load until the first bounce off the system folder.
    bool SystemMessagePending = false;

    // The drag from PictureFindPath onto a window of a running program.
    // The pointer's place at the last tick, in screen pixels, and narrowed.
    PixelPoint PointerPosition;
    std::int16_t PointerX = 0;
    std::int16_t PointerY = 0;
    // The window under the pointer at the last tick; 0 at a drag's start.
    WindowHandle PointedWindow = 0;
    // The left button's state at the last tick; nothing reads it.
    bool LeftButtonHeld = false;
    // True from the button's press to its release.
    bool FindPathActive = false;
    bool boxesLoaded_ = false;
    // The processes running at the press, by position from 1.
    std::int32_t ProcessCount = 0;
    std::vector<std::wstring> ProcessNames;
    std::vector<std::uint32_t> ProcessIds;
};

// Fills and shows the pane in mode 0 (Add Item) or 1 (Open), or hides it
// for -1.
void ActionSetBrowse(Application& app, std::int16_t& mode);

}  // namespace qs
