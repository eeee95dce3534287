// The rename frame of a group's panel: opened and closed by its button,
// OK only with a name typed, Enter as OK, and a refused name keeping the
// frame open for another try.
#include "common/application.h"
#include "common/failure.h"
#include "data/list_add.h"
#include "startup/active_message.h"
#include "windows/choose_list_pane.h"
#include "windows/frm_choose.h"

namespace qs {

void LaunchListPane::ImageListRenameClick(std::int16_t index) {
    const ThemeState& theme = app_.theme;
    const bool open = !FrameListRename(index).Visible();
    FrameListRename(index).SetVisible(open);
    ImageListRename(index).SetPicture(open ? theme.ImageZeroSet[2] : theme.ImageZeroSet[0]);
    if (!open) return;
    ImageListOKRename(index).SetVisible(false);
    LabelListRenOK(index).SetVisible(false);
    ImageListOKRename(index).SetPicture(theme.ImageZeroBlank);
    TextListRename(index).SetText(L"");
    TextListRename(index).SetFocus();
}

void LaunchListPane::TextListRenameChange(std::int16_t index) {
    const bool typed = !TextListRename(index).Text().empty();
    ImageListOKRename(index).SetVisible(typed);
    LabelListRenOK(index).SetVisible(typed);
    ImageListOKRename(index).SetPicture(typed ? app_.theme.ImageZeroSet[0] : app_.theme.ImageZeroBlank);
}

void LaunchListPane::TextListRenameKeyPress(std::int16_t index, std::int16_t& key) {
    if (key == 27) {
        key = 0;
        form_.PictureHideClick();
    } else if (key == 13 && !TextListRename(index).Text().empty()) {
        ImageListOKRenameClick(index);
    }
}

void LaunchListPane::ImageListOKRenameClick(std::int16_t index) {
    const std::wstring name = TextListRename(index).Text();
    if (name.empty()) return;
    const std::int16_t p = ToInt16(form_.ComboListItemName(index).ListIndex());
    app_.MessageToShow = ActionListRename(app_, index, name, p);
    if (app_.MessageToShow.empty()) {
        ImageListRenameClick(index);
    } else {
        MessageProcess(app_);
    }
}

void LaunchListPane::ImageListCancelRenameClick(std::int16_t index) { ImageListRenameClick(index); }

}  // namespace qs
