#include "platform/memory/clipboard.h"

#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/memory/faults.h"
#include "platform/memory/global_memory.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

constexpr DWORD notOpen = 1418;              // ERROR_CLIPBOARD_NOT_OPEN
constexpr DWORD invalidWindowHandle = 1400;  // ERROR_INVALID_WINDOW_HANDLE

BOOL failWith(DWORD error) {
    SetLastError(error);
    return 0;
}

void checkFormat(UINT format) {
    if (format != CF_TEXT) refuse("clipboard format", format);
}

}  // namespace

Clipboard& clipboard() {
    static Clipboard board;
    return board;
}

void replaceClipboardText(HGLOBAL text) {
    if (clipboard().text) freeBlock(clipboard().text);
    clipboard().text = text;
    if (text) blockOf(text).clipboard = true;
}

}  // namespace memory

using namespace memory;

BOOL OpenClipboard(HWND owner) {
    if (faultIn("OpenClipboard")) return 0;
    Clipboard& board = clipboard();
    if (owner && !IsWindow(owner)) return failWith(invalidWindowHandle);
    if (board.openElsewhere) return failWith(ERROR_ACCESS_DENIED);
    if (board.open && board.owner != owner) return failWith(ERROR_ACCESS_DENIED);
    board.emptied = board.emptied && board.open;
    board.open = true;
    board.owner = owner;
    return 1;
}

BOOL EmptyClipboard() {
    if (faultIn("EmptyClipboard")) return 0;
    if (!clipboard().open) return failWith(notOpen);
    replaceClipboardText(nullptr);
    clipboard().emptied = true;
    return 1;
}

HANDLE SetClipboardData(UINT format, HANDLE data) {
    checkFormat(format);
    if (faultIn("SetClipboardData")) return nullptr;
    if (!clipboard().open) {
        SetLastError(notOpen);
        return nullptr;
    }
    if (!data) refuse("SetClipboardData", "text to be delivered later");
    // Emptying makes the opening window the owner, and only an owner may set data.
    if (!clipboard().emptied || !clipboard().owner) refuse("SetClipboardData", "without an owner");
    const GlobalBlock& block = blockOf(data);
    if (block.locks) refuse("SetClipboardData", "locked memory");
    if (block.bytes.find('\0') == std::string::npos) refuse("SetClipboardData", "text without end");
    replaceClipboardText(data);
    return data;
}

HANDLE GetClipboardData(UINT format) {
    checkFormat(format);
    if (faultIn("GetClipboardData")) return nullptr;
    if (clipboard().open) return clipboard().text;
    SetLastError(notOpen);
    return nullptr;
}

BOOL CloseClipboard() {
    if (faultIn("CloseClipboard")) return 0;
    if (!clipboard().open) return failWith(notOpen);
    clipboard().open = false;
    return 1;
}

}  // namespace win
