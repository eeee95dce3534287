#pragma once
// What a window system provides to the forms: real windows for a loaded form
// and a modal loop. With no backend a form lives in memory only.
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
};

}  // namespace qs::ui
