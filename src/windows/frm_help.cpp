// Help's controls: the panel each lies in, its place and caption, and which
// handler each event reaches.
#include "windows/frm_help.h"

#include <iterator>

#include "common/application.h"

namespace qs {

namespace {

constexpr const wchar_t* TopicCaptions[HelpTopicCount] = {
    L"Introduction", L"Install,  Upgrade && Uninstall", L"Interface", L"Web URL", L"Program",
    L"All Item",     L"View List",                      L"Type A Command", L"Code And Command",
    L"More Commands For URL", L"Quick Launcher",        L"Things To Remember", L"About",
};

constexpr const wchar_t* FixedCaptions[] = {
    L"Topics:",
    L"Add To List",
    L"Find Topics On Your Left",
    L"Please Select A Topic",
    L"Much better is to view online Help instead. Since there are all picture to compare with, it will make much "
    L"easier to understand descriptions. To view online Help please click the Command bellow:",
    L"View online help anytime by typing above Command in the \"Main Text Box\" and pressing \"Enter\" key on your "
    L"keyboard.",
    L"This Is",
    L"And This Is",
    L"How About That !!",
};

// The size of the right side's panels, and the width of the topic column;
// the contents of each are placed from its corner.
constexpr std::int32_t PanelWidth = 3600;
constexpr std::int32_t PanelHeight = 6960;
constexpr std::int32_t TopicsWidth = 1260;
// The lines each topic's caption takes in the column.
constexpr std::int16_t TopicLines[HelpTopicCount] = {1, 3, 1, 1, 1, 1, 1, 2, 2, 3, 1, 2, 1};

}  // namespace

FrmHelp::FrmHelp(Application& app)
    : ui::Form(L"frmHelp", ui::FormStyle::Borderless),
      LabelHelpWelcome(*this, L"LabelHelpWelcome", L"Welcome"),
      LabelHelpHeading(*this, L"LabelHelpHeading", L"Heading"),
      LabelHelpTopic(*this, L"LabelHelpTopic", HelpTopicCount),
      LabelHelpExit(*this, L"LabelHelpExit", L"Exit Help"),
      LabelNoUse(*this, L"LabelNoUse", static_cast<std::int16_t>(std::size(FixedCaptions))),
      LineTopicA(*this, L"LineTopicA"),
      LineTopicB(*this, L"LineTopicB"),
      LineTopicC(*this, L"LineTopicC"),
      TextHelp(*this, L"TextHelp", true),
      ImageMe(*this, L"ImageMe"),
      LabelHelpHello(*this, L"LabelHelpHello"),
      LabelHelpOnline(*this, L"LabelHelpOnline", L"a.Help"),
      LabelHelpNickName(*this, L"LabelHelpNickName"),
      LabelHelpAppNameA(*this, L"LabelHelpAppNameA"),
      LabelHelpAppNameB(*this, L"LabelHelpAppNameB"),
      LabelHelpAppVersion(*this, L"LabelHelpAppVersion"),
      LabelHelpExtraA(*this, L"LabelHelpExtraA"),
      LabelHelpExtraB(*this, L"LabelHelpExtraB"),
      LabelHelpExtraC(*this, L"LabelHelpExtraC"),
      LabelHelpExtraD(*this, L"LabelHelpExtraD"),
      PictureTopic(*this, L"PictureTopic", L"", false),
      PictureHelpMe(*this, L"PictureHelpMe", L"", false),
      FrameHelpAbout(*this, L"FrameHelpAbout", L"", false),
      app_(app) {
    SetCaption(L"Help");
    Move(0, 0, HelpWidth, HelpHeight);
    PlaceControls();
    WireEvents();
}

void FrmHelp::PlaceControls() {
    LabelHelpWelcome.Move(240, 240, TopicsWidth, 480);
    LabelHelpWelcome.SetFont(0, true);
    LabelHelpHeading.Move(HelpPanelLeft, 120, PanelWidth, 300);
    LabelHelpHeading.SetFont(0, true);
    // A topic's caption is its heading too, where "&&" stands for "&".
    LabelHelpHeading.SetUseMnemonic(true);
    for (std::int16_t i = 0; i < HelpTopicCount; ++i) {
        LabelHelpTopic(i).SetCaption(TopicCaptions[i]);
        LabelHelpTopic(i).SetUseMnemonic(true);
    }
    for (std::int16_t i = 0; i < LabelNoUse.Count(); ++i) LabelNoUse(i).SetCaption(FixedCaptions[i]);

    TextHelp.Move(HelpPanelLeft, HelpTextTop, PanelWidth, HelpHeight - HelpTextTop - 240);
    TextHelp.SetLocked(true);
    // Shown only once a topic with text is chosen.
    TextHelp.SetVisible(false);

    PlaceTopics();
    PlaceStartPanel();
    PlaceAboutPanel();
}

void FrmHelp::PlaceTopics() {
    PictureTopic.Move(240, 840, TopicsWidth, 7260);
    ui::Frame& p = PictureTopic;
    const std::int32_t width = TopicsWidth - 60;
    // Each topic gets the lines its caption wraps to in the narrow column.
    const auto rowHeight = [](std::int16_t topic) { return 210 * TopicLines[topic] + 60; };
    std::int32_t top = 60;
    p.Place(LabelNoUse(0), 60, top, width, 240);
    p.Place(LineTopicA, 60, top + 285, width - 60, 15);
    top += 360;
    const auto placeTopic = [&](std::int16_t i, std::int32_t indent) {
        p.Place(LabelHelpTopic(i), 60 + indent, top, width - indent, rowHeight(i));
        top += rowHeight(i) + 60;
    };
    for (std::int16_t i = 0; i <= 2; ++i) placeTopic(i, 0);
    // The three ways to add an item stand under their caption.
    top += 30;
    p.Place(LabelNoUse(1), 60, top, width, 240);
    top += 285;
    for (std::int16_t i = 3; i <= 5; ++i) placeTopic(i, 120);
    p.Place(LineTopicB, 60, top + 30, width - 60, 15);
    top += 105;
    for (std::int16_t i = 6; i < HelpTopicCount; ++i) placeTopic(i, 0);
    p.Place(LineTopicC, 60, top + 60, width - 60, 15);
    p.Place(LabelHelpExit, 60, top + 180, width, 300);
}

void FrmHelp::PlaceStartPanel() {
    PictureHelpMe.Move(HelpPanelLeft, HelpPanelTop, PanelWidth, PanelHeight);
    ui::Frame& p = PictureHelpMe;
    p.Place(ImageMe, 0, 0, 960, 960);
    ImageMe.SetAccessibleName(L"Help");
    p.Place(LabelHelpHello, 1080, 300, PanelWidth - 1080, 300);
    LabelHelpHello.SetFont(0, true);
    p.Place(LabelNoUse(2), 0, 1200, PanelWidth, 300);
    p.Place(LabelNoUse(3), 0, 1560, PanelWidth, 300);
    p.Place(LabelNoUse(4), 0, 2160, PanelWidth, 1500);
    p.Place(LabelHelpOnline, 1200, 3780, 1200, 300);
    LabelHelpOnline.SetFont(0, true);
    p.Place(LabelNoUse(5), 0, 4260, PanelWidth, 960);
}

void FrmHelp::PlaceAboutPanel() {
    FrameHelpAbout.Move(HelpPanelLeft, HelpPanelTop, PanelWidth, PanelHeight);
    ui::Frame& p = FrameHelpAbout;
    p.Place(LabelNoUse(6), 0, 0, PanelWidth, 300);
    p.Place(LabelHelpNickName, 240, 300, PanelWidth - 240, 300);
    LabelHelpNickName.SetFont(0, true);
    p.Place(LabelNoUse(7), 0, 840, PanelWidth, 300);
    p.Place(LabelHelpAppNameA, 240, 1140, PanelWidth - 240, 300);
    LabelHelpAppNameA.SetFont(0, true);
    p.Place(LabelHelpAppNameB, 240, 1440, PanelWidth - 240, 300);
    p.Place(LabelHelpAppVersion, 240, 1740, PanelWidth - 240, 300);
    p.Place(LabelNoUse(8), 0, 2280, PanelWidth, 300);
    p.Place(LabelHelpExtraA, 240, 2580, PanelWidth - 240, 300);
    p.Place(LabelHelpExtraB, 240, 2880, PanelWidth - 240, 540);
    p.Place(LabelHelpExtraC, 240, 3600, PanelWidth - 240, 300);
    p.Place(LabelHelpExtraD, 240, 3900, PanelWidth - 240, 300);
    LabelHelpExtraD.SetFont(0, true);
    FrameHelpAbout.SetVisible(false);
}

void FrmHelp::WireEvents() {
    LoadEvent = [this] { FormLoad(); };
    MouseMove = [this](std::int16_t button, std::int16_t shift, std::int32_t x, std::int32_t y) {
        FormMouseMove(button, shift, x, y);
    };
    KeyDown = [this](std::int16_t& keyCode, std::int16_t shift) { FormKeyDown(keyCode, shift); };
    LabelHelpTopic.OnEach(&ui::Label::Click, [this](std::int16_t i) { LabelHelpTopicClick(i); });
    LabelHelpTopic.OnEach(&ui::Label::MouseMove,
                          [this](std::int16_t i, std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
                              LabelHelpTopicMouseMove(i);
                          });
    const auto onMove = [](auto handler) {
        return [handler](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { handler(); };
    };
    LabelHelpExit.Click = [this] { LabelHelpExitClick(); };
    LabelHelpExit.MouseMove = onMove([this] { LabelHelpExitMouseMove(); });
    LabelHelpOnline.Click = [this] { LabelHelpOnlineClick(); };
    LabelHelpOnline.MouseMove = onMove([this] { LabelHelpOnlineMouseMove(); });
    LabelHelpExtraD.Click = [this] { LabelHelpExtraDClick(); };
    LabelHelpExtraD.MouseMove = onMove([this] { LabelHelpExtraDMouseMove(); });
    PictureTopic.MouseMove = onMove([this] { PictureTopicMouseMove(); });
    PictureHelpMe.MouseMove = onMove([this] { PictureHelpMeMouseMove(); });
    FrameHelpAbout.MouseMove = onMove([this] { FrameHelpAboutMouseMove(); });
    // A read-only box: no key reaches its text.
    TextHelp.KeyPress = [](std::int16_t& key) { key = 0; };
}

}  // namespace qs
