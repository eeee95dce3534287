#pragma once
// Real windows for the program's forms, and the message loops.
#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "ui/backend.h"

namespace qs::win {

class FormWindow;

class Win32Backend : public ui::Backend {
public:
    explicit Win32Backend(HINSTANCE instance);
    Win32Backend(const Win32Backend&) = delete;
    Win32Backend& operator=(const Win32Backend&) = delete;
    ~Win32Backend() override;

    void FormLoaded(ui::Form& form) override;
    void FormShowing(ui::Form& form) override;
    void FormUnloaded(ui::Form& form) override;
    void RunModal(ui::Form& form) override;
    // The work runs at the first message that does more than paint; the
    // waker posts such a message to this thread.
    void RunBeforeInput(std::function<void()> work) override;
    std::function<void()> PendingWorkWaker() override;
    // The work runs at the first timer message of the thread: one comes
    // only when no input and no painting waits.
    void RunWhenIdle(std::function<void()> work) override;

    // The window of a loaded form; null when it has none.
    HWND WindowOf(const ui::Form& form) const;

    // Runs the program's message loop until the last form is unloaded or
    // the loop is told to quit; returns the exit code.
    int RunMessageLoop();

    // Tab and Shift+Tab move the focus among the controls of a form, as in
    // a dialog; true when the key was used so.
    bool MoveFocusByKey(const MSG& message) const;
    // A key pressed in a form that asks to see keys first (Form::KeyDown)
    // goes to that form before the control with the focus; true when the
    // form kept the key, which then goes no further.
    bool PreviewKeyDown(const MSG& message);

private:
    // One message through the loop; false once the loop is to end.
    bool PumpOne(MSG& message);
    // Frees the windows of forms unloaded while their own messages ran.
    void ReleaseUnloaded();
    // Draws the visible windows, then runs the work input waits for.
    void RunPendingWork();
    // True for a message that may go before that work: a timer's, or a key
    // typed into a control that waits itself for what it reads.
    bool PassesInputWork(const MSG& message) const;
    // Runs the work that waited for an idle moment; true when the message
    // was the timer that tells of one.
    bool RunIdleWork(const MSG& message);

    HINSTANCE instance_;
    std::map<const ui::Form*, std::unique_ptr<FormWindow>> windows_;
    // Loaded forms whose window waits for their first showing.
    std::set<const ui::Form*> waiting_;
    std::vector<std::unique_ptr<FormWindow>> unloaded_;
    // How many modal loops run; unloaded windows are freed only outside them,
    // when no window procedure of theirs can still be on the stack.
    int modalDepth_ = 0;
    std::function<void()> pendingWork_;
    std::vector<std::function<void()>> idleWork_;
    UINT_PTR idleTimer_ = 0;
    bool keyTaken_ = false;
};

}  // namespace qs::win
