// The QuickLauncher's pages: the hidden button through which the bar gives
// a group, the group buttons, and the two page arrows. Every page change
// rewrites the twenty buttons and labels from the live lists.
#include <algorithm>

#include "common/application.h"
#include "common/failure.h"
#include "theme/checked_set.h"
#include "theme/holders.h"
#include "windows/frm_quick.h"

namespace qs {

namespace {

// A button's number as its label shows it: two digits at least.
std::wstring TwoDigits(std::int32_t number) {
    return (number < 10 ? L"0" : L"") + std::to_wstring(number);
}

}  // namespace

void FrmQuick::CommandQuickClickClick() {
    if (QuickPendingGroup == -1) return;
    if (ImageQuickChoice(QuickPendingGroup).Visible()) ImageQuickChoiceClick(QuickPendingGroup);
    QuickPendingGroup = -1;
}

void FrmQuick::ShowEmptyButton(std::int16_t i) {
    ui::PictureBox& button = ImageQuick(i);
    button.SetToolTipText(L"Empty");
    button.SetVisible(false);
    button.SetPicture(BlankPicture());
    LabelQIndex(i).SetCaption(L"xx");
}

void FrmQuick::ShowItemButton(std::int16_t i, std::int16_t item) {
    ui::PictureBox& button = ImageQuick(i);
    button.SetToolTipText(std::wstring(app_.frmChoose.ComboListItemName(QuickGroup).List(item)));
    button.SetVisible(true);
    button.SetPicture(FiveSetEntry(app_.theme.ImageZeroSet, QuickGroup));
}

void FrmQuick::ShowRange() {
    LabelQuickShowing.SetCaption(L"Showing: " + std::to_wstring(QuickFirst + 1) + L"-" +
                                 std::to_wstring(QuickLast + 1));
}

void FrmQuick::ImageQuickChoiceClick(std::int16_t index) {
    QuickGroup = index;
    const std::int16_t count = GroupCount(index);
    QuickFirst = 0;
    QuickLast = count - 1 < 19 ? ToInt16(count - 1) : std::int16_t{19};
    const bool more = count - 1 > 19;

    for (std::int16_t i = 0; i < QuickPageSize; ++i) {
        if (i > QuickLast) {
            ShowEmptyButton(i);
        } else {
            ShowItemButton(i, i);
            LabelQIndex(i).SetCaption(TwoDigits(i + 1));
        }
    }

    const std::int16_t t = app_.settings.ThemeIndex;
    for (std::int16_t g = 0; g < ImageQuickChoice.Count(); ++g) {
        ui::PictureBox& choice = ImageQuickChoice(g);
        const bool empty = !GroupHasItems(g);
        choice.SetVisible(g != index && !empty);
        if (empty) {
            choice.SetPicture(BlankPicture());
        } else if (!choice.Visible()) {
            choice.SetPicture(ui::HolderPicture(ui::PictureSlot::ImageMQSelected, g));
        } else {
            choice.SetPicture(FiveSetEntry(app_.theme.ImageChoiceSet, g));
        }
    }

    LabelQuickShowing.SetCaption(L"Showing: 1-" + std::to_wstring(count - 1 < 19 ? count : 20));
    const std::wstring& name = QuickGroupNames.at(static_cast<std::size_t>(index));
    ImageQuickBack.SetToolTipText(name + L" List Go Back");
    ImageQuickForward.SetToolTipText(name + L" List Go Frorward");
    LabelQuickTotal.SetCaption(std::to_wstring(count));
    LabelQuickTotal.SetToolTipText(L"Total " + name + L" In Launch List");
    ImageQuickSelected.SetPicture(FiveSetEntry(app_.theme.ImageChoiceSet, index));
    ImageQuickSelected.SetToolTipText(L"Showing " + name + L" Group");

    ImageQuickBack.SetVisible(false);
    ImageQuickBack.SetPicture(BlankPicture());
    ImageQuickForward.SetVisible(more);
    ImageQuickForward.SetPicture(more ? OneOfTheme(ui::PictureSlot::ImageMForward, t) : BlankPicture());
}

void FrmQuick::ImageQuickForwardClick() {
    QuickFirst = ToInt16(QuickLast + 1);
    const std::int16_t count = GroupCount(QuickGroup);
    const std::int16_t end = ToInt16(QuickFirst + 19);
    QuickLast = std::min<std::int16_t>(ToInt16(count - 1), end);
    QuickLast = std::min(QuickLast, QuickLastReachable);

    for (std::int16_t i = 0; i < QuickPageSize; ++i) {
        const std::int16_t item = ToInt16(QuickFirst + i);
        if (item > QuickLast) {
            ShowEmptyButton(i);
        } else {
            ShowItemButton(i, item);
            // Past the first page every number has two digits or more.
            LabelQIndex(i).SetCaption(std::to_wstring(item + 1));
        }
    }
    ShowRange();
    ImageQuickBack.SetVisible(true);
    ImageQuickForward.SetVisible(QuickLast < QuickLastReachable && count - 1 > end);
}

void FrmQuick::ImageQuickBackClick() {
    // Pages are always full going back.
    QuickLast = ToInt16(QuickFirst - 1);
    QuickFirst = ToInt16(QuickLast - 19);
    for (std::int16_t i = 0; i < QuickPageSize; ++i) {
        const std::int16_t item = ToInt16(QuickFirst + i);
        ShowItemButton(i, item);
        LabelQIndex(i).SetCaption(TwoDigits(item + 1));
    }
    ShowRange();
    const std::int16_t t = app_.settings.ThemeIndex;
    if (QuickFirst == 0) {
        ImageQuickBack.SetVisible(false);
        ImageQuickBack.SetPicture(BlankPicture());
    } else {
        ImageQuickBack.SetPicture(OneOfTheme(ui::PictureSlot::ImageMBackward, t));
    }
    ImageQuickForward.SetVisible(true);
    ImageQuickForward.SetPicture(OneOfTheme(ui::PictureSlot::ImageMForward, t));
}

}  // namespace qs
