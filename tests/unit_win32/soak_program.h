#pragma once
// The whole program over the test system with every form on real windows of
// this thread, and what a person does to it: clicks on its buttons, keys
// typed into the Command box, messages read and answered. Between two
// steps the program's own message loop runs, as it does between two events
// of a real session.
#include <windows.h>

#include <functional>
#include <string>

#include "common/application.h"
#include "fake_system.h"
#include "ui/control.h"
#include "ui/form.h"
#include "win32_backend.h"

namespace qs::test {

class SoakProgram {
public:
    // Starts the program as start-up does, with a Launch List of two items
    // in each group, and shows the bar.
    SoakProgram();
    SoakProgram(const SoakProgram&) = delete;
    SoakProgram& operator=(const SoakProgram&) = delete;
    ~SoakProgram();

    // Runs what waits in the queue, painting included, then the program's
    // message loop until the queue is empty: the loop frees the windows of
    // the forms unloaded meanwhile.
    void ReturnToLoop();
    // Lets the program's timers run for a while with nothing else to do,
    // then returns to its loop: what an idle moment leaves is all done.
    void Settle();

    // The window of a form or a control; null when it has none now.
    HWND WindowOf(const ui::Form& form) const;
    static HWND WindowOf(const ui::Control& control);
    // A left press and release in the middle of a control's window, once
    // it has one (a picture on a window just shown gets its window a moment
    // after the first paint); false when none comes or it is hidden.
    bool Click(const ui::Control& control);

    // Empties the Command box by Esc, types the text key by key into its
    // window and presses Enter.
    void TypeCommand(const std::wstring& text);

    // What became of the message dialog while a step ran.
    struct Dialog {
        // It stood, and what its message box said.
        bool shown = false;
        std::wstring text;
        // Its key did not close it, so it was closed by force.
        bool forced = false;
    };
    // Runs a step and answers the message dialog, should the step show it,
    // with a key (VK_RETURN or VK_ESCAPE) pressed in its message box as soon
    // as it stands.
    Dialog Answering(const std::function<void()>& step, WPARAM key);

    FakeSystem sys;
    Application app{sys};
    win::Win32Backend backend{::GetModuleHandleW(nullptr)};

private:
    void Add(int group, const std::wstring& name, const std::wstring& path);
};

}  // namespace qs::test
