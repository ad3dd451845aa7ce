#include "platform/memory/drag_drop.h"

#include <map>

#include "platform/api/ole32.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"

namespace win {

namespace memory {
namespace {

std::map<HWND, TEXTDROPPROC>& targets() {
    static std::map<HWND, TEXTDROPPROC> registered;
    return registered;
}

}  // namespace

bool takesDrops(HWND window) {
    return targets().contains(window);
}

HWND dropTargetAt(POINT at) {
    HWND window = WindowFromPoint(at);
    while (window && !takesDrops(window)) window = GetParent(window);
    return window && IsWindowEnabled(rootOf(window)) ? window : nullptr;
}

void dropText(HWND window, std::string_view text) {
    targets().at(window)(window, text.substr(0, text.find('\0')));
}

}  // namespace memory

using namespace memory;

HRESULT RegisterDragDrop(HWND window, TEXTDROPPROC dropped) {
    if (DWORD error = faultIn("RegisterDragDrop")) return static_cast<HRESULT>(error);
    if (!IsWindow(window)) return DRAGDROP_E_INVALIDHWND;
    return targets().emplace(window, dropped).second ? 0 : DRAGDROP_E_ALREADYREGISTERED;
}

HRESULT RevokeDragDrop(HWND window) {
    if (!IsWindow(window)) return DRAGDROP_E_INVALIDHWND;
    return targets().erase(window) ? 0 : DRAGDROP_E_NOTREGISTERED;
}

}  // namespace win
