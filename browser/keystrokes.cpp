#include "browser/keystrokes.h"

#include "platform/api/user32.h"

namespace magpie {

namespace {

void down(int key) {
    win::keybd_event(static_cast<win::BYTE>(key), 0, 0, 0);
}

void up(int key) {
    win::keybd_event(static_cast<win::BYTE>(key), 0, win::KEYEVENTF_KEYUP, 0);
}

void pressWithControl(int letter) {
    down(win::VK_CONTROL);
    down(letter);
    up(win::VK_CONTROL);
}

}  // namespace

void pressAltD() {
    down(win::VK_MENU);
    down('D');
    up('D');
    up(win::VK_MENU);
}

void pressEnter() {
    down(win::VK_RETURN);
    up(win::VK_RETURN);
}

void pressCtrlV() {
    pressWithControl('V');
}

void pressCtrlC() {
    pressWithControl('C');
}

}  // namespace magpie
