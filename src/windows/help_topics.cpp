// Choosing a topic, by click or by the arrow keys, and the underline that
// marks the link under the pointer.
#include "common/application.h"
#include "theme/active_theme.h"
#include "theme/dark_theme.h"
#include "theme/theme_colors.h"
#include "windows/frm_help.h"
#include "windows/help_texts.h"

namespace qs {

namespace {

constexpr std::int16_t KeyCodeEscape = 27;
constexpr std::int16_t KeyCodeUp = 38;
constexpr std::int16_t KeyCodeDown = 40;

// The chosen topic's caption stands out from the others.
constexpr ui::Color LightChosenColor = ui::Rgb(91, 132, 148);

}  // namespace

void FrmHelp::LabelHelpTopicClick(std::int16_t index) {
    helpTopic_ = index;
    PictureHelpMe.SetVisible(false);
    const ThemeState& s = app_.theme;
    for (std::int16_t i = 0; i < HelpTopicCount; ++i) {
        ui::Color color = i == HelpAboutTopic ? s.CurrentAlertColor : s.CurrentAccentColor;
        if (i == index) color = IsDarkTheme(app_.settings.ThemeIndex) ? ColorWhite : LightChosenColor;
        LabelHelpTopic(i).SetForeColor(color);
    }
    const bool about = index == HelpAboutTopic;
    TextHelp.SetVisible(!about);
    LabelHelpHeading.SetCaption(about ? L"" : LabelHelpTopic(index).Caption());
    FrameHelpAbout.SetVisible(about);
    if (!about) TextHelp.SetText(HelpTopicText(index));
}

void FrmHelp::FormKeyDown(std::int16_t& keyCode, std::int16_t) {
    if (keyCode == KeyCodeEscape) {
        keyCode = 0;
        LabelHelpExitClick();
        return;
    }
    if (keyCode != KeyCodeUp && keyCode != KeyCodeDown) return;
    // The arrows step down and up the list and stop at its ends; with no
    // topic chosen, Down starts at the first and Up at the last.
    std::int16_t topic = helpTopic_;
    if (keyCode == KeyCodeDown) {
        topic = topic < HelpTopicCount - 1 ? static_cast<std::int16_t>(topic + 1) : topic;
    } else {
        topic = topic == -1 ? HelpAboutTopic : static_cast<std::int16_t>(topic > 0 ? topic - 1 : 0);
    }
    keyCode = 0;
    if (topic != helpTopic_) LabelHelpTopicClick(topic);
}

void FrmHelp::LabelHelpTopicMouseMove(std::int16_t index) {
    for (std::int16_t i = 0; i < HelpTopicCount; ++i) {
        LabelHelpTopic(i).SetFontUnderline(i == index && index != helpTopic_);
    }
}

void FrmHelp::LabelHelpExitMouseMove() { LabelHelpExit.SetFontUnderline(true); }

void FrmHelp::LabelHelpExtraDMouseMove() { LabelHelpExtraD.SetFontUnderline(true); }

void FrmHelp::LabelHelpOnlineMouseMove() {
    const std::int16_t t = app_.settings.ThemeIndex;
    LabelHelpOnline.SetForeColor(t < 2 ? ColorBlue : (t == 2 ? ColorLight : ColorRose));
}

void FrmHelp::PictureTopicMouseMove() {
    LabelHelpExit.SetFontUnderline(false);
    for (const auto& topic : LabelHelpTopic) topic->SetFontUnderline(false);
}

void FrmHelp::FrameHelpAboutMouseMove() { LabelHelpExtraD.SetFontUnderline(false); }

void FrmHelp::PictureHelpMeMouseMove() { LabelHelpOnline.SetForeColor(HelpOnlineColor(app_.settings.ThemeIndex)); }

}  // namespace qs
