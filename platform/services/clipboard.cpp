#include "platform/services/clipboard.h"

#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

[[noreturn]] void raiseUnavailable() {
    throw Failure{failure::clipboardUnavailable};
}

// The clipboard, open as long as it lives.
class OpenedClipboard {
public:
    explicit OpenedClipboard(win::HWND owner) {
        // Viewers of the clipboard open it for a moment at every change.
        constexpr int tries = 10;
        constexpr win::DWORD pause = 20;  // milliseconds
        for (int left = tries; !win::OpenClipboard(owner); win::Sleep(pause)) {
            if (--left == 0) raiseUnavailable();
        }
    }
    ~OpenedClipboard() { win::CloseClipboard(); }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

// A block of the system's memory, freed unless the clipboard has taken it.
class Block {
public:
    explicit Block(std::string_view text)
        : memory_(win::GlobalAlloc(win::GMEM_MOVEABLE, text.size() + 1)) {
        char* const bytes = memory_ ? static_cast<char*>(win::GlobalLock(memory_)) : nullptr;
        if (bytes == nullptr) {
            if (memory_) win::GlobalFree(memory_);
            raiseUnavailable();
        }
        bytes[text.copy(bytes, text.size())] = '\0';
        win::GlobalUnlock(memory_);
    }
    ~Block() {
        if (memory_) win::GlobalFree(memory_);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    void giveToClipboard() {
        if (!win::SetClipboardData(win::CF_TEXT, memory_)) raiseUnavailable();
        memory_ = nullptr;
    }

private:
    win::HGLOBAL memory_;
};

}  // namespace

std::string clipboardText() {
    const OpenedClipboard opened(nullptr);
    const win::HANDLE memory = win::GetClipboardData(win::CF_TEXT);
    if (memory == nullptr) return {};
    const auto* const bytes = static_cast<const char*>(win::GlobalLock(memory));
    if (bytes == nullptr) raiseUnavailable();
    // The block may be larger than its text, or full of it without a NUL.
    const std::string_view block(bytes, win::GlobalSize(memory));
    const std::string text(block.substr(0, block.find('\0')));
    win::GlobalUnlock(memory);
    return text;
}

void clearClipboard() {
    const OpenedClipboard opened(nullptr);
    if (!win::EmptyClipboard()) raiseUnavailable();
}

void setClipboardText(win::HWND owner, std::string_view text) {
    Block block(text);
    const OpenedClipboard opened(owner);
    if (!win::EmptyClipboard()) raiseUnavailable();
    block.giveToClipboard();
}

}  // namespace magpie
