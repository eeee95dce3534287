#include "test_app.h"

#include "command/default_values.h"
#include "theme/active_theme.h"

namespace qs::test {

TestApp::TestApp() : app(sys) {
    app.AttachBackend(&dialogs);
    app.WindowsFolder = L"C:\\Windows\\";
    app.place.UserNameEnv = sys.Environment(L"username");
    AtStartDefaultValue(app);
    AtStartDefaultColor(app);
    app.frmMain.Load();
    ThemeCreate(app, app.settings.ThemeIndex);
    ClearBox();
}

void TestApp::AddItem(int group, const std::wstring& name, const std::wstring& path) {
    auto& names = app.frmChoose.ComboListItemName(group);
    auto& paths = app.frmChoose.ComboListItemPath(group);
    const auto at = names.AddItem(name);
    paths.AddItem(path, at);
}

}  // namespace qs::test
