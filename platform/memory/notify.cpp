// What controls tell their parents.
#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {

void notifyCommand(HWND control, WORD code) {
    const Window& window = windowOf(control);
    if (!window.parent) refuse("control without a parent", window.className);
    SendMessageA(window.parent, WM_COMMAND, makeWParam(static_cast<int>(window.id), code),
                 reinterpret_cast<LPARAM>(control));
}

LRESULT notify(HWND control, NMHDR& header, UINT code) {
    const Window& window = windowOf(control);
    if (!window.parent) refuse("control without a parent", window.className);
    header.hwndFrom = control;
    header.idFrom = static_cast<UINT_PTR>(window.id);
    header.code = code;
    return SendMessageA(window.parent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

}  // namespace win::memory
