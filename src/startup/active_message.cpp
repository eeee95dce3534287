#include "startup/active_message.h"

#include <string_view>

#include "command/launchers.h"
#include "common/application.h"
#include "data/active_family.h"
#include "data/report_bug.h"
#include "common/maker.h"
#include "startup/always_on_top.h"
#include "startup/message_texts.h"
#include "theme/active_theme.h"

namespace qs {

namespace {

const std::wstring CRLF = L"\r\n";

// The heading of every message is the addressee's name.
void ComposeCommon(Application& app, const wchar_t* buttons) {
    app.message.MessageCaption = app.family.UserNickName.empty() ? app.place.UserNameEnv : app.family.UserNickName;
    app.message.MessageButtons = buttons;
}

void ReadNames(Application& app) {
    app.family.UserFirstName = app.frmMessage.TextName(0).Text();
    app.family.UserLastName = app.frmMessage.TextName(1).Text();
    app.family.UserNickName = app.frmMessage.TextName(2).Text();
}

// Forgets the message that was shown and lets the bar be topmost again,
// unless a pane is open (its closing does that) or the bar doesn't exist yet.
void ClearMessage(Application& app) {
    app.MessageToShow.clear();
    app.message.MessageCaption.clear();
    app.message.MessageBody.clear();
    app.message.MessageButtons.clear();
    app.message.MessageInput.clear();
    app.message.DuplicateItemName.clear();
    app.message.MessageIsBug = false;
    if (!app.message.MessageBeforeMainWindow && app.OpenMenuIndex == -1)
        app.frmMain.TimerOnTop.SetEnabled(app.settings.OptionAlwaysOnTop != 0);
}

void ShowNameBoxes(Application& app) {
    FrmMessage& form = app.frmMessage;
    for (std::int16_t i = 0; i < form.TextName.Count(); ++i) {
        form.LabelName(i).SetVisible(true);
        form.TextName(i).SetVisible(true);
        form.TextName(i).SetTabIndex(static_cast<std::int16_t>(i));
    }
    if (app.MessageToShow != L"MessageChangeUserName") return;
    // Each filling fires the boxes' Change, which shows the preview.
    form.TextName(0).SetText(app.family.UserFirstName);
    form.TextName(1).SetText(app.family.UserLastName);
    form.TextName(2).SetText(app.family.UserNickName);
    if (!app.family.UserFirstName.empty())
        form.TextName(0).SetSelStart(static_cast<std::int32_t>(app.family.UserFirstName.size()));
}

}  // namespace

void MessageBug(Application& app) {
    ComposeCommon(app, L"YesNo");
    // Written in place, in one piece of room: every failure handler comes
    // this way.
    constexpr std::wstring_view before =
        L"There was some error.\r\nIt will be helpful if you please report it.\r\n"
        L"To report, just include the following message in your email :\r\n\r\n";
    constexpr std::wstring_view after = L"\r\n\r\nDo you want to report this bug now?";
    std::wstring& body = app.message.MessageBody;
    body.clear();
    body.reserve(before.size() + app.MessageToShow.size() + after.size());
    body.append(before).append(app.MessageToShow).append(after);
    app.message.MessageIsBug = true;
    std::wstring noInput;
    MessageAAAct(app, app.message.MessageCaption, app.message.MessageBody, app.message.MessageButtons, noInput);
}

void MessageEnd(Application& app) {
    try {
        ComposeCommon(app, L"OK");
        const auto body = FatalMessageBody(app.MessageToShow);
        if (!body) return;
        app.message.MessageBody = *body;
        app.message.MessageWillEnd = true;
        std::wstring noInput;
        MessageAAAct(app, app.message.MessageCaption, app.message.MessageBody, app.message.MessageButtons, noInput);
        // However the dialog went away, a fatal message ends the program.
        app.sys.EndProgram();
    } catch (const std::exception&) {
        ReportBug(app, L"MessageEnd");
    }
}

void MessageProcess(Application& app) {
    try {
        ComposeCommon(app, L"OK");
        const auto message = OrdinaryMessage(app.MessageToShow, app.message.DuplicateItemName);
        if (!message) return;
        if (!message->caption.empty()) app.message.MessageCaption = message->caption;
        app.message.MessageBody = message->body;
        app.message.MessageButtons = message->buttons;
        app.message.MessageInput = message->input;
        MessageAAAct(app, app.message.MessageCaption, app.message.MessageBody, app.message.MessageButtons,
                     app.message.MessageInput);
    } catch (const std::exception&) {
        ReportBug(app, L"MessageProcess");
    }
}

void MessageAAAct(Application& app, std::wstring& caption, std::wstring& body, std::wstring& buttons,
                  std::wstring& input) {
    try {
        FrmMessage& form = app.frmMessage;
        form.Load();
        form.LabelMsgFormCaption.SetCaption(app.message.MessageWillEnd ? L"Sorry For This Bad News" : L"New Message");
        form.CheckDoNotShow.SetValue(app.message.DoNotShowChecked ? 1 : 0);
        form.CheckDoNotShow.SetVisible(app.message.DoNotShowVisible);
        form.LabelHead.SetCaption(caption);
        form.TextMessage.SetText(app.message.MessageWillEnd ? body + CRLF + CRLF + L"Quillstart will exit now." : body);
        form.LabelOK.SetCaption(buttons == L"YesNo" ? L"Yes" : L"OK");
        form.LabelCancel.SetCaption(buttons == L"YesNo" ? L"No" : L"Cancel");
        if (input == L"Input012") ShowNameBoxes(app);
        app.message.DoNotShowVisible = false;
        if (!app.message.MessageBeforeMainWindow && app.frmMain.TimerOnTop.Enabled()) {
            app.frmMain.TimerOnTop.SetEnabled(false);
            ActionAlwaysOnTopOff(app);
        }
        form.ImageOK.SetVisible(buttons != L"Cancel");
        form.ImageCancel.SetVisible(buttons != L"OK");
        // Before the theme exists (start-up) the buttons take the fixed
        // pictures; afterwards the theme colours the whole window.
        if (app.place.StartingUp) {
            form.ImageOK.SetPicture(form.ReplyButtonPicture(form.ImageOK.Visible()));
            form.ImageCancel.SetPicture(form.ReplyButtonPicture(form.ImageCancel.Visible()));
        } else {
            ThemeApplyOnMessage(app, app.settings.ThemeIndex);
        }
        form.ShowModal();
    } catch (const std::exception&) {
        // A dialog that fails while it reports its own failure would report
        // it again without end; that one time it stays silent.
        if (app.message.MessageIsBug && app.MessageToShow == L"Quillstart:Bug:MessageAAAct") return;
        ReportBug(app, L"MessageAAAct");
    }
}

void MessageReplyCancel(Application& app) {
    try {
        if (app.message.MessageWillEnd) app.sys.EndProgram();
        app.frmMessage.Unload();
        ClearMessage(app);
    } catch (const std::exception&) {
        ReportBug(app, L"MessageReplyCancel");
    }
}

void MessageReplyOK(Application& app) {
    try {
        if (app.message.MessageWillEnd) app.sys.EndProgram();
        if (app.MessageToShow == L"MessageGetUserName" || app.MessageToShow == L"MessageChangeUserName") ReadNames(app);
        if (app.MessageToShow == L"MessageChangeUserName") {
            // A new name is the family's at once: every sibling shows it.
            KinfoldRecord& live = app.family.KinfoldLive;
            live.UserNickName = app.family.UserNickName;
            live.UserFirstName = app.family.UserFirstName;
            live.UserLastName = app.family.UserLastName;
            FamAASaveFamilyInfo(app);
        }
        app.frmMessage.Unload();
        if (!app.message.MessageIsBug) {
            ClearMessage(app);
            return;
        }
        app.message.MessageIsBug = false;
        std::wstring subject = L"Quillstart - Found Bug";
        std::wstring tag = app.MessageToShow;
        app.MessageToShow = ActionContactMorvane(app, std::wstring(L"mailto:") + maker::MailAddress, subject, tag);
        if (!app.MessageToShow.empty()) MessageProcess(app);
    } catch (const std::exception&) {
        ReportBug(app, L"MessageReplyOK");
    }
}

}  // namespace qs
