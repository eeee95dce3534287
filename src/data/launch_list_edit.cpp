#include "common/application.h"
#include "common/text_case.h"
#include "data/launch_list.h"

namespace qs {

namespace {

std::size_t Slot(std::int16_t group) { return static_cast<std::size_t>(group); }

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
    auto& names = *app.frmChoose.ComboListItemName.at(Slot(group));
    auto& paths = *app.frmChoose.ComboListItemPath.at(Slot(group));
    const std::wstring name(names.List(position));
    const std::wstring path(paths.List(position));
    const bool flash = IsFlashSideItem(app, group, path);
    names.RemoveItem(position);
    paths.RemoveItem(position);
    if (group >= 3) return;
    FrmHid& hid = app.frmHid;
    if (flash) {
        RemoveFirstExact(*hid.ComboUSBItemName.at(Slot(group)), *hid.ComboUSBItemPath.at(Slot(group)), name);
    } else {
        RemoveFirstExact(*hid.ComboHDDItemName.at(Slot(group)), *hid.ComboHDDItemPath.at(Slot(group)), name);
    }
}

void LaunchListClearGroup(Application& app, std::int16_t group) {
    app.frmChoose.ComboListItemName.at(Slot(group))->Clear();
    app.frmChoose.ComboListItemPath.at(Slot(group))->Clear();
    if (group >= 3) return;
    FrmHid& hid = app.frmHid;
    if (hid.ComboUSBItemName.at(Slot(group))->ListCount() > 0) {
        hid.ComboUSBItemName[Slot(group)]->Clear();
        hid.ComboUSBItemPath[Slot(group)]->Clear();
    }
    if (hid.ComboHDDItemName.at(Slot(group))->ListCount() > 0) {
        hid.ComboHDDItemName[Slot(group)]->Clear();
        hid.ComboHDDItemPath[Slot(group)]->Clear();
    }
}

}  // namespace qs
