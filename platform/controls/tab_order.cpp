#include "platform/controls/tab_order.h"

#include <algorithm>
#include <vector>

#include "platform/api/user32.h"

namespace magpie {

namespace {

win::DWORD styleOf(win::HWND window) {
    return static_cast<win::DWORD>(win::GetWindowLongPtrA(window, win::GWL_STYLE));
}

// The containers themselves, and what is hidden in them, included. The form itself may be
// hidden.
void collect(win::HWND container, std::vector<win::HWND>& controls) {
    for (win::HWND child = win::GetWindow(container, win::GW_CHILD); child != nullptr;
         child = win::GetWindow(child, win::GW_HWNDNEXT)) {
        controls.push_back(child);
        if ((styleOf(child) & win::WS_VISIBLE) != 0) collect(child, controls);
    }
}

}  // namespace

bool takesFocus(win::HWND window) {
    if (!win::IsWindow(window) || (styleOf(window) & win::WS_TABSTOP) == 0) return false;
    // The form itself may be hidden or wait for a dialog.
    for (win::HWND each = window; (styleOf(each) & win::WS_CHILD) != 0; each = win::GetParent(each))
        if ((styleOf(each) & (win::WS_VISIBLE | win::WS_DISABLED)) != win::WS_VISIBLE) return false;
    return true;
}

win::HWND firstStop(win::HWND container) {
    return stopBehind(container, nullptr);
}

win::HWND stopBehind(win::HWND container, win::HWND from) {
    std::vector<win::HWND> controls;
    collect(container, controls);
    const auto begin = std::find(controls.begin(), controls.end(), from);
    if (begin != controls.end()) std::rotate(controls.begin(), begin + 1, controls.end());
    const auto found = std::find_if(controls.begin(), controls.end(), takesFocus);
    return found == controls.end() ? nullptr : *found;
}

void enterStop(win::HWND stop) {
    if (stop == nullptr) return;
    if ((win::SendMessageA(stop, win::WM_GETDLGCODE, 0, 0) & win::DLGC_HASSETSEL) != 0)
        win::SendMessageA(stop, win::EM_SETSEL, 0, -1);
    win::SetFocus(stop);
}

}  // namespace magpie
