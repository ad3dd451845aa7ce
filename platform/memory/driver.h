// Driver: the tests' hand on the memory desktop. It does what a user, the system or a
// second application would do, answers what waits for a user, and shows what cannot be
// asked through the seam. Files, registry, clipboard and the local time have a driver of
// their own.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/user32.h"

namespace win::memory::driver {

// ---- The desktop -------------------------------------------------------------------

// Pixels. 1024 by 768 at the start, with a task bar of 28 pixels at the bottom; a new
// screen keeps that task bar.
void setScreen(int width, int height);
// Pixels of the screen. Tells every top-level window by WM_SETTINGCHANGE.
void setWorkArea(const RECT& area);
// Dots per inch of the whole system, 96 at the start. Before the first window.
void setDpi(int dpi);
// What WM_DPICHANGED brings: the window's new dots per inch and its proposed place.
void changeDpi(HWND window, int dpi, const RECT& proposed);
// Makes LoadImageA find an icon with this number in the program's resources.
void provideIcon(WORD number);

// ---- Time and messages -------------------------------------------------------------

// Delivers everything that waits, as the program's own loop would.
void pump();
// The loop that pump() uses from now on, e.g. the program's; it returns when nothing
// waits. Without one, messages go through IsDialogMessageA of their top-level window.
void pumpWith(std::function<void()> loop);
// Lets the milliseconds pass and delivers each timer when it falls due.
void advance(unsigned milliseconds);

// Runs `action` inside the n-th pump from now (1: the next). A pump is a run of
// PeekMessageA calls up to the one that finds nothing; `action` runs before its first.
// The driver's own pumps do not count.
void atPump(int n, std::function<void()> action);
// Pumps that the program has begun so far.
int pumps();

// Runs `action` when GetMessageA finds nothing to do, which is where a modal loop waits
// for its user. Actions run in the order they were queued, one at each such moment. A
// loop that waits with neither an action nor a timer is refused.
void whenIdle(std::function<void()> action);

// ---- Mouse and keyboard ------------------------------------------------------------

enum class Button { left, right, middle };

// The point is in pixels of the window's client area. What the mouse does reaches the
// window that the real pointer would reach there: the deepest child that takes the mouse,
// or the one that holds the capture. Refuses when the point is hidden or covered by
// another top-level window. A disabled control lets the mouse through to its parent; a
// disabled form swallows it.
void moveMouse(HWND window, POINT at);
void press(HWND window, POINT at, Button button = Button::left);
void release(HWND window, POINT at, Button button = Button::left);
void click(HWND window, POINT at, Button button = Button::left);
void doubleClick(HWND window, POINT at, Button button = Button::left);
void wheel(HWND window, POINT at, int notches);
// The middle of the client area.
POINT middleOf(HWND window);

// The caption drag that follows next (WM_NCLBUTTONDOWN on HTCAPTION) ends with the
// window's upper left corner here, in pixels of the screen.
void dragTo(int x, int y);

struct Keys {
    bool ctrl = false;
    bool shift = false;
    bool alt = false;
};
// Presses and releases one key, in the window that has the focus.
void key(int virtualKey, Keys held = {});
// Holds a key down, or lets it go, for what follows.
void hold(int virtualKey, bool down);
// Types the text, byte by byte, into the window that has the focus.
void type(std::string_view text);

// ---- Drags from other programs -----------------------------------------------------

// Another program drags a text, or without one something else, over a point in pixels of the
// window's client area. Whether its cursor there says that it can be dropped.
bool canDrop(HWND window, POINT at, const std::optional<std::string>& text);
// The same, and lets it go there; whether it was taken.
bool drop(HWND window, POINT at, const std::optional<std::string>& text);

// ---- What waits for an answer ------------------------------------------------------

struct MenuLine {
    UINT id = 0;
    std::string caption;
    bool separator = false;
    bool enabled = true;
    bool checked = false;
    std::vector<MenuLine> lines;  // of the sub-menu

    // The line with this caption, here or in a sub-menu, read without "&" and without
    // the key after a tab; refuses when there is none.
    const MenuLine& at(std::string_view wanted) const;
};

struct Popup {
    HWND owner = nullptr;
    POINT at{};  // pixels of the screen
    UINT flags = 0;
    HMENU handle = nullptr;  // while the menu is up
    MenuLine menu;           // its `lines` are the popup's
};

// Answers the next TrackPopupMenu: the identifier of the chosen line, or 0 for none. Each
// answer serves one menu. A menu without an answer is refused, and so is the choice of a
// line that is disabled or not there.
void onPopup(std::function<UINT(const Popup&)> answer);
// Chooses the line with this caption.
void choose(std::string caption);

struct Box {
    HWND owner = nullptr;
    std::string text;
    std::string caption;
    UINT type = 0;
};

// Answers the next MessageBoxA, with the button's identifier. A box without an answer is
// refused, and so is a button that the box does not have.
void answerMessageBox(int button);
void onMessageBox(std::function<int(const Box&)> answer);
// Every box shown so far.
const std::vector<Box>& messageBoxes();
// How many times the user heard the beep so far.
int beeps();
// How many answers, drags and actions were prepared and have not had their moment.
int unplayed();

// ---- What goes wrong ---------------------------------------------------------------

// Lets the n-th call from now (1: the next) of a platform function fail with this error
// number, e.g. failCall("SetWindowPos", 1, ERROR_ACCESS_DENIED).
void failCall(std::string_view function, int nth, DWORD error);
// Runs `action` at the beginning of the n-th call from now, which then goes on.
void atCall(std::string_view function, int nth, std::function<void()> action);
// Faults and actions that no call has met yet.
int faultsLeft();

// ---- Other applications, the session -----------------------------------------------

// Another application takes the foreground: WM_ACTIVATE, WM_ACTIVATEAPP, WM_KILLFOCUS.
void deactivateApplication();
// The user comes back to the window that was active last.
void activateApplication();
// Logs off: WM_QUERYENDSESSION to every top-level window, then WM_ENDSESSION with the
// answer, which is also the result.
bool endSession();

// ---- What is there -----------------------------------------------------------------

struct Counts {
    int windows = 0;
    int menus = 0;
    int gdiObjects = 0;  // fonts and pictures
    int icons = 0;       // those that the program has to destroy
    int deviceContexts = 0;
    int timers = 0;
    bool operator==(const Counts&) const = default;
};
Counts live();

// The cursor on show: IDC_ARROW_NUMBER, IDC_WAIT_NUMBER, ...; 0 for none.
WORD cursor();
// The text that the mouse would get to see over this window; empty without a tool tip.
std::string toolTip(HWND window);
// The first window with this class and text, in z-order, children after their parents;
// null when there is none. An empty class or text matches any.
HWND findWindow(std::string_view className, std::string_view text);
HWND findChild(HWND parent, std::string_view className, std::string_view text);
// The path of the file that the picture on show in a static control was read from; empty
// without a picture.
std::string pictureOf(HWND window);
// The icon that the window shows, or null.
HICON iconOf(HWND window, int which);
// Whether the visual style draws the window.
bool isThemed(HWND window);

}  // namespace win::memory::driver
