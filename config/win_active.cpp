// Where the windows stand: the settings of their places, and the main window's
// default place.
#include "config/config.h"
#include "config/task_bar.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/services/screen.h"
#include "tray/form1.h"

namespace magpie {

namespace {

// The place to come back to, in pixels, so that a minimised or hidden window keeps
// its restored size.
win::RECT normalPlace(Form& form) {
    win::WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    win::GetWindowPlacement(form.hWnd(), &placement);
    return placement.rcNormalPosition;
}

}  // namespace

double taskBarHeight() {
    win::RECT area{};
    if (!Screen.workArea(area)) return 0;
    return Screen.Height() - Screen.TwipsPerPixelY() * (area.bottom - area.top);
}

void placeMainDefault() {
    const double taskBar = taskBarHeight();
    Form3.Top(Screen.Height() - Form3.Height() - taskBar);
    Form3.Left(Screen.Width() - Form3.Width());
}

void storeMainPlacement() {
    const win::RECT place = normalPlace(Form3);
    mainLeft = place.left * Screen.TwipsPerPixelX();
    mainTop = place.top * Screen.TwipsPerPixelY();
    mainWidth = (place.right - place.left) * Screen.TwipsPerPixelX();
    mainHeight = (place.bottom - place.top) * Screen.TwipsPerPixelY();
}

void storeIconPlacement() {
    const win::RECT place = normalPlace(Form1);
    iconLeft = place.left * Screen.TwipsPerPixelX();
    iconTop = place.top * Screen.TwipsPerPixelY();
}

}  // namespace magpie
