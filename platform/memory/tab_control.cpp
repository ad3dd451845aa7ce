// Tab control: the class "SysTabControl32": a strip of tabs, one of them chosen.
#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

// Pixels. Tabs are as wide as their text, and never narrower than the least width.
constexpr int margin = 2;
constexpr int depth = 21;
constexpr int leastWidth = 54;
constexpr int letterWidth = 6;
constexpr int padding = 12;

struct TabState : ControlState {
    std::vector<std::string> captions;
    int selected = -1;
    HWND tips = nullptr;

    int count() const { return static_cast<int>(captions.size()); }
    bool has(int tab) const { return tab >= 0 && tab < count(); }
};

TCITEMA& requestedItem(LPARAM item) {
    auto& request = *reinterpret_cast<TCITEMA*>(item);
    if (request.mask != TCIF_TEXT) refuse("mask of a tab", request.mask);
    return request;
}

LRESULT insertTab(TabState& state, WPARAM at, LPARAM item) {
    const int wanted = static_cast<INT>(at);
    if (wanted < 0) return -1;
    const int place = std::min(wanted, state.count());
    state.captions.insert(state.captions.begin() + place, requestedItem(item).pszText);
    if (state.selected < 0)
        state.selected = 0;
    else if (place <= state.selected)
        ++state.selected;
    return place;
}

LRESULT tellTab(const TabState& state, WPARAM tab, LPARAM item) {
    if (!state.has(static_cast<INT>(tab))) return 0;
    const TCITEMA& request = requestedItem(item);
    const std::string& caption = state.captions[tab];
    const std::size_t length =
        std::min(caption.size(), static_cast<std::size_t>(request.cchTextMax) - 1);
    std::memcpy(request.pszText, caption.data(), length);
    request.pszText[length] = '\0';
    return 1;
}

// Answers the tab that was selected before; -1 selects none.
LRESULT select(TabState& state, int tab) {
    if (tab < -1 || tab >= state.count()) return -1;
    return std::exchange(state.selected, tab);
}

// Tabs run along one edge; where there is no more room, the next line begins.
RECT placeOf(HWND window, int tab) {
    const DWORD style = windowOf(window).style;
    const bool vertical = style & TCS_VERTICAL;
    const bool wraps = vertical || (style & TCS_MULTILINE);
    RECT client{};
    GetClientRect(window, &client);
    const int length = vertical ? client.bottom : client.right;
    const int across = vertical ? client.right : client.bottom;
    int start = margin;
    int end = margin;
    int line = 0;
    for (int each = 0; each <= tab; ++each) {
        const auto& caption =
            controlState<TabState>(window).captions[static_cast<std::size_t>(each)];
        start = end;
        end += std::max(leastWidth, static_cast<int>(caption.size()) * letterWidth + padding);
        if (!wraps || end <= length - margin || start == margin) continue;
        ++line;
        end -= start - margin;
        start = margin;
    }
    int near = margin + line * depth;
    if (style & TCS_BOTTOM) near = across - near - depth;
    return vertical ? RECT{near, start, near + depth, end} : RECT{start, near, end, near + depth};
}

LRESULT tellPlace(HWND window, WPARAM tab, LPARAM rect) {
    const int wanted = static_cast<INT>(tab);
    const bool known = controlState<TabState>(window).has(wanted);
    *reinterpret_cast<RECT*>(rect) = known ? placeOf(window, wanted) : RECT{};
    return known;
}

LRESULT tell(HWND window, UINT code) {
    NMHDR header{};
    return notify(window, header, code);
}

// The parent may forbid the change.
void selectByUser(HWND window, int tab) {
    auto& state = controlState<TabState>(window);
    if (!state.has(tab) || tab == state.selected || tell(window, TCN_SELCHANGING)) return;
    select(state, tab);
    tell(window, TCN_SELCHANGE);
}

int tabAt(HWND window, LPARAM point) {
    for (int tab = 0; tab < controlState<TabState>(window).count(); ++tab) {
        const RECT place = placeOf(window, tab);
        if (xOf(point) >= place.left && xOf(point) < place.right && yOf(point) >= place.top &&
            yOf(point) < place.bottom)
            return tab;
    }
    return -1;
}

void pressKey(HWND window, WPARAM key) {
    const int selected = controlState<TabState>(window).selected;
    if (key == VK_LEFT) selectByUser(window, selected - 1);
    if (key == VK_RIGHT) selectByUser(window, selected + 1);
}

void makeTips(HWND window) {
    if (!(windowOf(window).style & TCS_TOOLTIPS)) return;
    controlState<TabState>(window).tips = CreateWindowExA(0, TOOLTIPS_CLASSA, "", WS_POPUP, 0, 0, 0,
                                                          0, window, nullptr, nullptr, nullptr);
}

LRESULT tabMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = controlState<TabState>(window);
    switch (message) {
        case TCM_INSERTITEMA: return insertTab(state, wParam, lParam);
        case TCM_GETITEMA: return tellTab(state, wParam, lParam);
        case TCM_GETITEMCOUNT: return state.count();
        case TCM_GETITEMRECT: return tellPlace(window, wParam, lParam);
        case TCM_GETCURSEL: return state.selected;
        case TCM_SETCURSEL: return select(state, static_cast<INT>(wParam));
        case TCM_GETTOOLTIPS: return reinterpret_cast<LRESULT>(state.tips);
        default: refuse("tab control's message", message);
    }
}

}  // namespace

LRESULT tabControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = 0x1300;
    constexpr UINT lastOfClass = 0x13FF;
    if (message >= firstOfClass && message <= lastOfClass)
        return tabMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE: makeTips(window); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_LBUTTONDOWN:
            if (!(windowOf(window).style & TCS_FOCUSNEVER)) SetFocus(window);
            selectByUser(window, tabAt(window, lParam));
            return 0;
        case WM_LBUTTONUP: tell(window, NM_CLICK); return 0;
        case WM_RBUTTONUP:
            tell(window, NM_RCLICK);
            return DefWindowProcA(window, message, wParam, lParam);
        case WM_KEYDOWN: pressKey(window, wParam); return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
