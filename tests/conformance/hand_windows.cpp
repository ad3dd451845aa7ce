#ifdef _WIN32

#include "tests/conformance/hand.h"
#include "tests/conformance/log_window.h"

#include <windows.h>

namespace hand {

namespace {

::HWND native(win::HWND window) {
    return reinterpret_cast<::HWND>(window);
}

void sendMouse(::DWORD flags, ::LONG x = 0, ::LONG y = 0, int data = 0) {
    ::INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.mouseData = static_cast<::DWORD>(data);
    ::SendInput(1, &input, sizeof input);
}

void sendKey(int virtualKey, ::DWORD flags) {
    ::INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<::WORD>(virtualKey);
    input.ki.wScan =
        static_cast<::WORD>(::MapVirtualKeyA(static_cast<::UINT>(virtualKey), MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

int wantedButton = 0;
SeenBox lastBox;
void (*actionMeanwhile)() = nullptr;

void CALLBACK actOnce(::HWND, ::UINT, ::UINT_PTR timer, ::DWORD) {
    ::KillTimer(nullptr, timer);
    actionMeanwhile();
}

::BOOL CALLBACK answerDialog(::HWND window, ::LPARAM) {
    char name[16] = "";
    ::GetClassNameA(window, name, sizeof name);
    ::DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != ::GetCurrentProcessId() || ::strcmp(name, "#32770") != 0) return TRUE;
    ::HWND owner = ::GetWindow(window, GW_OWNER);
    lastBox = {owner && ::IsWindowEnabled(owner), ::GetActiveWindow() == owner};
    ::PostMessageA(window, WM_COMMAND, static_cast<::WPARAM>(wantedButton), 0);
    return FALSE;
}

void CALLBACK lookForBox(::HWND, ::UINT, ::UINT_PTR timer, ::DWORD) {
    if (!::EnumWindows(answerDialog, 0)) ::KillTimer(nullptr, timer);
}

struct Drag {
    ::POINT from{};
    ::POINT to{};
    int step = 0;
};
Drag drag;

void CALLBACK dragOn(::HWND, ::UINT, ::UINT_PTR timer, ::DWORD) {
    ++drag.step;
    if (drag.step == 1) moveTo({drag.from.x + 10, drag.from.y + 10});
    if (drag.step == 2) moveTo({drag.to.x, drag.to.y});
    if (drag.step == 3) release(Button::left);
    if (drag.step == 3) ::KillTimer(nullptr, timer);
}

}  // namespace

void moveTo(win::POINT at) {
    // Absolute places are parts of 65,536 of the screen; rounded to the middle of a pixel.
    ::LONG width = ::GetSystemMetrics(SM_CXSCREEN);
    ::LONG height = ::GetSystemMetrics(SM_CYSCREEN);
    sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, (at.x * 65536 + 32768) / width,
              (at.y * 65536 + 32768) / height);
}

void press(Button button) {
    constexpr ::DWORD flags[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN,
                                 MOUSEEVENTF_MIDDLEDOWN};
    sendMouse(flags[static_cast<int>(button)]);
}

void release(Button button) {
    constexpr ::DWORD flags[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP, MOUSEEVENTF_MIDDLEUP};
    sendMouse(flags[static_cast<int>(button)]);
}

void pressAgain(Button button) {
    press(button);
}

void turnWheel(int notches) {
    sendMouse(MOUSEEVENTF_WHEEL, 0, 0, notches * WHEEL_DELTA);
}

win::POINT pointIn(win::HWND window, int x, int y) {
    win::POINT point{x, y};
    win::ClientToScreen(window, &point);
    return point;
}

void keyDown(int virtualKey) {
    sendKey(virtualKey, 0);
}

void keyUp(int virtualKey) {
    sendKey(virtualKey, KEYEVENTF_KEYUP);
}

// A menu takes the keys from the queue of its thread.
void answerPopup(int line) {
    for (int down = 0; down < line; ++down) {
        keyDown(VK_DOWN);
        keyUp(VK_DOWN);
    }
    int last = line ? VK_RETURN : VK_ESCAPE;
    keyDown(last);
    keyUp(last);
}

void answerPopupByLetter(char letter) {
    for (int key : {static_cast<int>(letter), VK_ESCAPE}) {
        keyDown(key);
        keyUp(key);
    }
}

void actInPopup(void (*action)()) {
    actionMeanwhile = action;
    ::SetTimer(nullptr, 0, 50, actOnce);
}

void answerBox(int button) {
    wantedButton = button;
    ::SetTimer(nullptr, 0, 20, lookForBox);
}

void actInBox(void (*action)()) {
    actInPopup(action);
}

SeenBox seenBox() {
    return lastBox;
}

void dragByCaption(win::HWND window, win::POINT corner) {
    ::RECT rect{};
    ::GetWindowRect(native(window), &rect);
    drag = {{rect.left + 60, rect.top + 10}, {corner.x + 60, corner.y + 10}};
    moveTo({drag.from.x, drag.from.y});
    press(Button::left);
    ::SetTimer(nullptr, 0, 30, dragOn);
}

// Input comes by way of the server: quiet is when nothing came for a while.
void settle(win::HWND dialog) {
    for (int quiet = 0; quiet < 3; ++quiet) {
        ::Sleep(15);
        desk::pump(dialog);
    }
}

bool underWine() {
    return ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

namespace {

// A window manager would have a say in activation and order, at a time of its own. Under
// Wine this program goes without: its driver reads this setting with the first window.
const bool unmanaged = [] {
    constexpr const char* key = "Software\\Wine\\AppDefaults\\conformance.exe\\X11 Driver";
    return underWine() &&
           ::RegSetKeyValueA(HKEY_CURRENT_USER, key, "Managed", REG_SZ, "N", 2) == ERROR_SUCCESS;
}();

}  // namespace

}  // namespace hand

#endif
