#pragma once
// The QuickLauncher: a borderless strip of twenty one-click buttons that
// show one group of the Launch List at a time, twenty items a page. It reads
// the merged lists of frmChoose directly and holds no copy of them.
//
// Where the handlers live:
//   frm_quick.cpp        the controls, their places and tooltips, the wiring
//   quick_load.cpp       Load and the group buttons of the groups with items
//   quick_pages.cpp      CommandQuickClick, the group click, Forward, Back
//   quick_items.cpp      the item click
//   quick_window.cpp     the height and width toggles, the drag with the
//                        work-area clamp, ImageHideQuick
#include <array>
#include <cstdint>
#include <string>

#include "ui/command_button.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"

namespace qs {

struct Application;

// The two widths and two heights the window takes.
inline constexpr std::int32_t QuickWidthWide = 10332;
inline constexpr std::int32_t QuickWidthZero = 588;
inline constexpr std::int32_t QuickHeightFull = 744;
inline constexpr std::int32_t QuickHeightHalf = 372;
// QuickGroup before any group has been shown, and the preferred group
// "None".
inline constexpr std::int16_t QuickNoGroup = 5;
// Buttons on a page, and the last item index a page can reach: a group's
// items past the 999th are never shown here.
inline constexpr std::int16_t QuickPageSize = 20;
inline constexpr std::int16_t QuickLastReachable = 998;

class FrmQuick : public ui::Form {
public:
    explicit FrmQuick(Application& app);

    // Declared top of the stack first: the strips lie under the controls
    // drawn on them.
    ui::CommandButton CommandQuickClick;
    ui::PictureBox ImageQuickZero;
    ui::Label LabelQuickTotal;
    ui::PictureBox ImageQuickForward;
    ui::PictureBox ImageQuickBack;
    ui::PictureBox ImageQuickSelected;
    // Index is the group; the Launch List pane also blanks these when it
    // empties a group.
    ui::ControlArray<ui::PictureBox> ImageQuickChoice;
    ui::Label LabelQuickShowing;
    ui::ControlArray<ui::PictureBox> ImageQuick;
    ui::PictureBox ImageQuickHeight;
    ui::PictureBox ImageHideQuick;
    ui::ControlArray<ui::Label> LabelQIndex;
    ui::PictureBox ImageQuickHeightA;
    ui::PictureBox PictureZeroBack;
    ui::PictureBox PictureTotalBack;
    ui::PictureBox PictureBrowseBack;
    ui::PictureBox PictureTypeBack;
    ui::PictureBox PictureChoiceBack;
    ui::PictureBox PictureRangeBack;
    ui::PictureBox PictureQuickBack;
    ui::PictureBox PictureIndexBack;

    // The group shown now; QuickNoGroup until one has been shown.
    std::int16_t QuickGroup = QuickNoGroup;
    // The button last clicked; -1 after a height toggle.
    std::int16_t QuickItemClicked = -1;
    // The group CommandQuickClick is to show; -1 none.
    std::int16_t QuickPendingGroup = -1;
    // The user has moved the window in this run.
    bool QuickPosKnown = false;
    // The position remembered; QuickTop is also written on every show.
    std::int16_t QuickTop = 0;
    std::int16_t QuickLeft = 0;

    // Event handlers.
    void FormLoad();
    void FormMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void CommandQuickClickClick();
    void ImageQuickChoiceClick(std::int16_t index);
    void ImageQuickForwardClick();
    void ImageQuickBackClick();
    void ImageQuickClick(std::int16_t index);
    void ImageQuickHeightClick();
    void ImageQuickZeroClick();
    void ImageHideQuickClick();

    // Shows the group buttons of the groups whose lists hold items, and lets
    // the bar's button open the window only when some list does. Run at
    // Load, and again once the lists whose targets were still being tested
    // at Load are whole.
    void ShowGroupsWithItems();

private:
    void PlaceControls();
    void WireEvents();
    // The group's item count, 16-bit as the lists are counted.
    std::int16_t GroupCount(std::int16_t group) const;
    // Whether the group's list holds an item: asked without counting, so a
    // merged list longer than a count can hold still answers.
    bool GroupHasItems(std::int16_t group) const;
    // Button i blank and hidden, its label "xx".
    void ShowEmptyButton(std::int16_t i);
    // Button i showing the item at `item` of QuickGroup.
    void ShowItemButton(std::int16_t i, std::int16_t item);
    void ShowRange();
    ui::PictureRef BlankPicture() const;
    ui::PictureRef ZeroRestPicture() const;

    Application& app_;
    // "File", "Directory (Folder)", ... by group, filled at Load.
    std::array<std::wstring, 5> QuickGroupNames;
    // Zero-based indexes of the first and last item on the page.
    std::int16_t QuickFirst = 0;
    std::int16_t QuickLast = -1;
};

}  // namespace qs
