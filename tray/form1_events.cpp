// What Form1's events run: event on the left, routine on the right.
#include "core/shutdown.h"
#include "core/start_up.h"
#include "tray/connection_watcher.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "tray/tray_icon.h"
#include "tray/tray_menu.h"

namespace magpie {

void wireForm1() {
    Form1.makeControls = makeForm1;
    Form1.onLoad = Form1_Load;
    Form1.onQueryUnload = Form1_QueryUnload;
    Form1.onUnload = Form1_Unload;
    Form1.onResize = Form1_Resize;
    Form1.onMouseDown = Form1_MouseDown;
    Form1.onMouseMove = trayNotification;
    Form1.Timer1.onTimer = Timer1_Timer;

    Form1.Picture1.onMouseDown = padMouseDown;
    Form1.Picture1.onMouseMove = padMouseMove;
    Form1.Picture1.onMouseUp = padMouseUp;
    Form1.Picture1.onClick = padClick;

    Form1.mMagpie.onClick = mMagpie_Click;
    Form1.mPopRestore.onClick = mPopRestore_Click;
    Form1.mHelp.onClick = mHelp_Click;
    Form1.mContact.onClick = mContact_Click;
    Form1.mWebSite.onClick = mWebSite_Click;
    Form1.mFlush.onClick = mFlush_Click;
    Form1.mAbout.onClick = mAbout_Click;
    Form1.mPopExit.onClick = mPopExit_Click;
}

}  // namespace magpie
