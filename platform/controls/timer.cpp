#include "platform/controls/timer.h"

#include "platform/api/user32.h"

namespace magpie {

void Timer::create(win::UINT interval, bool enabled) {
    interval_ = interval;
    form_.attachTimer(*this);
    Enabled(enabled);
}

void Timer::Enabled(bool enabled) {
    if (enabled == Enabled()) return;
    if (!enabled) {
        stop();
        return;
    }
    // The address is a number that no other timer of the form has.
    id_ = win::SetTimer(form_.hWnd(), reinterpret_cast<win::UINT_PTR>(this), interval_, nullptr);
}

void Timer::stop() {
    if (id_ == 0) return;
    win::KillTimer(form_.hWnd(), id_);
    id_ = 0;
}

}  // namespace magpie
