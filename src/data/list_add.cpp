#include "data/list_add.h"

#include "common/application.h"
#include "common/text_case.h"
#include "common/text_main_busy.h"
#include "data/launch_list.h"
#include "data/report_bug.h"

namespace qs {

namespace {


// A write to TextMain from code, kept from being taken for typing.
void EmptyTextMain(Application& app, bool focus) {
    const TextMainBusyScope busy(app);
    app.frmMain.TextMain.SetText(L"");
    if (focus && app.frmMain.Visible() && app.frmMain.TextMain.Visible() && app.frmMain.TextMain.Enabled()) {
        app.frmMain.TextMain.SetFocus();
    }
}

}  // namespace

std::int16_t GroupOfBrowseOption(std::int16_t browseOption, const std::wstring& extension) {
    switch (browseOption) {
        case 0:
            return 2;
        case 1:
            return extension == L"exe" ? std::int16_t{2} : std::int16_t{0};
        case 2:
            return 1;
        case 3:
            return 3;
        case 4:
            return 4;
        default:
            throw SubscriptOutOfRange();
    }
}

std::wstring ActionConfirmAddPath(Application& app, const std::wstring& path, ui::ListBox& paths, ui::ListBox& names) {
    try {
        const std::int32_t count = paths.ListCount();
        if (count == 0) return L"";
        for (std::int32_t i = 0; i < count; ++i) {
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
        const std::int32_t count = names.ListCount();
        if (count == 0) return L"";
        const std::wstring lower = LCase(name);
        for (std::int32_t i = 0; i < count; ++i) {
            if (LCase(names.List(i)) == lower) return L"MessageNameAlreadyListed";
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionConfirmAddName");
    }
    return L"";
}

std::wstring ActionConfirmFamily(Application& app, const std::wstring& path) {
    try {
        for (std::int16_t i = 0; i <= app.FamilyMemberCount; ++i) {
            if (app.FamilyMembers.at(static_cast<std::size_t>(i)).MemberProgramFile == path) {
                return L"MessageFamilyProgram";
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ActionConfirmFamily");
    }
    return L"";
}

void ActionListAddNew(Application& app, const std::wstring& name, const std::wstring& path, std::int16_t driveType,
                      const std::wstring& extension) {
    try {
        const std::int16_t group = GroupOfBrowseOption(app.frmBrowse.BrowseOption, extension);
        AddItemInStep(app.frmChoose.ComboListItemName(group), app.frmChoose.ComboListItemPath(group),
                      name, path);
        if (group < 3) {
            FrmHid& hid = app.frmHid;
            if (driveType == 1) {
                AddItemInStep(hid.ComboUSBItemName(group), hid.ComboUSBItemPath(group), name, path);
            } else {
                AddItemInStep(hid.ComboHDDItemName(group), hid.ComboHDDItemPath(group), name, path);
            }
        }
        app.frmBrowse.TextAddName.SetText(L"");
        app.frmBrowse.TextAddPath.SetText(L"");
        if (app.frmMain.Visible()) EmptyTextMain(app, false);
    } catch (const std::exception&) {
        ReportBug(app, L"ActionListAddNew");
    }
}

void ActionListAddWeb(Application& app, const std::wstring& name, const std::wstring& url) {
    try {
        AddItemInStep(app.frmChoose.ComboListItemName(4), app.frmChoose.ComboListItemPath(4), name, url);
        app.frmMain.TextWebName.SetText(L"");
        app.frmMain.TextWebUrl.SetText(L"");
        EmptyTextMain(app, true);
    } catch (const std::exception&) {
        ReportBug(app, L"ActionListAddWeb");
    }
}

}  // namespace qs
