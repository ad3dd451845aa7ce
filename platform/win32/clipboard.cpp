// user32's clipboard answered by Windows.
#include "platform/api/user32.h"

#include <windows.h>

namespace win {

BOOL OpenClipboard(HWND owner) {
    return ::OpenClipboard(reinterpret_cast<::HWND>(owner));
}

BOOL EmptyClipboard() {
    return ::EmptyClipboard();
}

HANDLE SetClipboardData(UINT format, HANDLE data) {
    return ::SetClipboardData(format, data);
}

HANDLE GetClipboardData(UINT format) {
    return ::GetClipboardData(format);
}

BOOL CloseClipboard() {
    return ::CloseClipboard();
}

}  // namespace win
