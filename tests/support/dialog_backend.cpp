#include "dialog_backend.h"

#include "common/application.h"

namespace qs::test {

namespace {

bool StillShowing(const ui::Form& form) { return form.IsLoaded() && form.Visible(); }

void DefaultAnswer(FrmMessage& form) {
    if (form.ImageCancel.Visible()) {
        form.ImageCancel.Press();
    } else {
        form.ImageOK.Press();
    }
}

}  // namespace

MessageRequest DialogBackend::Record(FrmMessage& form) const {
    MessageRequest r;
    r.entry = app_.message.MessageIsBug     ? MessageEntry::Bug
              : app_.message.MessageWillEnd ? MessageEntry::End
                                            : MessageEntry::Process;
    r.key = app_.MessageToShow;
    r.formCaption = form.LabelMsgFormCaption.Caption();
    r.heading = form.LabelHead.Caption();
    r.body = form.TextMessage.Text();
    r.okLabel = form.LabelOK.Caption();
    r.cancelLabel = form.LabelCancel.Caption();
    r.okVisible = form.ImageOK.Visible();
    r.cancelVisible = form.ImageCancel.Visible();
    r.nameBoxesVisible = form.TextName(0).Visible() && form.TextName(1).Visible() && form.TextName(2).Visible();
    r.okPicture = ui::PictureName(form.ImageOK.Picture());
    r.cancelPicture = ui::PictureName(form.ImageCancel.Picture());
    return r;
}

void DialogBackend::RunModal(ui::Form& form) {
    if (&form != &app_.frmMessage) return;
    FrmMessage& dialog = app_.frmMessage;
    shown.push_back(Record(dialog));
    if (!replies_.empty()) {
        Reply reply = std::move(replies_.front());
        replies_.pop_front();
        reply(dialog);
    }
    if (StillShowing(dialog)) DefaultAnswer(dialog);
}

DialogBackend::Reply ClickOK() {
    return [](FrmMessage& form) { form.ImageOK.Press(); };
}

DialogBackend::Reply ClickCancel() {
    return [](FrmMessage& form) { form.ImageCancel.Press(); };
}

DialogBackend::Reply TypeName(int index, std::wstring keys) {
    return [index, keys](FrmMessage& form) { form.TextName(index).TypeText(keys); };
}

DialogBackend::Reply TypeNameAndEnter(int index, std::wstring keys) {
    return [index, keys](FrmMessage& form) {
        auto& box = form.TextName(index);
        box.TypeText(keys);
        box.TypeKey(13);
    };
}

void DialogBackend::RunBeforeInput(std::function<void()> work) {
    if (holdInputWork) {
        heldWork_ = std::move(work);
    } else {
        work();
    }
}

bool DialogBackend::RunHeldWork() {
    if (!heldWork_) return false;
    const std::function<void()> work = std::move(heldWork_);
    heldWork_ = nullptr;
    work();
    return true;
}

void DialogBackend::RunWhenIdle(std::function<void()> work) {
    if (holdIdleWork) {
        heldIdleWork_.push_back(std::move(work));
    } else {
        work();
    }
}

bool DialogBackend::RunHeldIdleWork() {
    if (heldIdleWork_.empty()) return false;
    std::vector<std::function<void()>> work;
    work.swap(heldIdleWork_);
    for (const auto& step : work) step();
    return true;
}

}  // namespace qs::test
