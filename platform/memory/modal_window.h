// Modal window: the window of a message box or of a common dialog. While it is up its
// owner is disabled and it has the activation; afterwards both go back.
#pragma once

#include "platform/memory/window.h"

namespace win::memory {

class ModalWindow {
public:
    // A null owner is allowed.
    ModalWindow(HWND owner, const char* caption);
    ~ModalWindow();
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

private:
    HWND owner_;
    bool disabledOwner_;
    HWND window_;
};

}  // namespace win::memory
