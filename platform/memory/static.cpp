// Static: the class "Static": labels and pictures.
#include <utility>

#include "platform/memory/refuse.h"
#include "platform/memory/window.h"

namespace win::memory {
namespace {

constexpr DWORD typeMask = 0x001F;

struct StaticState : ControlState {
    LPARAM picture = 0;
};

void requirePicture(HWND window, WPARAM kind) {
    const DWORD style = windowOf(window).style;
    if (kind != IMAGE_BITMAP) refuse("image of a static control, kind", kind);
    if ((style & typeMask) != SS_BITMAP) refuse("picture in a static control of style", style);
    // Without one of these the control takes on the picture's size.
    if (!(style & (SS_CENTERIMAGE | SS_REALSIZECONTROL))) refuse("picture that sizes", style);
}

LRESULT staticMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& state = controlState<StaticState>(window);
    requirePicture(window, wParam);
    switch (message) {
        case STM_SETIMAGE: return std::exchange(state.picture, lParam);
        case STM_GETIMAGE: return state.picture;
        default: refuse("static control's message", message);
    }
}

LRESULT notifyIfWanted(HWND window, WORD code) {
    if (windowOf(window).style & SS_NOTIFY) notifyCommand(window, code);
    return 0;
}

}  // namespace

LRESULT staticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT firstOfClass = 0x0170;
    constexpr UINT lastOfClass = 0x0174;
    if (message >= firstOfClass && message <= lastOfClass)
        return staticMessage(window, message, wParam, lParam);
    switch (message) {
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_NCHITTEST: return windowOf(window).style & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
        case WM_LBUTTONDOWN: return notifyIfWanted(window, STN_CLICKED);
        case WM_LBUTTONDBLCLK: return notifyIfWanted(window, STN_DBLCLK);
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace win::memory
