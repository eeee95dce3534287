#include "data/list_add.h"

#include "common/application.h"
#include "common/text_case.h"
#include "data/launch_list.h"
#include "data/report_bug.h"

namespace qs {

std::wstring ActionConfirmAddPath(Application& app, const std::wstring& path, ui::ListBox& paths, ui::ListBox& names) {
    try {
        for (std::int32_t i = 0; i < paths.ListCount(); ++i) {
            if (paths.List(i) == path) {
                app.message.DuplicateItemName = names.List(i);
                return L"MessagePathAlreadyListed";
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionConfirmAddPath");
    }
    return L"";
}

std::wstring ActionConfirmAddName(Application& app, const std::wstring& name, ui::ListBox& names) {
    try {
        if (names.ListCount() == 0) return L"";
        const std::wstring lower = LCase(name);
        for (std::int32_t i = 0; i < names.ListCount(); ++i) {
            if (LCase(names.List(i)) == lower) return L"MessageNameAlreadyListed";
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionConfirmAddName");
    }
    return L"";
}

void ActionListAddWeb(Application& app, const std::wstring& name, const std::wstring& url) {
    try {
        AddItemInStep(*app.frmChoose.ComboListItemName[4], *app.frmChoose.ComboListItemPath[4], name, url);
        FrmMain& bar = app.frmMain;
        bar.TextWebName.SetText(L"");
        bar.TextWebUrl.SetText(L"");
        bar.SetTextMainQuietly(L"");
        if (bar.TextMain.Visible()) bar.TextMain.SetFocus();
    } catch (const std::exception&) {
        ReportBug(app, L"ActionListAddWeb");
    }
}

}  // namespace qs
