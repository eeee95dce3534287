#include "common/application.h"
#include "data/launch_list.h"
#include "data/list_add.h"
#include "data/report_bug.h"

namespace qs {

namespace {

std::size_t Slot(std::int16_t group) { return static_cast<std::size_t>(group); }

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
        ui::ListBox& names = *app.frmChoose.ComboListItemName.at(Slot(group));
        ui::ListBox& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
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
                RenameOnSide(*hid.ComboUSBItemName.at(Slot(group)), *hid.ComboUSBItemPath.at(Slot(group)), oldName,
                             newName, path);
            } else {
                RenameOnSide(*hid.ComboHDDItemName.at(Slot(group)), *hid.ComboHDDItemPath.at(Slot(group)), oldName,
                             newName, path);
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionListRename");
    }
    return L"";
}

}  // namespace qs
