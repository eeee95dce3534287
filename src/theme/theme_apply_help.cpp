// The theme of Help: its face and panels, the accent of its headings and
// links, the alert colour of the greeting and of "About", ordinary text
// for the rest.
#include "common/application.h"
#include "data/report_bug.h"
#include "theme/active_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs {

using ui::PictureSlot;

ui::Color HelpOnlineColor(std::int16_t t) {
    if (t < 2) return ColorGreen;
    return t > 2 ? ColorGrey : ColorLime;
}

void ThemeApplyOnHelp(Application& app, std::int16_t t) {
    try {
        const ThemeState& s = app.theme;
        FrmHelp& f = app.frmHelp;
        f.SetPicture(OneOfTheme(PictureSlot::ImageBack, t));
        f.TextHelp.SetBackColor(s.CurrentFormColor);
        f.TextHelp.SetForeColor(s.CurrentTextColor);
        for (ui::Frame* panel : {&f.PictureTopic, &f.PictureHelpMe, &f.FrameHelpAbout}) {
            panel->SetBackColor(s.CurrentFormColor);
        }
        f.ImageMe.SetPicture(OneOfTheme(PictureSlot::ImageMe, t));
        for (ui::Line* line : {&f.LineTopicA, &f.LineTopicB, &f.LineTopicC}) line->SetBorderColor(s.CurrentAccentColor);
        for (ui::Label* label : {&f.LabelHelpHeading, &f.LabelHelpExit, &f.LabelHelpAppNameA, &f.LabelHelpExtraD}) {
            label->SetForeColor(s.CurrentAccentColor);
        }
        f.LabelHelpWelcome.SetForeColor(s.CurrentAlertColor);
        for (ui::Label* label : {&f.LabelHelpHello, &f.LabelHelpNickName, &f.LabelHelpAppNameB, &f.LabelHelpAppVersion,
                                 &f.LabelHelpExtraA, &f.LabelHelpExtraB, &f.LabelHelpExtraC}) {
            label->SetForeColor(s.CurrentTextColor);
        }
        for (const auto& label : f.LabelNoUse) label->SetForeColor(s.CurrentTextColor);
        for (std::int16_t i = 0; i < f.LabelHelpTopic.Count(); ++i) {
            f.LabelHelpTopic(i).SetForeColor(i == HelpAboutTopic ? s.CurrentAlertColor : s.CurrentAccentColor);
        }
        f.LabelHelpOnline.SetForeColor(HelpOnlineColor(t));
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnHelp");
    }
}

}  // namespace qs
