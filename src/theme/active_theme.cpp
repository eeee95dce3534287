#include "theme/active_theme.h"

#include "common/application.h"
#include "common/failure.h"
#include "data/report_bug.h"
#include "theme/dark_theme.h"
#include "theme/holders.h"
#include "theme/theme_colors.h"

namespace qs {

using ui::PictureSlot;

void AtStartDefaultColor(Application& app) {
    ThemeState& s = app.theme;
    s.ThemeFormColor = ThemeFormColors;
    s.ThemeBoxColor = ThemeBoxColors;
}

namespace {

void FillPictures(ThemeState& s, std::int16_t t) {
    for (std::int16_t i = 0; i <= 8; ++i) {
        s.ButtonNormal[static_cast<std::size_t>(i)] = ButtonOfTheme(PictureSlot::ImageMenu, t, i);
        s.ButtonOver[static_cast<std::size_t>(i)] = ButtonOfTheme(PictureSlot::ImageDown, t, i);
        // The active look is the same in every theme.
        s.ButtonActive[static_cast<std::size_t>(i)] = ui::HolderPicture(PictureSlot::ImageActive, i);
    }
    for (std::int16_t i = 0; i <= 4; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        s.ImageChoiceSet[slot] = FiveOfTheme(PictureSlot::ImageMQChoice, t, i);
        s.ImageBigSet[slot] = FiveOfTheme(PictureSlot::ImageBU, t, i);
        s.ImageZeroSet[slot] = FiveOfTheme(PictureSlot::ImageMU, t, i);
        s.ImageSmallSet[slot] = FiveOfTheme(PictureSlot::ImageSU, t, i);
    }
    s.ImageBigDown = TwoWayOfTheme(PictureSlot::ImageBD, t);
    s.ImageZeroOver = TwoWayOfTheme(PictureSlot::ImageMD, t);
    s.ImageQuickOver = TwoWayOfTheme(PictureSlot::ImageSD, t);
    s.ImageBigBlank = OneOfTheme(PictureSlot::ImageBZ, t);
    s.ImageZeroBlank = OneOfTheme(PictureSlot::ImageMZ, t);
    s.ImageSmallBlank = OneOfTheme(PictureSlot::ImageSZ, t);
    // Theme 2 shows the small special button the other way round.
    s.ImageQuickClosed = OneOfTheme(t == 2 ? PictureSlot::ImageSSpUR : PictureSlot::ImageSSpUG, t);
    s.ImageQuickOpen = OneOfTheme(t == 2 ? PictureSlot::ImageSSpUG : PictureSlot::ImageSSpAG, t);
    s.ImageQuickOverOpen = OneOfTheme(PictureSlot::ImageSSpMO, t);
    s.ImageQuickDown = OneOfTheme(PictureSlot::ImageSSpMD, t);
}

}  // namespace

void ThemeCreate(Application& app, std::int16_t& t) {
    try {
        if (t < 0 || t >= ThemeCount) throw SubscriptOutOfRange();
        ThemeState& s = app.theme;
        s.CurrentBoxColor = s.ThemeBoxColor[static_cast<std::size_t>(t)];
        s.CurrentFormColor = s.ThemeFormColor[static_cast<std::size_t>(t)];
        s.CurrentTextColor = IsDarkTheme(t) ? ColorLight : ColorDark;
        s.CurrentAccentColor = IsDarkTheme(t) ? ColorLime : ColorBlue;
        s.CurrentAlertColor = IsDarkTheme(t) ? ui::Rgb(255, 255, 0) : ui::Rgb(192, 0, 0);
        FillPictures(s, t);
        app.settings.ThemeIndex = t;
        ThemeApplyOnMain(app, t);
        ThemeApplyOnBrowse(app, t);
        ThemeApplyOnChoose(app, t);
        ThemeApplyOnQuick(app, t);
        if (app.HelpOpen) ThemeApplyOnHelp(app, t);
        if (app.place.StartingUp) app.HelpOpen = false;
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeCreate");
    }
}

void ThemeApplyOnMessage(Application& app, std::int16_t t) {
    try {
        const ThemeState& s = app.theme;
        FrmMessage& f = app.frmMessage;
        f.SetPicture(OneOfTheme(PictureSlot::ImageBack, t));
        f.TextMessage.SetBackColor(s.CurrentFormColor);
        f.TextMessage.SetForeColor(s.CurrentTextColor);
        for (auto& box : f.TextName) box->SetBackColor(s.CurrentFormColor);
        f.CheckDoNotShow.SetBackColor(s.CurrentFormColor);
        f.CheckDoNotShow.SetForeColor(s.CurrentTextColor);
        f.LabelMsgFormCaption.SetForeColor(s.CurrentAccentColor);
        for (auto& label : f.LabelName) label->SetForeColor(s.CurrentTextColor);
        f.LabelHead.SetForeColor(s.CurrentTextColor);
        f.LabelOK.SetForeColor(s.CurrentTextColor);
        f.LabelCancel.SetForeColor(s.CurrentTextColor);
        f.ImageOK.SetPicture(f.ImageOK.Visible() ? s.ImageZeroSet[2] : s.ImageZeroBlank);
        f.ImageCancel.SetPicture(f.ImageCancel.Visible() ? s.ImageZeroSet[2] : s.ImageZeroBlank);
    } catch (const std::exception&) {
        ReportBug(app, L"ThemeApplyOnMessage");
    }
}

}  // namespace qs
