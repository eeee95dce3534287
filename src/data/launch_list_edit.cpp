#include "common/application.h"
#include "common/text_case.h"
#include "data/launch_list.h"

namespace qs {

namespace {


void RemoveFirstExact(ui::ListBox& names, ui::ListBox& paths, const std::wstring& name) {
    const std::int32_t at = names.FindExact(name);
    if (at < 0) return;
    names.RemoveItem(at);
    paths.RemoveItem(at);
}

}  // namespace

bool IsFlashSideItem(const Application& app, std::int16_t group, const std::wstring& path) {
    if (!app.place.OnRemovable || group >= 3 || path.empty()) return false;
    return UCase(path.substr(0, 1)) == app.place.ProgramDriveLetterUpper;
}

void AddItemInStep(ui::ListBox& names, ui::ListBox& paths, const std::wstring& name, const std::wstring& path) {
    names.AddItem(name);
    paths.AddItem(path, names.FindExact(name));
}

void AddItemInStep(ui::ListBox& names, ui::ListBox& paths, const ui::SharedText& name, const ui::SharedText& path) {
    names.AddItem(name);
    paths.AddItem(path, names.FindExact(name.Text()));
}

void LaunchListRemoveItem(Application& app, std::int16_t group, std::int32_t position) {
    auto& names = app.frmChoose.ComboListItemName(group);
    auto& paths = app.frmChoose.ComboListItemPath(group);
    const std::wstring name(names.List(position));
    const std::wstring path(paths.List(position));
    const bool flash = IsFlashSideItem(app, group, path);
    names.RemoveItem(position);
    paths.RemoveItem(position);
    if (group >= 3) return;
    FrmHid& hid = app.frmHid;
    if (flash) {
        RemoveFirstExact(hid.ComboUSBItemName(group), hid.ComboUSBItemPath(group), name);
    } else {
        RemoveFirstExact(hid.ComboHDDItemName(group), hid.ComboHDDItemPath(group), name);
    }
}

void LaunchListClearGroup(Application& app, std::int16_t group) {
    app.frmChoose.ComboListItemName(group).Clear();
    app.frmChoose.ComboListItemPath(group).Clear();
    if (group >= 3) return;
    FrmHid& hid = app.frmHid;
    if (hid.ComboUSBItemName(group).ListCount() > 0) {
        hid.ComboUSBItemName(group).Clear();
        hid.ComboUSBItemPath(group).Clear();
    }
    if (hid.ComboHDDItemName(group).ListCount() > 0) {
        hid.ComboHDDItemName(group).Clear();
        hid.ComboHDDItemPath(group).Clear();
    }
}

}  // namespace qs
