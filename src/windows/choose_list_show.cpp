// Preparing the Launch List pane as it opens, the group buttons, and the
// name and path lists that step through a group's items together.
#include "common/application.h"
#include "common/failure.h"
#include "windows/choose_list_pane.h"
#include "windows/frm_choose.h"

namespace qs {

namespace {

constexpr std::int16_t Groups = 5;
constexpr std::int16_t SidedGroups = 3;
// The group shown at opening: the first with items in this order.
constexpr std::int16_t OpeningOrder[Groups] = {2, 0, 1, 3, 4};

}  // namespace

void LaunchListPane::ShowPosition(std::int16_t group, std::int32_t position) {
    LabelListItemNum(group).SetCaption(L"Showing " + app_.tables.ListGroupNames[static_cast<std::size_t>(group)] +
                                       L" # " + std::to_wstring(position));
}

void LaunchListPane::ShowTotals(std::int16_t group, std::int32_t count) {
    LabelListTotalA(group).SetCaption(std::to_wstring(count));
    LabelListTotalB(group).SetCaption(app_.tables.ListGroupNames[static_cast<std::size_t>(group)] +
                                      L" Added To Launch List: " + std::to_wstring(count));
}

void LaunchListPane::Prepare() {
    const ThemeState& theme = app_.theme;
    std::array<bool, Groups> has{};
    for (std::int16_t i = 0; i < Groups; ++i) {
        ui::ComboBox& names = form_.ComboListItemName(i);
        const std::int16_t n = ToInt16(names.ListCount());
        has[static_cast<std::size_t>(i)] = n > 0;
        if (n > 0) names.SetListIndex(0);
        ShowTotals(i, n);
        ShowPosition(i, 1);
        LabelListItemNum(i).SetVisible(n > 0);
        FrameListRename(i).SetVisible(false);
        if (i < SidedGroups) {
            LabelUSBTotal(i).SetCaption(std::to_wstring(app_.frmHid.ComboUSBItemName(i).ListCount()));
        }
    }
    // Program first if it has items, whatever was shown last.
    std::int16_t chosen = -1;
    for (const std::int16_t group : OpeningOrder) {
        if (has[static_cast<std::size_t>(group)]) {
            chosen = group;
            break;
        }
    }
    if (chosen != -1) app_.ListGroupShown = chosen;
    for (std::int16_t i = 0; i < Groups; ++i) {
        const bool items = has[static_cast<std::size_t>(i)];
        ImageShowList(i).SetVisible(items);
        PictureGroupList(i).SetVisible(i == chosen);
        if (i == chosen) {
            ImageShowList(i).SetPicture(theme.ImageZeroSet[2]);
        } else {
            ImageShowList(i).SetPicture(items ? theme.ImageZeroSet[0] : theme.ImageZeroBlank);
        }
        if (i < SidedGroups) {
            LabelUSBInfo(i).SetVisible(app_.place.OnRemovable);
            LabelUSBTotal(i).SetVisible(app_.place.OnRemovable);
        }
    }
    LabelEmptyList.SetVisible(chosen == -1);
}

void LaunchListPane::ImageShowListClick(std::int16_t index) {
    const ThemeState& theme = app_.theme;
    app_.ListGroupShown = index;
    for (std::int16_t i = 0; i < Groups; ++i) {
        ClearPending[static_cast<std::size_t>(i)] = false;
        RemovePending[static_cast<std::size_t>(i)] = false;
        PictureGroupList(i).SetVisible(i == index);
        if (i == index) {
            ImageShowList(i).SetPicture(theme.ImageZeroSet[2]);
        } else {
            const bool items = form_.ComboListItemName(i).ListCount() > 0;
            ImageShowList(i).SetVisible(items);
            ImageShowList(i).SetPicture(items ? theme.ImageZeroSet[0] : theme.ImageZeroBlank);
        }
    }
    // The question is dropped; a button it hid stays hidden.
    SwapQuestionFrames(false);
}

void LaunchListPane::ComboListItemNameClick(std::int16_t index) {
    ui::ComboBox& names = form_.ComboListItemName(index);
    const std::int32_t p = names.ListIndex();
    ShowPosition(index, p + 1);
    // With nothing chosen the list answers an empty name.
    const std::wstring name = p >= 0 ? std::wstring(names.List(p)) : std::wstring();
    LabelListOpen(index).SetCaption((index == 3 ? L"Write To: " : L"Open: ") + name);
    ImageListOpen(index).SetAccessibleName(LabelListOpen(index).Caption());
    // Setting a list's position clicks it; the two lists stop at the first
    // that already stands there.
    ui::ComboBox& paths = form_.ComboListItemPath(index);
    if (paths.ListIndex() != p) paths.SetListIndex(p);
}

void LaunchListPane::ComboListItemPathClick(std::int16_t index) {
    ui::ComboBox& names = form_.ComboListItemName(index);
    const std::int32_t p = form_.ComboListItemPath(index).ListIndex();
    if (names.ListIndex() != p) names.SetListIndex(p);
}

void LaunchListPane::ComboListKeyPress(std::int16_t& key) {
    // The lists are read-only: every key is swallowed, and Esc closes the
    // pane as it does on the bar.
    const bool escape = key == 27;
    key = 0;
    if (escape) form_.PictureHideClick();
}

}  // namespace qs
