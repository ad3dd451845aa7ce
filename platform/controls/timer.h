// Timer: raises an event every so many milliseconds while it is enabled. It
// belongs to a form and stops when the form unloads.
#pragma once

#include "platform/api/types.h"
#include "platform/controls/event.h"
#include "platform/controls/form.h"

namespace magpie {

class Timer {
public:
    Timer() : form_(*Form::underConstruction) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    Event<> onTimer;

    // Milliseconds from 1 to 65,535.
    void create(win::UINT interval, bool enabled);
    win::UINT Interval() const { return interval_; }
    bool Enabled() const { return id_ != 0; }
    void Enabled(bool enabled);

    win::UINT_PTR id() const { return id_; }
    void stop();

private:
    Form& form_;
    win::UINT interval_ = 0;
    win::UINT_PTR id_ = 0;
};

}  // namespace magpie
