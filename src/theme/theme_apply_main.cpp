// The bar's colours and pictures in the current theme.
#include "common/application.h"
#include "data/report_bug.h"
#include "theme/active_theme.h"
#include "theme/holders.h"

namespace qs {

using ui::PictureSlot;

void ThemeApplyOnMain(Application& app, std::int16_t t) {
    try {
        const ThemeState& s = app.theme;
        FrmMain& f = app.frmMain;
        f.SetBackColor(s.CurrentFormColor);
        for (ui::TextBox* box : {&f.TextMain, &f.TextWebUrl, &f.TextWebName}) {
            box->SetBackColor(s.CurrentBoxColor);
            box->SetForeColor(s.CurrentTextColor);
        }
        f.LabelWebURL.SetForeColor(s.CurrentTextColor);
        f.LabelWebName.SetForeColor(s.CurrentTextColor);
        f.PictureBackZero.SetPicture(OneOfTheme(PictureSlot::ImageBackZero, t));
        f.PictureBackMain.SetPicture(OneOfTheme(PictureSlot::ImageBackMain, t));
        f.PictureBackWeb.SetPicture(OneOfTheme(PictureSlot::ImageBackWeb, t));
        f.PictureShowQuick.SetPicture(app.QuickOpen ? s.ImageQuickOpen : s.ImageQuickClosed);
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnMain");
    }
}

}  // namespace qs
