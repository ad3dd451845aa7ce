#include "tray/pad.h"

#include <string>

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/runtime/word.h"
#include "platform/services/screen.h"
#include "tray/form1.h"
#include "tray/tray_menu.h"

namespace magpie {

namespace {

constexpr int leftButton = 1;
constexpr int rightButton = 2;
constexpr int middleButton = 4;
constexpr double padPixels = 32;
constexpr double stripStart = 324;  // twips; it does not follow the display's density

void drag() {
    win::ReleaseCapture();
    win::SendMessageA(Form1.hWnd(), win::WM_NCLBUTTONDOWN, static_cast<win::WPARAM>(win::HTCAPTION),
                      0);
}

// The letter of the picture for the state of the line and the program.
char stateLetter() {
    if (isOnline == 0) {
        Form1.Picture1.ToolTipText("Status: Offline");
        return 'a';
    }
    Form1.Picture1.ToolTipText(keepResident ? "Status: Online: Ready" : "Status: Online: Flushed");
    return keepResident ? 'd' : 'b';
}

}  // namespace

void ButtonState(bool pressed) {
    const char letter = pressed ? 'c' : stateLetter();
    Form1.Picture1.showPicture(LoadPicture(appPath + "\\uBank\\i" + letter + ".bnk"));
    Form1.Height(Screen.TwipsPerPixelY() * padPixels);
    Form1.Width(Screen.TwipsPerPixelX() * padPixels);
    Form1.Picture1.Width(Form1.Width());
    Form1.Picture1.Height(Form1.Height());
}

void toggleActiveIcon() {
    activeIcon = !activeIcon;
    if (activeIcon) {
        Form1.Show();
        if (iconOnTop) setTopMost(Form1, wordTrue);
        ButtonState(false);
    } else {
        setTopMost(Form1, wordFalse);
        Form1.Visible(false);
        Form1.Hide();
        Form1.Picture1.showPicture({});
    }
}

void Form1_MouseDown(int button, int, double, double) {
    if (button == leftButton) drag();
}

void Form1_Resize() {
    if (Form1.WindowState() == stateMinimised) Form1.Hide();
}

void padMouseDown(int button, int, double x, double) {
    if (button == leftButton && x > stripStart) {
        drag();
        iconLeft = Form1.Left();
        iconTop = Form1.Top();
    } else if (button == leftButton) {
        ButtonState(true);
    } else if (button == rightButton) {
        popUpTrayMenu();
    }
}

void padMouseMove(int, int, double x, double) {
    Form1.Picture1.MousePointer(x > stripStart ? Pointer::sizeAll : Pointer::standard);
}

void padMouseUp(int button, int, double, double) {
    ButtonState(false);
    Form1.middleClick = button == middleButton;
}

void padClick() {
    if (!Form1.middleClick) {
        if (keepResident && Form3.loaded() && Form3.Visible()) {
            Form3.Visible(false);
            Form3.Hide();
        } else {
            Form3.WindowState(stateNormal);
            Form3.Show();
        }
    }
    ButtonState(false);
}

}  // namespace magpie
