#pragma once
// The window system of the fuzz targets: it knows one window, the message
// dialog, and each time the dialog is shown modally it notes which entry
// showed it and the message's tag, then answers as a person who wants
// nothing done would: "No" or "Cancel" where that button shows, else "OK".
// Only what the targets check is kept, so a shown dialog costs no copies of
// its texts.
#include <string>
#include <vector>

#include "common/application.h"
#include "ui/backend.h"

namespace qs::fuzz {

struct ShownMessage {
    enum class Entry { Process, Bug, End } entry;
    std::wstring key;  // MessageToShow while the dialog was up
};

class MessageLog : public ui::Backend {
public:
    explicit MessageLog(Application& app) : app_(app) {}

    void FormLoaded(ui::Form&) override {}
    void FormUnloaded(ui::Form&) override {}
    void RunModal(ui::Form& form) override {
        FrmMessage& dialog = app_.frmMessage;
        if (&form != &dialog) return;
        const MessageState& m = app_.message;
        shown.push_back({m.MessageIsBug       ? ShownMessage::Entry::Bug
                         : m.MessageWillEnd   ? ShownMessage::Entry::End
                                              : ShownMessage::Entry::Process,
                         app_.MessageToShow});
        if (!dialog.IsLoaded() || !dialog.Visible()) return;
        if (dialog.ImageCancel.Visible()) {
            dialog.ImageCancel.Press();
        } else {
            dialog.ImageOK.Press();
        }
    }

    std::vector<ShownMessage> shown;

private:
    Application& app_;
};

}  // namespace qs::fuzz
