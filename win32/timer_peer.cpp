#include "control_kinds.h"
#include "form_window.h"

namespace qs::win {

TimerPeer::~TimerPeer() {
    if (Form().Handle() != nullptr) ::KillTimer(Form().Handle(), static_cast<UINT_PTR>(Id()));
}

void TimerPeer::OnChanged(ui::Property what) {
    if (what == ui::Property::Enabled || what == ui::Property::Interval) Arm();
}

void TimerPeer::Arm() {
    const HWND form = Form().Handle();
    if (form == nullptr) return;
    const auto id = static_cast<UINT_PTR>(Id());
    if (timer_.Enabled() && timer_.Interval() > 0) {
        ::SetTimer(form, id, static_cast<UINT>(timer_.Interval()), nullptr);
    } else {
        ::KillTimer(form, id);
    }
}

}  // namespace qs::win
