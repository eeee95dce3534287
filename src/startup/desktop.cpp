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

namespace {

std::wstring ReadAutostart(Application& app) {
    std::wstring key = AutostartValueName;
    std::wstring none;
    std::int16_t action = RegistryRead;
    return RegistryValue(app, action, key, none);
}

void DeleteAutostart(Application& app) {
    std::wstring key = AutostartValueName;
    std::wstring none;
    std::int16_t action = RegistryDelete;
    RegistryValue(app, action, key, none);
}

// The value as read is replaced by the program's file unless it is that
// already.
void RegisterOver(Application& app, const std::wstring& current) {
    if (current == app.ProgramFile) return;
    if (!current.empty()) DeleteAutostart(app);
    std::wstring key = AutostartValueName;
    std::wstring value = app.ProgramFile;
    std::int16_t action = RegistryWrite;
    RegistryValue(app, action, key, value);
}

}  // namespace

void AutostartRegister(Application& app) { RegisterOver(app, ReadAutostart(app)); }

void AutostartFollowOption(Application& app) {
    const std::wstring current = ReadAutostart(app);
    if (app.settings.OptionStartWithWindows == 1) {
        RegisterOver(app, current);
    } else if (app.settings.OptionStartWithWindows == 0 && !current.empty()) {
        DeleteAutostart(app);
    }
}

}  // namespace qs
