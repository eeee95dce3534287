// Removing an item and clearing a group. Both ask first through the one
// question below the panels: the first click asks, "Yes" runs the same
// handler again, and the flag the first click raised sends it to the
// deletion. Only the lists in memory change; the files follow at exit.
#include "common/application.h"
#include "common/failure.h"
#include "data/launch_list.h"
#include "windows/choose_list_pane.h"
#include "theme/holders.h"
#include "windows/frm_choose.h"
#include "windows/frm_quick.h"

namespace qs {

namespace {

std::size_t At(std::int16_t group) { return static_cast<std::size_t>(group); }

}  // namespace

void LaunchListPane::HideQuickGroupButton(std::int16_t group) {
    // The QuickLauncher has nothing to show of a group with no items.
    ui::PictureBox& button = app_.frmQuick.ImageQuickChoice(group);
    button.SetVisible(false);
    button.SetPicture(OneOfTheme(ui::PictureSlot::ImageMStar, app_.settings.ThemeIndex));
}

void LaunchListPane::SwapQuestionFrames(bool asking) {
    FrameConfirmClearListA.SetVisible(!asking);
    FrameConfirmClearListB.SetVisible(asking);
}

void LaunchListPane::ImageListClearClick(std::int16_t index) {
    const ThemeState& theme = app_.theme;
    const std::int16_t g = app_.ListGroupShown;
    ConfirmMode = 1;
    RemovePending.at(At(g)) = false;
    ImageListRemove(g).SetVisible(true);
    ImageListRemove(g).SetPicture(theme.ImageZeroSet[0]);

    FrameConfirmClearListA.SetVisible(ClearPending.at(At(g)));
    ClearPending.at(At(g)) = !ClearPending.at(At(g));
    const bool asking = ClearPending.at(At(g));
    FrameConfirmClearListB.SetVisible(asking);
    ImageListClear(g).SetVisible(!asking);
    ImageListClear(g).SetPicture(asking ? theme.ImageZeroBlank : theme.ImageZeroSet[3]);

    if (asking) {
        LabelConfirmClearListB.SetCaption(LabelItemName(g).Caption() + L"?");
        LabelConfirmClearListA.SetCaption(L"Really Want To Remove From Launch List All ");
        LabelConfirmClearListB.SetVisible(true);
        return;
    }
    // Both sides go. The counts and the panel's buttons stay as they are
    // until the pane is next opened.
    LaunchListClearGroup(app_, index);
    form_.ComboListItemName(index).SetListIndex(-1);
    form_.ComboListItemPath(index).SetListIndex(-1);
    HideQuickGroupButton(index);
}

void LaunchListPane::ImageListRemoveClick(std::int16_t index) {
    const ThemeState& theme = app_.theme;
    const std::int16_t g = app_.ListGroupShown;
    ConfirmMode = 0;
    ClearPending.at(At(g)) = false;
    ImageListClear(g).SetVisible(true);
    ImageListClear(g).SetPicture(theme.ImageZeroSet[3]);

    FrameConfirmClearListA.SetVisible(RemovePending.at(At(g)));
    RemovePending.at(At(g)) = !RemovePending.at(At(g));
    const bool asking = RemovePending.at(At(g));
    FrameConfirmClearListB.SetVisible(asking);
    ImageListRemove(g).SetVisible(!asking);
    ImageListRemove(g).SetPicture(asking ? theme.ImageZeroBlank : theme.ImageZeroSet[0]);

    ui::ComboBox& names = form_.ComboListItemName(index);
    if (asking) {
        const ui::ComboBox& shown = form_.ComboListItemName(g);
        LabelConfirmClearListA.SetCaption(L"Remove \"" + std::wstring(shown.List(shown.ListIndex())) +
                                          L"\" From Launch List?");
        LabelConfirmClearListB.SetVisible(false);
        return;
    }
    const std::int32_t p = names.ListIndex();
    const std::wstring path(form_.ComboListItemPath(index).List(p));
    const bool flash = IsFlashSideItem(app_, index, path);
    LaunchListRemoveItem(app_, index, p);

    const std::int16_t n = ToInt16(names.ListCount());
    if (n > 0) names.SetListIndex(0);
    ShowTotals(index, n);
    if (index < 3 && flash) {
        LabelUSBTotal(index).SetCaption(std::to_wstring(app_.frmHid.ComboUSBItemName(index).ListCount()));
    }
    // The last item gone: nothing left to open or remove.
    ImageListOpen(index).SetVisible(n != 0);
    ImageListOpen(index).SetPicture(n != 0 ? theme.ImageZeroSet[0] : theme.ImageZeroBlank);
    ImageListRemove(index).SetVisible(n != 0);
    ImageListRemove(index).SetPicture(n != 0 ? theme.ImageZeroSet[0] : theme.ImageZeroBlank);
    if (n == 0) HideQuickGroupButton(index);
}

void LaunchListPane::ImageConfirmClearListClick() {
    const std::int16_t g = app_.ListGroupShown;
    if (ConfirmMode == 1) {
        ImageListClear(g).SetVisible(true);
        ImageListClearClick(g);
    } else {
        ImageListRemove(g).SetVisible(true);
        ImageListRemoveClick(g);
    }
}

void LaunchListPane::ImageCancelClearListClick() {
    const ThemeState& theme = app_.theme;
    const std::int16_t g = app_.ListGroupShown;
    RemovePending.at(At(g)) = false;
    ClearPending.at(At(g)) = false;
    LabelConfirmClearListB.SetCaption(LabelItemName(g).Caption() + L"?");
    ImageListRemove(g).SetVisible(true);
    ImageListRemove(g).SetPicture(theme.ImageZeroSet[0]);
    ImageListClear(g).SetVisible(true);
    ImageListClear(g).SetPicture(theme.ImageZeroSet[3]);
    SwapQuestionFrames(false);
}

}  // namespace qs
