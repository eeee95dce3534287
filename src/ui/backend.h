#pragma once
// What a window system provides to the forms: real windows for a loaded form
// and a modal loop. With no backend a form lives in memory only.
#include <functional>

namespace qs::ui {

class Form;

class Backend {
public:
    virtual ~Backend() = default;
    // A form was loaded: create its window and the peers of its controls.
    virtual void FormLoaded(Form& form) = 0;
    // A loaded form is about to show: a form whose window waits for its
    // first showing gets it now.
    virtual void FormShowing(Form& /*form*/) {}
    // A form was unloaded: destroy its window and detach the peers.
    virtual void FormUnloaded(Form& form) = 0;
    // Runs until the form is hidden or unloaded, keeping every other event
    // (timers included) flowing, while the other windows take no input.
    virtual void RunModal(Form& form) = 0;
    // Work the forms' input must wait for, such as lists still being filled:
    // the windows may paint meanwhile, but the work runs before any other
    // message reaches them, or as soon as the waker says it can. Where no
    // window system runs, it runs at once.
    virtual void RunBeforeInput(std::function<void()> work) { work(); }
    // Work that nothing on screen needs yet: it runs at the first idle
    // moment after the windows shown have first been drawn, and whoever
    // needs its result first runs it sooner. Where no window system runs,
    // it runs at once.
    virtual void RunWhenIdle(std::function<void()> work) { work(); }
    // A call that tells the window thread, from any thread, that the work
    // given to RunBeforeInput can run now; it holds nothing of the backend,
    // so it may outlive it. Empty where there is nobody to wake.
    virtual std::function<void()> PendingWorkWaker() { return {}; }
};

}  // namespace qs::ui
