#pragma once
// A timer: while enabled with a non-zero interval, the backend calls Tick
// every Interval milliseconds from the event loop.
#include <cstdint>
#include <functional>
#include <string>

#include "ui/control.h"

namespace qs::ui {

class Timer : public Control {
public:
    Timer(Form& owner, std::wstring name, std::int32_t interval)
        : Control(owner, ControlKind::Timer, std::move(name)), interval_(interval) {
        SetEnabled(false);
    }

    std::int32_t Interval() const { return interval_; }
    void SetInterval(std::int32_t interval) {
        interval_ = interval;
        Notify(Property::Interval);
    }

    std::function<void()> Tick;

    // One tick, as the event loop delivers it.
    void Fire() {
        if (Enabled() && Tick) Tick();
    }

private:
    std::int32_t interval_;
};

}  // namespace qs::ui
