#pragma once
// Help: a borderless window with thirteen topics down its left side and the
// chosen topic's text at its right. It is loaded when the user asks for it
// and unloaded when closed; only its place outlives it, for the run.
//
// Where the handlers live:
//   frm_help.cpp         the controls, their places, the wiring
//   help_load.cpp        Load: the place, the panels, the names and version
//   help_topics.cpp      the topic click, the arrows between topics, the
//                        hover underlines
//   help_window.cpp      Exit Help and Esc, the two links, the drag with
//                        the work-area clamp
//   help_texts.cpp       the text of each topic
#include <cstdint>

#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace qs {

struct Application;

inline constexpr std::int32_t HelpWidth = 5400;
inline constexpr std::int32_t HelpHeight = 8652;
// Where Load puts the right side: the text box, and the start and About
// panels that take its place.
inline constexpr std::int32_t HelpPanelLeft = 1560;
inline constexpr std::int32_t HelpTextTop = 480;
inline constexpr std::int32_t HelpPanelTop = 1440;
// The topics; the last one, "About", shows a panel instead of text.
inline constexpr std::int16_t HelpTopicCount = 13;
inline constexpr std::int16_t HelpAboutTopic = 12;

class FrmHelp : public ui::Form {
public:
    explicit FrmHelp(Application& app);

    // Declared top of the stack first: the panels lie under what they hold.
    ui::Label LabelHelpWelcome;
    ui::Label LabelHelpHeading;
    ui::ControlArray<ui::Label> LabelHelpTopic;
    ui::Label LabelHelpExit;
    // The fixed captions: 0 "Topics:", 1 "Add To List", 2 and 3 the start
    // panel's prompts, 4 and 5 its two texts, 6 to 8 the About panel's.
    ui::ControlArray<ui::Label> LabelNoUse;
    ui::Line LineTopicA;
    ui::Line LineTopicB;
    ui::Line LineTopicC;
    ui::TextBox TextHelp;
    ui::PictureBox ImageMe;
    ui::Label LabelHelpHello;
    ui::Label LabelHelpOnline;
    ui::Label LabelHelpNickName;
    ui::Label LabelHelpAppNameA;
    ui::Label LabelHelpAppNameB;
    ui::Label LabelHelpAppVersion;
    ui::Label LabelHelpExtraA;
    ui::Label LabelHelpExtraB;
    ui::Label LabelHelpExtraC;
    ui::Label LabelHelpExtraD;
    ui::Frame PictureTopic;
    ui::Frame PictureHelpMe;
    ui::Frame FrameHelpAbout;

    // The window has had a place from the mouse in this run, and that
    // place; they outlive the window.
    bool HelpPosKnown = false;
    std::int16_t HelpTop = 0;
    std::int16_t HelpLeft = 0;

    // The topic chosen; -1 until one is, at each Load.
    std::int16_t HelpTopic() const { return helpTopic_; }

    // Event handlers.
    void FormLoad();
    void FormMouseMove(std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y);
    void FormKeyDown(std::int16_t& keyCode, std::int16_t shift);
    void LabelHelpTopicClick(std::int16_t index);
    void LabelHelpTopicMouseMove(std::int16_t index);
    void LabelHelpExitClick();
    void LabelHelpExitMouseMove();
    void LabelHelpOnlineClick();
    void LabelHelpOnlineMouseMove();
    void LabelHelpExtraDClick();
    void LabelHelpExtraDMouseMove();
    void PictureTopicMouseMove();
    void PictureHelpMeMouseMove();
    void FrameHelpAboutMouseMove();

private:
    void PlaceControls();
    void PlaceTopics();
    void PlaceStartPanel();
    void PlaceAboutPanel();
    void WireEvents();
    // Closes the window as "Exit Help" does.
    void CloseHelp();

    Application& app_;
    std::int16_t helpTopic_ = -1;
};

}  // namespace qs
