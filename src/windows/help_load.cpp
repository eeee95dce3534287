// Help's Load: the window's place, the start panel in front, and the names
// and version its labels show.
#include <string_view>

#include "common/application.h"
#include "common/maker.h"
#include "theme/active_theme.h"
#include "windows/frm_help.h"

namespace qs {

namespace {

// The maker's web address as a bare domain: no scheme, no "www.".
std::wstring BareDomain(std::wstring_view address) {
    for (const std::wstring_view prefix : {L"http://", L"https://", L"www."}) {
        if (address.substr(0, prefix.size()) == prefix) address.remove_prefix(prefix.size());
    }
    return std::wstring(address.substr(0, address.find(L'/')));
}

// Centred on a screen of `screen`, or at 0 when the window fills it.
std::int32_t Centred(std::int32_t screen, std::int32_t size) { return screen == size ? 0 : (screen - size) / 2; }

}  // namespace

void FrmHelp::FormLoad() {
    std::int32_t top = HelpTop;
    std::int32_t left = HelpLeft;
    if (!HelpPosKnown) {
        top = Centred(app_.sys.ScreenHeightTwips(), HelpHeight);
        left = Centred(app_.sys.ScreenWidthTwips(), HelpWidth);
    }
    Move(left, top, HelpWidth, HelpHeight);

    // Each load starts at the start panel, with no topic chosen and no
    // link underlined.
    TextHelp.Move(HelpPanelLeft, HelpTextTop, TextHelp.Width(), TextHelp.Height());
    TextHelp.SetText(L"");
    TextHelp.SetVisible(false);
    FrameHelpAbout.Move(HelpPanelLeft, HelpPanelTop, FrameHelpAbout.Width(), FrameHelpAbout.Height());
    FrameHelpAbout.SetVisible(false);
    PictureHelpMe.Move(HelpPanelLeft, HelpPanelTop, PictureHelpMe.Width(), PictureHelpMe.Height());
    PictureHelpMe.SetVisible(true);
    for (const auto& topic : LabelHelpTopic) topic->SetFontUnderline(false);
    LabelHelpExit.SetFontUnderline(false);
    LabelHelpExtraD.SetFontUnderline(false);

    app_.HelpOpen = true;
    helpTopic_ = -1;

    const std::wstring program = maker::ProgramName;
    const std::wstring& version = app_.tables.ProgramVersion;
    LabelHelpAppNameA.SetCaption(program);
    LabelHelpAppNameB.SetCaption(L"My " + program.substr(2) + L" !!");
    LabelHelpAppVersion.SetCaption(L"Fresh! New! " + version);
    LabelHelpHeading.SetCaption(program + L"    " + version);
    LabelHelpExtraA.SetCaption(L"Don't believe Me? Ask " + std::wstring(maker::MakerName) + L"!");
    LabelHelpExtraB.SetCaption(L"Ask " + std::wstring(maker::MailAddress) + L" - I don't care.");
    LabelHelpExtraC.SetCaption(L"Can't Find " + std::wstring(maker::MakerName) + L"'s Home?   It's Here:");
    LabelHelpExtraD.SetCaption(BareDomain(maker::WebSite));
    const std::wstring& name =
        app_.family.UserNickName.empty() ? app_.place.UserNameEnv : app_.family.UserNickName;
    LabelHelpHello.SetCaption(name);
    LabelHelpNickName.SetCaption(name);
    LabelHelpWelcome.SetCaption(L"Welcome " + name);

    ThemeApplyOnHelp(app_, app_.settings.ThemeIndex);
}

}  // namespace qs
