// The theme of the Add Item and Open pane.
#include "common/application.h"
#include "data/report_bug.h"
#include "theme/active_theme.h"
#include "theme/dark_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs {

void ThemeApplyOnBrowse(Application& app, std::int16_t t) {
    try {
        const ThemeState& s = app.theme;
        FrmBrowse& f = app.frmBrowse;
        f.SetPicture(OneOfTheme(ui::PictureSlot::ImageBack, t));
        for (ui::Frame* frame : {&f.FrameBrowseOption, &f.FrameFindPath, &f.FrameAddToList, &f.FrameAddPath,
                                 &f.FrameSelect, &f.FrameHideWindow}) {
            frame->SetBackColor(s.CurrentFormColor);
            frame->SetForeColor(s.CurrentTextColor);
        }
        for (const auto& option : f.OptionBrowse) {
            option->SetBackColor(s.CurrentFormColor);
            option->SetForeColor(s.CurrentTextColor);
        }
        f.DriveWork.SetBackColor(s.CurrentFormColor);
        f.DriveWork.SetForeColor(s.CurrentTextColor);
        f.DirWork.SetBackColor(s.CurrentFormColor);
        f.DirWork.SetForeColor(s.CurrentTextColor);
        // The file list and the two boxes keep the colour of their state.
        f.FileWork.SetBackColor(f.FileWork.Enabled() ? s.CurrentFormColor : ui::SystemButtonText);
        f.FileWork.SetForeColor(s.CurrentTextColor);
        f.TextAddName.SetBackColor(f.TextAddName.Enabled() ? s.CurrentFormColor : ui::SystemButtonText);
        f.TextAddName.SetForeColor(s.CurrentTextColor);
        f.TextAddPath.SetBackColor(f.TextAddPath.Locked() ? ui::SystemButtonText : s.CurrentFormColor);
        f.TextAddPath.SetForeColor(s.CurrentTextColor);
        f.LabelBrowseBack.SetForeColor(s.CurrentAccentColor);
        f.LabelFindPath.SetForeColor(s.CurrentAccentColor);
        for (ui::Label* label : {&f.LabelAddPath, &f.LabelOpen, &f.LabelAddSelectA}) {
            label->SetForeColor(s.CurrentTextColor);
        }
        f.LabelAddCancel.SetForeColor(IsDarkTheme(t) ? ColorLime : ColorGreen);
        f.PictureAddCancel.SetPicture(OneOfTheme(ui::PictureSlot::ImageMX, t));
        f.SetOKButton(f.PictureAddOK, f.PictureAddOK.Enabled());
        f.SetOKButton(f.PictureSelectOK, f.PictureSelectOK.Enabled());
        f.PictureFindPath.SetPicture(f.PictureFindPath.Enabled() ? s.ImageZeroSet[2] : s.ImageZeroBlank);
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnBrowse");
    }
}

}  // namespace qs
