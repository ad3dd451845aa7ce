// LogWindow: a window that writes down what it is told, in words that a test can compare:
// "a create", "a size 0 200x100", "b focus". All windows of a test write into one log.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "platform/api/user32.h"

class LogWindow {
public:
    struct Look {
        win::DWORD style = win::WS_OVERLAPPEDWINDOW;
        win::DWORD exStyle = 0;
        win::RECT place{40, 50, 340, 250};  // left, top, right, bottom, as for CreateWindowExA
        win::HWND parent = nullptr;
        std::intptr_t id = 0;
        bool defaultPlace = false;  // leaves the place to the desktop
    };

    explicit LogWindow(std::string name);
    LogWindow(std::string name, const Look& look);
    ~LogWindow();  // destroys the window, if that has not happened yet
    LogWindow(const LogWindow&) = delete;
    LogWindow& operator=(const LogWindow&) = delete;

    operator win::HWND() const { return window_; }

    // Asked first for every message; an answer keeps it from DefWindowProcA.
    std::function<std::optional<win::LRESULT>(win::UINT, win::WPARAM, win::LPARAM)> answer;

    win::RECT rect() const;
    win::RECT client() const;
    bool topmost() const;

private:
    static win::LRESULT procedure(win::HWND, win::UINT, win::WPARAM, win::LPARAM) noexcept;

    std::string name_;
    win::HWND window_ = nullptr;
};

// Writes down only these messages from now on; forgets what was written.
void listenFor(std::initializer_list<win::UINT> messages);
// What was written since the last call, after delivering what waits.
std::vector<std::string> heard();
// The same without delivering anything.
std::vector<std::string> heardSoFar();

namespace desk {

// Delivers what waits, through IsDialogMessageA of `dialog` if there is one.
void pump(win::HWND dialog = nullptr);
// The words of one message, as the log has them.
std::string words(win::UINT message, win::WPARAM wParam, win::LPARAM lParam);
// The windows among these in their z-order, topmost first, as a list of positions.
std::vector<int> order(std::initializer_list<win::HWND> windows);

}  // namespace desk

namespace win {
inline bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
inline bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}
}  // namespace win
