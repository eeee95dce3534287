// Keystrokes and double clicks of the Command box.
#include "common/application.h"
#include "common/failure.h"
#include "common/text_case.h"
#include "windows/frm_main.h"

namespace qs {

void FrmMain::TextMainKeyPress(std::int16_t& key) {
    try {
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
