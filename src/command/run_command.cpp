// The dispatcher from a Command Code and a Launch Name to a launcher.
#include <array>

#include "command/launchers.h"
#include "common/application.h"
#include "common/maker.h"
#include "startup/active_message.h"
#include "startup/desktop.h"
#include "windows/frm_main.h"

namespace qs {

namespace {

enum class Launcher { StartA, Explorer, Panel, SpecialFolder };

struct PathForm {
    const wchar_t* code;
    const wchar_t* prefix;
    const wchar_t* suffix;
    Launcher launcher;
};

// Commands that carry their target in the text, in compare order.
const std::array<PathForm, 15> PathForms = {{
    {L"c.", L"", L"", Launcher::Panel},
    {L"d.", L"", L"", Launcher::SpecialFolder},
    {L"d=", L"", L"", Launcher::Explorer},
    {L"f=", L"", L"", Launcher::StartA},
    {L"e=", L"mailto:", L"", Launcher::StartA},
    {L"p=", L"", L"", Launcher::StartA},
    {L"w=", L"", L"", Launcher::StartA},
    {L"w:", L"http://", L"", Launcher::StartA},
    {L"w;", L"http://www.", L"", Launcher::StartA},
    {L"c/", L"http://www.", L".com", Launcher::StartA},
    {L"g/", L"http://www.", L".gov", Launcher::StartA},
    {L"i/", L"http://www.", L".info", Launcher::StartA},
    {L"n/", L"http://www.", L".net", Launcher::StartA},
    {L"o/", L"http://www.", L".org", Launcher::StartA},
    {L"t/", L"http://www.", L".tv", Launcher::StartA},
}};

void BugCheck(Application& app) {
    if (!app.MessageToShow.empty()) MessageBug(app);
}

void RunAdditionalTask(Application& app, const std::wstring& name) {
    if (name == L"Help") {
        if (app.HelpOpen) {
            app.HelpOpen = false;
            app.frmHelp.Unload();
        }
        app.MessageToShow = ActionProgramStartA(app, maker::OnlineHelpPage);
        if (!app.MessageToShow.empty()) MessageProcess(app);
    } else if (name == L"StartScreensaver") {
        StartScreenSaver(app);
    } else if (name == L"CreateAppShortcut") {
        StartShortcutCreate(app);
    } else if (name == L"DeleteAPPShortcut") {
        StartShortcutDelete(app);
    } else if (name == L"ChangeUserName") {
        app.MessageToShow = L"MessageChangeUserName";
        MessageProcess(app);
    }
}

}  // namespace

void FrmMain::RunCommand(std::wstring& code, std::wstring& launchName) {
    app_.MessageToShow = L"";
    if (app_.OpenMenuIndex != -1) PictureMenuClick(app_.OpenMenuIndex);

    if (app_.PendingFamilyIndex != -1) {
        const auto& member = app_.FamilyMembers.at(static_cast<std::size_t>(app_.PendingFamilyIndex));
        app_.MessageToShow = ActionProgramStartA(app_, member.MemberProgramFile);
        SetTextMainQuietly(L"");
        BugCheck(app_);
        return;
    }

    if (app_.PendingFeedbackIndex != -1) {
        const auto index = static_cast<std::size_t>(app_.PendingFeedbackIndex);
        std::wstring subject = app_.tables.FeedbackMailSubject.at(index);
        std::wstring body;
        app_.MessageToShow =
            ActionContactMorvane(app_, L"mailto:" + app_.tables.FeedbackMailAddress.at(index), subject, body);
        if (!app_.MessageToShow.empty()) MessageProcess(app_);
        SetTextMainQuietly(L"");
        return;
    }

    if (code == L"a.") {
        SetTextMainQuietly(L"");
        RunAdditionalTask(app_, launchName);
        return;
    }

    if (app_.PendingItemIndex == -1) {
        for (const auto& form : PathForms) {
            if (code != form.code) continue;
            switch (form.launcher) {
                case Launcher::Panel:
                    app_.MessageToShow = ActionProgramPanel(app_, launchName);
                    break;
                case Launcher::SpecialFolder: {
                    std::wstring commandLine = app_.WindowsFolder + L"explorer.exe " + ActionGetSpecialFolder(app_, launchName);
                    app_.MessageToShow = ActionProgramExplorer(app_, commandLine);
                    break;
                }
                case Launcher::Explorer: {
                    std::wstring commandLine = app_.WindowsFolder + L"explorer.exe " + launchName;
                    app_.MessageToShow = ActionProgramExplorer(app_, commandLine);
                    break;
                }
                case Launcher::StartA:
                    app_.MessageToShow = ActionProgramStartA(app_, form.prefix + launchName + form.suffix);
                    break;
            }
            BugCheck(app_);
            return;
        }
        return;
    }

    if (const std::int16_t group = GroupOfListCode(code); group >= 0) {
        const std::wstring path(
            app_.frmChoose.ComboListItemPath(group).List(app_.PendingItemIndex));
        app_.MessageToShow = LaunchListItem(app_, group, path);
    }
    BugCheck(app_);
}

}  // namespace qs
