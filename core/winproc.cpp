#include "core/winproc.h"

#include <cstdint>

#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/user32.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/word.h"

namespace magpie {

namespace {

win::WNDPROC hookPrevProc = nullptr;  // the procedure that the hook replaced
std::int16_t hookArmed = wordFalse;   // set by the first message of the run, never cleared

bool leavesApplication(win::HWND window, win::UINT message, win::WPARAM wParam) {
    return Form3.loaded() && window == Form3.hWnd() && message == win::WM_ACTIVATEAPP &&
           win::LOWORD(wParam) == 0;
}

void follow(win::HWND window, win::UINT message, win::WPARAM wParam) {
    if (leavesApplication(window, message, wParam) && Form3.Visible() && activeIcon &&
        modalOpen == 0)
        stepAside(Form3);
}

// The first message of the run goes no further. It is the question for the large
// icon with which the main window takes over the tray controller's: answered 0, the
// icon counts as another one and is set all the same.
win::LRESULT hookProcedure(win::HWND window, win::UINT message, win::WPARAM wParam,
                           win::LPARAM lParam) noexcept {
    try {
        follow(window, message, wParam);
    } catch (const Failure&) {
        // A window that would not step aside stays; the message goes on.
    }
    if (hookArmed == wordTrue)
        return win::CallWindowProcA(hookPrevProc, window, message, wParam, lParam);
    hookArmed = wordTrue;
    return 0;
}

}  // namespace

void hookMainWindow(win::HWND window) {
    hookPrevProc = reinterpret_cast<win::WNDPROC>(win::SetWindowLongPtrA(
        window, win::GWLP_WNDPROC, reinterpret_cast<win::LONG_PTR>(&hookProcedure)));
}

void unhookMainWindow(win::HWND window) {
    if (hookPrevProc == nullptr) return;
    win::SetWindowLongPtrA(window, win::GWLP_WNDPROC,
                           reinterpret_cast<win::LONG_PTR>(hookPrevProc));
    hookPrevProc = nullptr;
}

}  // namespace magpie
