#include "help_app.h"

#include <stdexcept>

#include "theme/active_theme.h"

namespace qs::test {

FrmHelp& HelpApp::OpenHelp() {
    if (app.HelpOpen) throw std::logic_error("Help is already open");
    ClickHelpButton();
    return help();
}

void HelpApp::SwitchTheme(std::int16_t t) {
    ThemeCreate(app, t);
}

std::wstring HelpApp::UnderlinedTopics() {
    std::wstring marks;
    for (const auto& topic : help().LabelHelpTopic) marks += topic->FontUnderline() ? L'1' : L'0';
    return marks;
}

}  // namespace qs::test
