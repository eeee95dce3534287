// Keystrokes and double clicks of the Command box.
#include "command/tables.h"
#include "common/application.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "data/launch_list.h"
#include "windows/frm_main.h"

namespace qs {

void FrmMain::SettleListsForKey(std::int16_t key) {
    const std::wstring& text = TextMain.Text();
    const std::int16_t group = key == 13 && text.size() > 2 ? GroupOfListCode(LCase(text.substr(0, 2))) : -1;
    if (group >= 0) {
        LaunchListSettleGroup(app_, group);
    } else {
        LaunchListSettle(app_);
    }
}

void FrmMain::TextMainKeyPress(std::int16_t& key) {
    try {
        // Keys reach the box before the lists are whole; a character and
        // Backspace only change the text, whose search waits for its own
        // group, and Enter on a Command of a list group launches from that
        // group alone, but Esc, the other Commands and control keys act on
        // the lists and the panes, which wait for every group.
        if (key < 32 && key != 8) SettleListsForKey(key);
        switch (key) {
            case 8:
                BackspaceTyped = true;
                return;
            case 27:
                SetTextMainQuietly(L"");
                if (app_.OpenMenuIndex > -1) PictureMenuClick(app_.OpenMenuIndex);
                return;
            case 13: {
                const std::wstring text = TextMain.Text();
                if (text.empty() && app_.MainWidth == MainWidthWeb) {
                    app_.MainWidth = MainWidthCommand;
                    LastWideWidth = app_.MainWidth;
                    ApplyMainWidth();
                    return;
                }
                const std::int16_t n = ToInt16(static_cast<long long>(text.size()));
                if (n < 2) return;
                std::wstring code = LCase(text.substr(0, 2));
                if (n == 2) return;
                std::wstring launchName = text.substr(2);
                RunCommand(code, launchName);
                return;
            }
            default:
                return;
        }
    } catch (const std::exception&) {
        // Any failure in the key's processing ends it silently.
    }
}

}  // namespace qs
