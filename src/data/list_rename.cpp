#include "common/application.h"
#include "data/launch_list.h"
#include "data/list_add.h"
#include "data/report_bug.h"

namespace qs {

namespace {


// Moves the side entry named `oldName` to `newName`, keeping its path.
void RenameOnSide(ui::ListBox& names, ui::ListBox& paths, const std::wstring& oldName, const std::wstring& newName,
                  const std::wstring& path) {
    const std::int32_t at = names.FindExact(oldName);
    names.RemoveItem(at);
    paths.RemoveItem(at);
    AddItemInStep(names, paths, newName, path);
}

}  // namespace

std::wstring ActionListRename(Application& app, std::int16_t group, const std::wstring& newName,
                              std::int16_t position) {
    try {
        ui::ListBox& names = app.frmChoose.ComboListItemName(group);
        ui::ListBox& paths = app.frmChoose.ComboListItemPath(group);
        for (std::int32_t i = 0; i < names.ListCount(); ++i) {
            if (names.List(i) == newName) return L"MessageNameAlreadyListed";
        }
        const std::wstring path(paths.List(position));
        const bool flash = group < 3 && IsFlashSideItem(app, group, path);
        const std::wstring oldName(names.List(position));
        names.RemoveItem(position);
        paths.RemoveItem(position);
        AddItemInStep(names, paths, newName, path);
        names.SetListIndex(0);
        if (group < 3) {
            FrmHid& hid = app.frmHid;
            if (flash) {
                RenameOnSide(hid.ComboUSBItemName(group), hid.ComboUSBItemPath(group), oldName,
                             newName, path);
            } else {
                RenameOnSide(hid.ComboHDDItemName(group), hid.ComboHDDItemPath(group), oldName,
                             newName, path);
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionListRename");
    }
    return L"";
}

}  // namespace qs
