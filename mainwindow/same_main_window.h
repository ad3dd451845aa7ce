// SameMainWindow: tells a command that lets events run whether the main window is still the one
// that it began with. One that was flushed meanwhile has saved what it had to, and one that was
// opened since shows a store that was read anew.
#pragma once

#include "mainwindow/form3.h"

namespace magpie {

class SameMainWindow {
public:
    SameMainWindow() : begun_(now()) {}

    bool isThere() const { return begun_ != nullptr && begun_ == now(); }

private:
    static win::HWND now() { return Form3.loaded() ? Form3.hWnd() : nullptr; }

    win::HWND begun_;
};

}  // namespace magpie
