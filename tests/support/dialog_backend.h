#pragma once
// A window system for the tests that knows one window: frmMessage. Each time
// the dialog is shown modally it records what the dialog shows, then answers
// it by the next scripted reply, or by default with "No" / "Cancel" where
// that button shows and "OK" otherwise.
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "ui/backend.h"

namespace qs {

struct Application;
class FrmMessage;

// Which entry point the shown dialog came from.
enum class MessageEntry { Process, Bug, End };

// One dialog as the user saw it.
struct MessageRequest {
    MessageEntry entry;
    std::wstring key;          // MessageToShow while the dialog was up
    std::wstring formCaption;  // LabelMsgFormCaption
    std::wstring heading;      // LabelHead
    std::wstring body;         // TextMessage
    std::wstring okLabel;
    std::wstring cancelLabel;
    bool okVisible = false;
    bool cancelVisible = false;
    bool nameBoxesVisible = false;
    std::wstring okPicture;
    std::wstring cancelPicture;
};

namespace test {

class DialogBackend : public ui::Backend {
public:
    using Reply = std::function<void(FrmMessage&)>;

    explicit DialogBackend(Application& app) : app_(app) {}

    void FormLoaded(ui::Form&) override {}
    void FormUnloaded(ui::Form&) override {}
    void RunModal(ui::Form& form) override;
    // Runs work for input at once, as a program with no pending input would,
    // unless the test holds it to look at the program before it runs.
    void RunBeforeInput(std::function<void()> work) override;
    bool holdInputWork = false;
    // Runs the held work, as the first input would; false when none waits.
    bool RunHeldWork();

    // Runs idle work at once, unless the test holds it to look at the
    // program as it stands when no idle moment has come yet.
    void RunWhenIdle(std::function<void()> work) override;
    bool holdIdleWork = false;
    // Runs the held idle work, as the first idle moment would; false when
    // none waits.
    bool RunHeldIdleWork();

    // Queues the answer to the next dialog shown.
    void Answer(Reply reply) { replies_.push_back(std::move(reply)); }

    std::vector<MessageRequest> shown;

private:
    MessageRequest Record(FrmMessage& form) const;

    Application& app_;
    std::deque<Reply> replies_;
    std::function<void()> heldWork_;
    std::vector<std::function<void()>> heldIdleWork_;
};

// Scripted answers.
DialogBackend::Reply ClickOK();
DialogBackend::Reply ClickCancel();
inline DialogBackend::Reply Yes() { return ClickOK(); }
inline DialogBackend::Reply No() { return ClickCancel(); }
// Types keys into one name box, then lets the default answer follow.
DialogBackend::Reply TypeName(int index, std::wstring keys);
// Types keys into one name box and presses Enter there.
DialogBackend::Reply TypeNameAndEnter(int index, std::wstring keys);

}  // namespace test
}  // namespace qs
