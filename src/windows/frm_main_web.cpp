// The web pane at the bar's right: a URL and a Launch Name, added to the
// Web URL group with Enter.
#include "common/application.h"
#include "data/list_add.h"
#include "startup/active_message.h"
#include "windows/frm_main.h"

namespace qs {

void FrmMain::TextWebUrlChange() {
    const bool hasUrl = !TextWebUrl.Text().empty();
    if (!hasUrl) TextWebName.SetText(L"");
    TextWebName.SetVisible(hasUrl);
    LabelWebName.SetVisible(hasUrl);
}

void FrmMain::TextWebKeyPress(std::int16_t& key) {
    if (key == 13 && !TextWebUrl.Text().empty() && !TextWebName.Text().empty()) AddWebItem();
}

void FrmMain::AddWebItem() {
    ui::ListBox& names = app_.frmChoose.ComboListItemName(4);
    ui::ListBox& paths = app_.frmChoose.ComboListItemPath(4);
    const std::wstring url = TextWebUrl.Text();
    app_.MessageToShow = ActionConfirmAddPath(app_, url, paths, names);
    if (!app_.MessageToShow.empty()) {
        MessageProcess(app_);
        TextWebUrl.SetText(L"");
        return;
    }
    const std::wstring name = TextWebName.Text();
    app_.MessageToShow = ActionConfirmAddName(app_, name, names);
    if (!app_.MessageToShow.empty()) {
        MessageProcess(app_);
        TextWebName.SetText(L"");
        TextWebName.SetFocus();
        return;
    }
    ActionListAddWeb(app_, name, url);
}

}  // namespace qs
