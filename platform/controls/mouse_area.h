// MouseArea: a flat control that hears the mouse on all of its place, also where the
// platform's own class would let the mouse through. It holds the mouse from a press to
// the release, so that a drag goes on beyond its edges. A press and a release inside of
// it, with any button, is a click.
#pragma once

#include "platform/controls/control.h"

namespace magpie {

class MouseArea : public Control {
public:
    bool handleMessage(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                       win::LRESULT& answer) override;
    void forgetWindow() override;

private:
    void press(const MouseReport& mouse);
    void release(const MouseReport& mouse);

    bool pressed_ = false;  // a button went down here and is still held
};

}  // namespace magpie
