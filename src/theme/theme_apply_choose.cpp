// The theme of the window of three panes: its controls by kind first, then
// the ones the theme names.
#include "common/application.h"
#include "data/report_bug.h"
#include "theme/active_theme.h"
#include "theme/dark_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs {

namespace {

void ApplyByKind(FrmChoose& f, const ThemeState& s) {
    for (ui::Control* c : f.Controls()) {
        switch (c->Kind()) {
            case ui::ControlKind::Frame:
                // The panes' pictures are areas without a border that let
                // the window's face show through.
                if (!static_cast<ui::Frame*>(c)->Bordered()) break;
                c->SetBackColor(s.CurrentFormColor);
                c->SetForeColor(s.CurrentTextColor);
                break;
            case ui::ControlKind::ComboBox:
            case ui::ControlKind::CheckBox:
            case ui::ControlKind::OptionButton:
            case ui::ControlKind::ListBox:
            case ui::ControlKind::TextBox:
                c->SetBackColor(s.CurrentFormColor);
                c->SetForeColor(s.CurrentTextColor);
                break;
            case ui::ControlKind::Label:
                c->SetForeColor(s.CurrentTextColor);
                break;
            default:
                break;
        }
    }
}

}  // namespace

void ThemeApplyOnChoose(Application& app, std::int16_t t) {
    try {
        const ThemeState& s = app.theme;
        FrmChoose& f = app.frmChoose;
        LaunchListPane& list = f.List;
        f.SetPicture(OneOfTheme(ui::PictureSlot::ImageBack, t));
        ApplyByKind(f, s);

        // The heading and the captions of the group buttons.
        list.LabelListCap.SetForeColor(s.CurrentAccentColor);
        for (const auto& label : list.LabelItemName) label->SetForeColor(s.CurrentAccentColor);

        const ui::PictureRef cross = OneOfTheme(ui::PictureSlot::ImageMX, t);
        for (ui::PictureBox* button :
             {&f.PictureHideList, &f.PictureHideCode, &f.PictureHideTool, &list.ImageCancelClearList}) {
            button->SetPicture(cross);
        }
        for (const auto* buttons : {&list.ImageShowList, &list.ImageListOpen, &list.ImageListRename,
                                    &list.ImageListRemove, &list.ImageListOKRename, &list.ImageListCancelRename}) {
            for (const auto& button : *buttons) button->SetPicture(s.ImageZeroSet[0]);
        }
        for (const auto& button : list.ImageListClear) button->SetPicture(s.ImageZeroSet[3]);
        list.ImageConfirmClearList.SetPicture(s.ImageZeroSet[3]);

        // The question's second line is coloured twice; the second stands.
        list.LabelConfirmClearListB.SetForeColor(IsDarkTheme(t) ? ColorLime : ColorRose);
        list.LabelConfirmClearListB.SetForeColor(IsDarkTheme(t) ? ColorGrey : ColorRose);

        // The Code And Command pane's heading and its bold questions.
        CodeCommandPane& code = f.Code;
        code.LabelCaption.SetForeColor(s.CurrentAccentColor);
        for (const auto& label : code.LabelNoCodeB) label->SetForeColor(s.CurrentAccentColor);

        // The Preferences pane's heading, and a swatch of every theme's
        // colour beside its option, whichever theme is current.
        PreferencesPane& prefs = f.Preferences;
        prefs.LabelPref.SetForeColor(s.CurrentAccentColor);
        for (std::int16_t i = 0; i < prefs.LabelColor.Count(); ++i) {
            prefs.LabelColor(i).SetBackColor(s.ThemeFormColor.at(static_cast<std::size_t>(i)));
        }
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnChoose");
    }
}

}  // namespace qs
