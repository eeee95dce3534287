#include "startup/desktop.h"

#include "common/application.h"
#include "data/report_bug.h"
#include "data/registry_value.h"
#include "startup/active_message.h"

namespace qs {

namespace {

std::wstring ShortcutFile(Application& app) { return app.sys.SpecialFolder(L"Desktop") + L"\\" + L"Quillstart" + L".lnk"; }

}  // namespace

void StartScreenSaver(Application& app) {
    try {
        app.frmMain.SetTextMainQuietly(L"");
        app.sys.StartScreenSaver();
    } catch (const std::exception&) {
        ReportBug(app, L"StartScreenSaver");
    }
}

void StartShortcutCreate(Application& app) {
    try {
        ShortcutDetails link;
        link.linkPath = ShortcutFile(app);
        link.targetPath = app.ProgramFile;
        link.windowStyle = 1;
        link.hotkey = L"CTRL+SHIFT+L";
        // The icon names the program's fixed file name, the target its real one.
        link.iconLocation = app.ProgramFolder + L"Quillstart" + L".exe, 0";
        link.description = L"Quillstart";
        link.workingDirectory = app.ProgramFolder;
        app.sys.CreateShortcut(link);
        app.MessageToShow = L"MessageShortcutCreated";
        MessageProcess(app);
    } catch (const std::exception&) {
        ReportBug(app, L"StartShortcutCrea");
    }
}

void StartShortcutDelete(Application& app) {
    try {
        app.sys.DeleteFile(ShortcutFile(app));
        app.MessageToShow = L"MessageShortcutDeleted";
        MessageProcess(app);
    } catch (const std::exception&) {
        ReportBug(app, L"StartShortcutDelete");
    }
}

void AutostartRegister(Application& app) {
    std::wstring key = AutostartValueName;
    std::wstring none;
    std::int16_t action = RegistryRead;
    const std::wstring current = RegistryValue(app, action, key, none);
    if (current == app.ProgramFile) return;
    if (!current.empty()) {
        action = RegistryDelete;
        RegistryValue(app, action, key, none);
    }
    action = RegistryWrite;
    std::wstring value = app.ProgramFile;
    RegistryValue(app, action, key, value);
}

}  // namespace qs
