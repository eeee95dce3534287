#include "command/default_values.h"

#include "common/application.h"
#include "common/maker.h"
#include "startup/active_message.h"

namespace qs {

void AtStartDefaultValue(Application& app) {
    try {
        auto& t = app.tables;
        t.ProgramVersion = std::to_wstring(4) + L"." + std::to_wstring(2019);
        app.OpenMenuIndex = -1;
        app.SavedMainTop = -1;
        // The Preferences pane edits copies of the saved word and size.
        app.settings.OptionWordEdit = app.settings.OptionWord;
        app.settings.FontSizeEdit = app.settings.FontSizeSetting;
        t.ListGroupNames = {L"File", L"Folder", L"Program", L"Email", L"Web URL"};
        t.ATaskNames = {L"Help", L"ChangeUserName", L"CreateAppShortcut", L"DeleteAPPShortcut", L"StartScreensaver"};
        t.SpecialFolderNames = {L"Desktop",  L"Favorites", L"Fonts",     L"MyDocuments", L"Programs",
                                L"Recent",   L"SendTo",    L"StartMenu", L"Startup"};
        t.ControlPanelNames = {L"Accessibility", L"AddNewPrinter",   L"AddRemove",   L"Appearance",
                               L"ControlPanel",  L"DateTime",        L"DesktopIcon", L"DesktopSettings",
                               L"Fonts",         L"Internet",        L"Mouse",       L"Multimedia",
                               L"Regional",      L"Screensaver",     L"System",      L"Themes"};
        t.FeedbackMailAddress = {maker::MailAddress};
        t.FeedbackMailSubject = {L"Quillstart - Found Bug"};
    } catch (const std::exception&) {
        app.MessageToShow = L"Quillstart:Bug:AtStartDefaultValue";
        MessageBug(app);
    }
}

}  // namespace qs
