// The z-order: topmost windows first, then the others; owned windows above their owner.
#include <algorithm>

#include "platform/memory/desktop.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

bool isTopmost(HWND handle) {
    return windowOf(handle).exStyle & WS_EX_TOPMOST;
}

std::vector<HWND>& siblings(const Window& window) {
    return isChild(window) ? windowOf(window.parent).children : desktop().zOrder;
}

void take(std::vector<HWND>& list, HWND handle) {
    list.erase(std::find(list.begin(), list.end(), handle));
}

void setTopmost(Window& window, bool topmost) {
    window.exStyle = topmost ? window.exStyle | WS_EX_TOPMOST : window.exStyle & ~WS_EX_TOPMOST;
}

// The first place below the topmost windows.
std::vector<HWND>::iterator belowTopmost(std::vector<HWND>& list) {
    return std::find_if_not(list.begin(), list.end(), isTopmost);
}

void insertBelow(std::vector<HWND>& list, Window& window, HWND above) {
    auto at = std::find(list.begin(), list.end(), above);
    if (at == list.end()) refuse("insert after a window that is no sibling", window.className);
    ++at;
    if (!isTopmost(above)) {
        setTopmost(window, false);
    } else if (at != list.end() && isTopmost(*at)) {
        setTopmost(window, true);
    }
    list.insert(at, window.handle);
}

void raiseOwned(HWND owner) {
    std::vector<HWND> owned = ownedBy(owner);
    for (auto each = owned.rbegin(); each != owned.rend(); ++each) {
        auto& list = desktop().zOrder;
        if (isTopmost(owner)) setTopmost(windowOf(*each), true);
        take(list, *each);
        list.insert(std::find(list.begin(), list.end(), owner), *each);
        raiseOwned(*each);
    }
}

void keepAboveOwner(HWND handle) {
    auto& list = desktop().zOrder;
    auto owner = std::find(list.begin(), list.end(), windowOf(handle).owner);
    if (owner > std::find(list.begin(), list.end(), handle)) return;
    take(list, handle);
    list.insert(std::find(list.begin(), list.end(), windowOf(handle).owner), handle);
    if (isTopmost(windowOf(handle).owner)) setTopmost(windowOf(handle), true);
}

}  // namespace

void joinZOrder(Window& window) {
    auto& list = siblings(window);
    if (isChild(window)) {
        list.push_back(window.handle);
    } else {
        list.insert(isTopmost(window.handle) ? list.begin() : belowTopmost(list), window.handle);
        if (window.owner) keepAboveOwner(window.handle);
    }
}

void leaveZOrder(Window& window) {
    take(siblings(window), window.handle);
}

void moveInZOrder(HWND handle, HWND insertAfter) {
    Window& window = windowOf(handle);
    auto& list = siblings(window);
    if (insertAfter == HWND_NOTOPMOST && !isTopmost(handle)) return;
    take(list, handle);
    if (insertAfter == HWND_TOPMOST) {
        setTopmost(window, !isChild(window));
        list.insert(list.begin(), handle);
    } else if (insertAfter == HWND_NOTOPMOST) {
        setTopmost(window, false);
        list.insert(belowTopmost(list), handle);
    } else if (insertAfter == HWND_TOP) {
        list.insert(isTopmost(handle) ? list.begin() : belowTopmost(list), handle);
    } else if (insertAfter == HWND_BOTTOM) {
        setTopmost(window, false);
        list.push_back(handle);
    } else {
        insertBelow(list, window, insertAfter);
    }
    if (isChild(window)) return;
    if (window.owner) keepAboveOwner(handle);
    raiseOwned(handle);
}

}  // namespace win::memory
