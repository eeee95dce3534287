#include "browse_setup.h"

#include "common/application.h"

namespace qs::test {

void LoadBrowseOverApps(TestApp& t) {
    SetUpFixedDiskRun(t);
    t.sys.PutFile(L"C:\\Apps\\player.exe");
    t.sys.PutFile(L"C:\\Apps\\notes.txt");
    LoadBrowse(t);
}

void LoadBrowse(TestApp& t) { t.app.frmBrowse.Load(); }

void OpenBrowse(TestApp& t, std::int16_t mode) {
    t.app.OpenMenuIndex = mode;
    ActionSetBrowse(t.app, mode);
}

void ChooseFile(TestApp& t, const std::wstring& folder, const std::wstring& file) {
    FrmBrowse& pane = t.app.frmBrowse;
    pane.DirWork.SetPath(folder);
    const auto& items = pane.FileWork.Items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i] == file) {
            pane.FileWork.UserSelected(static_cast<std::int32_t>(i));
            return;
        }
    }
    throw std::runtime_error("file not listed");
}

void NameAndEnter(TestApp& t, const std::wstring& name) {
    t.app.frmBrowse.TextAddName.TypeText(name);
    t.app.frmBrowse.TextAddName.TypeKey(13);
}

std::vector<std::wstring> ShownKeys(TestApp& t) {
    std::vector<std::wstring> keys;
    for (const auto& m : t.dialogs.shown) keys.push_back(m.key);
    return keys;
}

}  // namespace qs::test
