// Form1: the tray controller. The small form of the floating pad; it carries the
// icon in the notification area, the tray menu and the line watch, and lives for
// the whole run.
#pragma once

#include <cstdint>

#include "platform/controls/form.h"
#include "platform/controls/menu.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/timer.h"

namespace magpie {

struct TrayForm : Form {
    TrayForm();

    PictureBox Picture1;
    Timer Timer1;

    MenuItem mMagpie;
    MenuItem mPopRestore;
    MenuItem mBrk3;
    MenuItem mHelp;
    MenuItem mContact;
    MenuItem mBrk4;
    MenuItem mWebSite;
    MenuItem mbrk1;
    MenuItem mFlush;
    MenuItem mBrk2;
    MenuItem mAbout;
    MenuItem mPopExit;

    bool middleClick = false;  // the last button released on the pad was the middle one
};

inline TrayForm Form1;

// The routines behind the form's events. Once, before the form loads.
void wireForm1();

// Builds the form's controls; runs at each load.
void makeForm1();

}  // namespace magpie
