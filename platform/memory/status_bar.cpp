// Status bar: the class "msctls_statusbar32": a bar of parts with texts that docks
// itself at the bottom of its parent.
#include <cstring>
#include <string>
#include <vector>

#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

constexpr int barHeight = 20;  // pixels

struct Part {
    INT right = -1;  // pixels from the left; -1 for as far as the bar goes
    std::string text;
    std::string tip;
};

struct StatusState : ControlState {
    std::vector<Part> parts = std::vector<Part>(1);

    // Null for a part that is not there.
    Part* at(WPARAM part) { return part < parts.size() ? &parts[part] : nullptr; }
};

void dock(HWND bar) {
    RECT place{};
    RECT area{};
    GetWindowRect(bar, &place);
    GetClientRect(windowOf(bar).parent, &area);
    POINT corner{0, area.bottom - barHeight};
    POINT now{place.left, place.top};
    ScreenToClient(windowOf(bar).parent, &now);
    if (now.x == corner.x && now.y == corner.y && place.right - place.left == area.right &&
        place.bottom - place.top == barHeight)
        return;
    SetWindowPos(bar, nullptr, corner.x, corner.y, area.right, barHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT setParts(StatusState& state, WPARAM count, LPARAM edges) {
    constexpr WPARAM greatest = 256;
    if (count == 0) return 0;
    if (count > greatest) refuse("parts of a status bar", count);
    state.parts.resize(count);
    for (WPARAM part = 0; part < count; ++part)
        state.parts[part].right = reinterpret_cast<const INT*>(edges)[part];
    return 1;
}

LRESULT tellParts(const StatusState& state, WPARAM count, LPARAM edges) {
    for (WPARAM part = 0; part < count && part < state.parts.size(); ++part)
        reinterpret_cast<INT*>(edges)[part] = state.parts[part].right;
    return static_cast<LRESULT>(state.parts.size());
}

LRESULT setText(HWND bar, WPARAM part, LPARAM text) {
    if (part > 0xFF) refuse("drawing of a status bar's text", part);
    Part* found = controlState<StatusState>(bar).at(part);
    if (!found) return 0;
    found->text = text ? reinterpret_cast<const char*>(text) : "";
    // The window's own text is that of the first part.
    if (part == 0) windowOf(bar).text = found->text;
    return 1;
}

// Where there is no text, nothing is written either.
LRESULT tellText(StatusState& state, WPARAM part, LPARAM text) {
    const Part* found = state.at(part);
    const std::size_t length = found ? found->text.size() : 0;
    if (text && length > 0)
        std::memcpy(reinterpret_cast<char*>(text), found->text.c_str(), length + 1);
    return static_cast<LRESULT>(length);
}

LRESULT setTip(StatusState& state, WPARAM part, LPARAM text) {
    if (Part* found = state.at(part)) found->tip = reinterpret_cast<const char*>(text);
    return 0;
}

LRESULT tellTip(StatusState& state, WPARAM partAndSize, LPARAM text) {
    const Part* found = state.at(LOWORD(partAndSize));
    const std::string tip = found ? found->tip : "";
    if (tip.size() >= HIWORD(partAndSize)) refuse("tip of a status bar cut to", partAndSize);
    std::memcpy(reinterpret_cast<char*>(text), tip.c_str(), tip.size() + 1);
    return 0;
}

LRESULT statusMessage(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = controlState<StatusState>(bar);
    switch (message) {
        case SB_SETPARTS: return setParts(state, wParam, lParam);
        case SB_GETPARTS: return tellParts(state, wParam, lParam);
        case SB_SETTEXTA: return setText(bar, wParam, lParam);
        case SB_GETTEXTA: return tellText(state, wParam, lParam);
        case SB_GETTEXTLENGTHA: return tellText(state, wParam, 0);
        case SB_SETTIPTEXTA: return setTip(state, wParam, lParam);
        case SB_GETTIPTEXTA: return tellTip(state, wParam, lParam);
        default: refuse("status bar's message", message);
    }
}

// The part under a point of the bar.
DWORD_PTR partAt(const StatusState& state, int x) {
    DWORD_PTR part = 0;
    while (part + 1 < state.parts.size() && state.parts[part].right <= x) ++part;
    return part;
}

void tellMouse(HWND bar, UINT code, LPARAM point) {
    NMMOUSE told{};
    told.dwItemSpec = partAt(controlState<StatusState>(bar), xOf(point));
    told.pt = {xOf(point), yOf(point)};
    notify(bar, told.hdr, code);
}

}  // namespace

LRESULT statusBarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = WM_USER;
    constexpr UINT lastOfClass = WM_USER + 0x2000;
    if (message > firstOfClass && message <= lastOfClass)
        return statusMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_CREATE:
            controlState<StatusState>(window).parts[0].text = windowOf(window).text;
            dock(window);
            return 0;
        case WM_SIZE: dock(window); return 0;
        case WM_SETTEXT: return setText(window, 0, lParam);
        case WM_LBUTTONUP: tellMouse(window, NM_CLICK, lParam); return 0;
        case WM_LBUTTONDBLCLK: tellMouse(window, NM_DBLCLK, lParam); return 0;
        case WM_RBUTTONDBLCLK: tellMouse(window, NM_RDBLCLK, lParam); return 0;
        case WM_RBUTTONUP:
            tellMouse(window, NM_RCLICK, lParam);
            return DefWindowProcA(window, message, wParam, lParam);
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
