// MessageLog: which messages reach a window while the log lives, in their order, with what a test
// wants to know at that moment.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/api/user32.h"

namespace magpie {

class MessageLog {
public:
    // Answers the entry for a message, empty for none; asked before the window hears of it.
    using Entry = std::function<std::string(win::UINT message, win::WPARAM wParam)>;

    // One log at a time.
    MessageLog(win::HWND window, Entry entry) : window_(window), entry_(std::move(entry)) {
        current = this;
        previous_ = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
            window, win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&procedure)));
    }
    ~MessageLog() {
        win::SetWindowLongPtrA(window_, win::GWLP_WNDPROC,
                               reinterpret_cast<win::LONG_PTR>(previous_));
    }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    std::vector<std::string> entries;

private:
    static win::LRESULT procedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                                  win::LPARAM lParam) noexcept {
        const std::string entry = current->entry_(message, wParam);
        if (!entry.empty()) current->entries.push_back(entry);
        return win::CallWindowProcA(current->previous_, window, message, wParam, lParam);
    }

    static inline MessageLog* current = nullptr;

    win::HWND window_;
    win::WNDPROC previous_;
    Entry entry_;
};

}  // namespace magpie
