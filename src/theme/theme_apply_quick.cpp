// The theme of the QuickLauncher: its strips and labels by kind, then its
// buttons, whose pictures follow the window's state.
#include "common/application.h"
#include "data/report_bug.h"
#include "theme/active_theme.h"
#include "theme/checked_set.h"
#include "theme/holders.h"

namespace qs {

using ui::PictureSlot;

void ThemeApplyOnQuick(Application& app, std::int16_t t) {
    // A theme redraws the windows that exist; the QuickLauncher is loaded
    // at start before the first theme.
    if (!app.frmQuick.IsLoaded()) return;
    try {
        const ThemeState& s = app.theme;
        FrmQuick& f = app.frmQuick;
        const ui::PictureRef blank = OneOfTheme(PictureSlot::ImageMStar, t);
        const auto count = [&app](std::int16_t group) { return app.frmChoose.ComboListItemName(group).ListCount(); };

        f.SetBackColor(s.CurrentFormColor);
        f.PictureZeroBack.SetPicture(OneOfTheme(PictureSlot::ImageBackZero, t));
        f.PictureTotalBack.SetPicture(OneOfTheme(PictureSlot::ImageBackZero, t));
        f.PictureBrowseBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackS, t));
        f.PictureTypeBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackS, t));
        f.PictureChoiceBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackM, t));
        f.PictureRangeBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackM, t));
        f.PictureQuickBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackB, t));
        f.PictureIndexBack.SetPicture(OneOfTheme(PictureSlot::ImageQBackB, t));
        f.LabelQuickTotal.SetForeColor(s.CurrentTextColor);
        f.LabelQuickShowing.SetForeColor(s.CurrentTextColor);
        for (const auto& label : f.LabelQIndex) label->SetForeColor(s.CurrentTextColor);

        f.ImageQuickZero.SetPicture(f.Width() == QuickWidthWide ? s.ImageZeroSet[2] : s.ImageZeroSet[3]);
        f.ImageQuickHeight.SetPicture(f.Height() == QuickHeightFull ? s.ImageQuickOpen : s.ImageQuickClosed);
        f.ImageHideQuick.SetPicture(s.ImageSmallSet[1]);
        f.ImageQuickHeightA.SetPicture(s.ImageSmallSet[1]);
        // The preferred group, not the one shown, decides whether the
        // selected picture is blank.
        if (app.settings.QuickDefaultItem == QuickNoGroup || count(f.QuickGroup) == 0) {
            f.ImageQuickSelected.SetPicture(blank);
        } else {
            f.ImageQuickSelected.SetPicture(FiveSetEntry(s.ImageChoiceSet, f.QuickGroup));
        }
        for (std::int16_t g = 0; g < f.ImageQuickChoice.Count(); ++g) {
            ui::PictureBox& choice = f.ImageQuickChoice(g);
            if (count(g) == 0) {
                choice.SetPicture(blank);
            } else if (!choice.Visible()) {
                choice.SetPicture(ui::HolderPicture(PictureSlot::ImageMQSelected, g));
            } else {
                choice.SetPicture(FiveSetEntry(s.ImageChoiceSet, g));
            }
        }
        for (std::int16_t i = 0; i < f.ImageQuick.Count(); ++i) {
            ui::PictureBox& button = f.ImageQuick(i);
            if (f.QuickGroup == QuickNoGroup || count(f.QuickGroup) == 0 || i == f.QuickItemClicked) {
                button.SetPicture(blank);
            } else {
                button.SetPicture(FiveSetEntry(s.ImageZeroSet, f.QuickGroup));
            }
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnQuick");
    }
}

}  // namespace qs
