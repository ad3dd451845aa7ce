// Window: one window of the memory desktop, whatever its class. The system's own
// control classes hang their state on `control`.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"

namespace win::memory {

// What a system class keeps for one of its windows.
struct ControlState {
    virtual ~ControlState() = default;
};

struct WindowClass;

struct Window {
    HWND handle = nullptr;
    std::string className;
    const WindowClass* windowClass = nullptr;
    std::string text;
    HWND parent = nullptr;       // of a child window
    HWND owner = nullptr;        // of a top-level window
    std::vector<HWND> children;  // topmost first
    DWORD style = 0;
    DWORD exStyle = 0;
    RECT rect{};        // pixels; of a child in its parent's client area, else of the screen
    RECT normalRect{};  // the place to come back to, while minimised or maximised
    RECT frame{};       // thickness of the frame on each side, as of the last placing
    WNDPROC procedure = nullptr;
    LONG_PTR userData = 0;
    LONG_PTR id = 0;
    HFONT font = nullptr;
    HICON bigIcon = nullptr;
    HICON smallIcon = nullptr;
    bool redraw = true;
    bool themed = true;            // drawn by the visual style
    bool awaitsFirstSize = false;  // an overlapped window that was never shown
    bool hiddenWithOwner = false;  // comes back when its owner is restored
    bool maximisedBefore = false;  // a minimised window that comes back maximised
    bool invalid = false;          // owed a WM_PAINT
    bool dying = false;            // WM_DESTROY is under way or over
    std::unique_ptr<ControlState> control;
};

// The window behind a handle; refuses a handle that is no window.
Window& windowOf(HWND handle);

// The state that the class of `handle` keeps, made at the first call.
template <class State>
State& controlState(HWND handle) {
    Window& window = windowOf(handle);
    if (!window.control) window.control = std::make_unique<State>();
    return static_cast<State&>(*window.control);
}

// Sends WM_COMMAND or WM_NOTIFY from a control to its parent.
void notifyCommand(HWND control, WORD code);
LRESULT notify(HWND control, NMHDR& header, UINT code);

// Procedures of the system's classes. Each answers the messages of its class and
// leaves the rest to DefWindowProcA.
LRESULT buttonProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT staticProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT editProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT comboBoxProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT listViewProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT headerProcedure(HWND, UINT, WPARAM, LPARAM);  // a list view's column headings
LRESULT tabControlProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT statusBarProcedure(HWND, UINT, WPARAM, LPARAM);
LRESULT toolTipProcedure(HWND, UINT, WPARAM, LPARAM);

}  // namespace win::memory
