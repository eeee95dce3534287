#include "startup/frm_message.h"

#include "common/application.h"
#include "startup/active_message.h"

namespace qs {

namespace {

constexpr std::int16_t KeyEnter = 13;
constexpr std::int16_t KeyEscape = 27;
constexpr std::int16_t KeyBackspace = 8;

// A click on a shown reply button, as the user's own click would be.
void ClickIfShown(ui::PictureBox& image) {
    if (image.Visible() && image.Enabled()) image.UserClick();
}

const wchar_t* const NameCaptions[3] = {L"First Name", L"Last Name", L"Nick Name"};

bool IsLetter(std::int16_t key) { return (key >= L'A' && key <= L'Z') || (key >= L'a' && key <= L'z'); }

std::wstring OrEmpty(const std::wstring& name) { return name.empty() ? L"Empty" : name; }

}  // namespace

FrmMessage::FrmMessage(Application& app)
    : ui::Form(L"frmMessage", ui::FormStyle::Dialog),
      LabelMsgFormCaption(*this, L"LabelMsgFormCaption"),
      LabelHead(*this, L"LabelHead"),
      TextMessage(*this, L"TextMessage", true),
      CheckDoNotShow(*this, L"CheckDoNotShow", L"Do not show this message again."),
      ImageOK(*this, L"ImageOK"),
      LabelOK(*this, L"LabelOK"),
      ImageCancel(*this, L"ImageCancel"),
      LabelCancel(*this, L"LabelCancel"),
      LabelName(*this, L"LabelName", 3, L""),
      TextName(*this, L"TextName", 3),
      app_(app) {
    for (std::int16_t i = 0; i < TextName.Count(); ++i) {
        TextName(i).KeyPress = [this](std::int16_t& key) { TextNameKeyPress(key); };
        TextName(i).Change = [this] { TextNameChange(); };
    }
    SetCaption(L"Quillstart");
    RestoreDesign();

    LoadEvent = [this] { FormLoad(); };
    TextMessage.KeyPress = [this](std::int16_t& key) { TextMessageKeyPress(key); };
    // A reply button's caption answers a click as its button does.
    LabelOK.Click = [this] { ClickIfShown(ImageOK); };
    LabelCancel.Click = [this] { ClickIfShown(ImageCancel); };
    ImageOK.Click = [this] { MessageReplyOK(app_); };
    ImageCancel.Click = [this] { MessageReplyCancel(app_); };
    ImageOK.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        ImageButtonMouseDown(ImageOK);
    };
    ImageOK.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { ImageButtonMouseUp(ImageOK); };
    ImageCancel.MouseDown = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        ImageButtonMouseDown(ImageCancel);
    };
    ImageCancel.MouseUp = [this](std::int16_t, std::int16_t, std::int32_t, std::int32_t) {
        ImageButtonMouseUp(ImageCancel);
    };
}

void FrmMessage::RestoreDesign() {
    restoringDesign_ = true;
    // The title strip across the top, the heading below it, the name row,
    // the body filling the lower part, and the two buttons centred at the
    // bottom, each with its label beside it.
    LabelMsgFormCaption.Move(240, 180, 4920, 300);
    LabelMsgFormCaption.SetCaption(L"");
    LabelMsgFormCaption.SetFont(0, true);
    LabelHead.Move(240, 600, 4920, 420);
    LabelHead.SetCaption(L"");
    LabelHead.SetFont(12, true);
    for (std::int16_t i = 0; i < TextName.Count(); ++i) {
        const std::int32_t left = 240 + i * 1680;
        LabelName(i).Move(left, 1140, 1560, 255);
        LabelName(i).SetCaption(NameCaptions[i]);
        LabelName(i).SetVisible(false);
        TextName(i).Move(left, 1410, 1560, 330);
        TextName(i).SetText(L"");
        TextName(i).SetVisible(false);
        TextName(i).SetTabIndex(static_cast<std::int16_t>(i + 1));
    }
    TextMessage.Move(240, 1860, 4920, 5280);
    TextMessage.SetText(L"");
    TextMessage.SetLocked(true);
    TextMessage.SetTabIndex(0);
    CheckDoNotShow.Move(240, 7200, 4920, 300);
    CheckDoNotShow.SetValue(0);
    CheckDoNotShow.SetVisible(false);
    ImageOK.Move(1200, 7680, 480, 480);
    ImageOK.SetPicture({});
    ImageOK.SetVisible(true);
    LabelOK.Move(1740, 7800, 900, 255);
    LabelOK.SetCaption(L"OK");
    ImageCancel.Move(3000, 7680, 480, 480);
    ImageCancel.SetPicture({});
    ImageCancel.SetVisible(true);
    LabelCancel.Move(3540, 7800, 1000, 255);
    LabelCancel.SetCaption(L"Cancel");
    restoringDesign_ = false;
}

void FrmMessage::FormLoad() {
    RestoreDesign();
    // Centred on the screen.
    const std::int32_t left = (app_.sys.ScreenWidthTwips() - MessageFormWidth) / 2;
    const std::int32_t top = (app_.sys.ScreenHeightTwips() - MessageFormHeight) / 2;
    Move(left, top, MessageFormWidth, MessageFormHeight);
}

void FrmMessage::TextMessageKeyPress(std::int16_t& key) {
    // The box is read-only: every key is swallowed, but Enter answers with
    // the first button and Esc with the second, where each is shown.
    const std::int16_t typed = key;
    key = 0;
    if (typed == KeyEnter) ClickIfShown(ImageOK);
    if (typed == KeyEscape) ClickIfShown(ImageCancel);
}

void FrmMessage::TextNameKeyPress(std::int16_t& key) {
    if (key == KeyEnter) {
        key = 0;
        if (ImageOK.Visible()) ImageOK.UserClick();
        return;
    }
    if (key == KeyEscape) {
        key = 0;
        ClickIfShown(ImageCancel);
        return;
    }
    if (key == KeyBackspace) return;
    if (!IsLetter(key)) key = 0;
}

void FrmMessage::TextNameChange() {
    if (restoringDesign_) return;
    const std::wstring& first = TextName(0).Text();
    const std::wstring& last = TextName(1).Text();
    const std::wstring& nick = TextName(2).Text();
    ImageOK.SetVisible(!(first + last + nick).empty());
    TextMessage.SetText(L"First Name: " + OrEmpty(first) + L"\r\n" + L"Last Name: " + OrEmpty(last) + L"\r\n" +
                        L"Nick Name : " + OrEmpty(nick));
    ImageOK.SetPicture(ReplyButtonPicture(ImageOK.Visible()));
    ImageCancel.SetPicture(ReplyButtonPicture(ImageCancel.Visible()));
}

ui::PictureRef FrmMessage::ReplyButtonPicture(bool visible) const {
    if (app_.place.StartingUp) return visible ? StartUpButton : StartUpBlank;
    return visible ? app_.theme.ImageZeroSet[2] : app_.theme.ImageZeroBlank;
}

void FrmMessage::ImageButtonMouseDown(ui::PictureBox& image) {
    image.SetPicture(app_.place.StartingUp ? StartUpPressed : app_.theme.ImageZeroOver);
}

void FrmMessage::ImageButtonMouseUp(ui::PictureBox& image) {
    image.SetPicture(app_.place.StartingUp ? StartUpPressed : app_.theme.ImageZeroSet[2]);
}

}  // namespace qs
