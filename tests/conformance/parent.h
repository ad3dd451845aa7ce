// Parent: a window on the screen that keeps what the controls in it tell it, and the
// user's hand on them.
#pragma once

#include <vector>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"

// A WM_NOTIFY. Fields that its kind does not have are 0.
struct Notice {
    win::UINT code = 0;
    int item = 0;
    int column = 0;
    win::UINT now = 0;
    win::UINT before = 0;
    win::UINT changed = 0;
    win::LPARAM param = 0;
    bool operator==(const Notice&) const = default;
};

class Parent {
public:
    Parent();
    ~Parent();
    Parent(const Parent&) = delete;
    Parent& operator=(const Parent&) = delete;

    // A visible child, in pixels of the client area.
    win::HWND add(const char* className, win::DWORD style, const win::RECT& place,
                  const char* text = "");

    win::HWND window() const { return window_; }
    // Codes of the WM_COMMAND messages, and the notices, since they were last asked for.
    // Of the notices only those that are looked at here: NM_CLICK, NM_DBLCLK, NM_RCLICK,
    // NM_RDBLCLK, LVN_ITEMCHANGED, LVN_COLUMNCLICK, TCN_SELCHANGING, TCN_SELCHANGE.
    std::vector<win::WORD> takeCommands();
    std::vector<Notice> takeNotices();

    int contextMenus = 0;           // WM_CONTEXTMENU so far
    win::LRESULT noticeAnswer = 0;  // to every WM_NOTIFY
    win::POINT lastPoint{};         // of the last mouse notice

private:
    static win::LRESULT procedure(win::HWND, win::UINT, win::WPARAM, win::LPARAM);
    void keepNotice(win::LPARAM header);

    static inline Parent* current_ = nullptr;
    win::HWND window_ = nullptr;
    std::vector<win::WORD> commands_;
    std::vector<Notice> notices_;
};

// Delivers what waits.
void pump();

enum class MouseButton { left, right };

// In pixels of the window's client area, straight to the window.
void press(win::HWND window, int x, int y, MouseButton button = MouseButton::left);
void release(win::HWND window, int x, int y, MouseButton button = MouseButton::left);
void click(win::HWND window, int x, int y, MouseButton button = MouseButton::left);
// The second press of a double click and its release.
void secondClick(win::HWND window, int x, int y, MouseButton button = MouseButton::left);

void pressKey(win::HWND window, int key);
void releaseKey(win::HWND window, int key);
void typeLetter(win::HWND window, char letter);
