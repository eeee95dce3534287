#include "command/launchers.h"

#include <array>
#include <utility>

#include "command/tables.h"
#include "common/application.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "startup/active_message.h"

namespace qs {

namespace {

constexpr std::int32_t ShellSuccessFloor = 33;

const std::wstring TagProgramStartA = L"Quillstart:Bug:ActionProgramStartA";
const std::wstring TagProgramExplorer = L"Quillstart:Bug:ActionProgramExplorer";
const std::wstring TagProgramPanel = L"Quillstart:Bug:ActionProgramPanel";
const std::wstring TagContactMorvane = L"Quillstart:Bug:ActionContactMorvane";
const std::wstring TagGetSpecialFolder = L"Quillstart:Bug:ActionGetSpecialFolder";

// The lower-cased "d." names and the keys the special-folder service takes.
const std::array<std::pair<const wchar_t*, const wchar_t*>, 9> SpecialFolderKeys = {{
    {L"desktop", L"Desktop"},
    {L"favorites", L"Favorites"},
    {L"fonts", L"Fonts"},
    {L"mydocuments", L"MyDocuments"},
    {L"programs", L"Programs"},
    {L"recent", L"Recent"},
    {L"sendto", L"SendTo"},
    {L"startmenu", L"StartMenu"},
    {L"startup", L"Startup"},
}};

}  // namespace

std::wstring ActionProgramStartA(Application& app, std::wstring target) {
    try {
        const std::int32_t result = app.sys.ShellOpen(target);
        app.frmMain.SetTextMainQuietly(L"");
        return result >= ShellSuccessFloor ? L"" : TagProgramStartA;
    } catch (const std::exception&) {
        app.MessageToShow = TagProgramStartA;
        return TagProgramStartA;
    }
}

std::wstring ActionProgramExplorer(Application& app, std::wstring& commandLine) {
    try {
        app.sys.ShellRun(commandLine);
        app.frmMain.SetTextMainQuietly(L"");
        return L"";
    } catch (const std::exception&) {
        app.MessageToShow = TagProgramExplorer;
        return TagProgramExplorer;
    }
}

std::wstring ActionProgramPanel(Application& app, std::wstring& name) {
    try {
        name = LCase(name);
        for (const auto& applet : AppletTable) {
            if (name == applet.name) {
                app.sys.ShellRun(applet.commandLine);
                break;
            }
        }
        app.frmMain.SetTextMainQuietly(L"");
        return L"";
    } catch (const std::exception&) {
        app.MessageToShow = TagProgramPanel;
        return TagProgramPanel;
    }
}

std::wstring ActionContactMorvane(Application& app, std::wstring address, std::wstring& subject, std::wstring& body) {
    try {
        std::wstring s = address;
        if (LCase(s.substr(0, 7)) != L"mailto:") s = L"mailto:" + s;
        if (!subject.empty()) s += L"?subject=" + subject;
        if (!body.empty()) s += (subject.empty() ? L"?" : L"&") + (L"body=" + body);
        const std::int32_t result = app.sys.ShellOpen(s);
        return result >= ShellSuccessFloor ? L"" : L"ProgramStartError:" + TagContactMorvane;
    } catch (const std::exception&) {
        app.MessageToShow = TagContactMorvane;
        MessageBug(app);
        return L"";
    }
}

std::wstring ActionGetSpecialFolder(Application& app, std::wstring& name) {
    try {
        name = LCase(name);
        std::wstring path;
        for (const auto& [lower, key] : SpecialFolderKeys) {
            if (name == lower) {
                path = app.sys.SpecialFolder(key);
                break;
            }
        }
        // An unknown name, or a folder the system does not know, opens the
        // user's documents rather than failing.
        if (path.empty()) path = app.sys.SpecialFolder(L"MyDocuments");
        return path;
    } catch (const std::exception&) {
        app.MessageToShow = TagGetSpecialFolder;
        MessageBug(app);
        return L"";
    }
}

std::wstring LaunchListItem(Application& app, std::int16_t group, const std::wstring& path) {
    switch (group) {
        case 1: {
            std::wstring commandLine = app.WindowsFolder + L"explorer.exe " + path;
            return ActionProgramExplorer(app, commandLine);
        }
        case 3:
            return ActionProgramStartA(app, L"mailto:" + path);
        default:
            return ActionProgramStartA(app, path);
    }
}

}  // namespace qs
