// The mouse over a list view, and the place of a menu that the keys ask for.
//
// The class may keep a release to itself and tell of the click alone, from inside its
// handling of the press; or it tells of the click when it gets the release. Either way
// the release is told once.
#include <algorithm>
#include <utility>

#include "platform/api/comctl32.h"
#include "platform/api/user32.h"
#include "platform/controls/list_view.h"

namespace magpie {

namespace {

constexpr int leftButton = 1;
constexpr int rightButton = 2;

}  // namespace

bool ListView::handleMouse(win::UINT message, win::WPARAM wParam, win::LPARAM lParam,
                           win::LRESULT& answer) {
    const win::HWND window = hWnd();
    const MouseReport mouse = mouseReport(message, wParam, lParam, scaleTwips);
    if (mouse.kind == MouseKind::down) pressed_ |= mouse.button;
    if (mouse.kind != MouseKind::up) tellMouse(mouse);
    answer = 0;
    if (!hasWindow(window)) return true;
    answer = win::CallWindowProcA(previousProcedure(), window, message, wParam, lParam);
    if (!hasWindow(window)) return true;
    if (std::exchange(doubleClicked_, false)) onDblClick.raise(Index);
    if (!hasWindow(window)) return true;
    if (mouse.kind == MouseKind::up && (pressed_ & mouse.button) != 0) {
        pressed_ &= ~mouse.button;
        released_ = {.mouse = mouse};
    }
    tellRelease();
    return true;
}

// Answered 0, a right click would ask for a menu once more, and a list that is cleared would
// tell of each of its rows.
win::LRESULT ListView::onNotify(win::LPARAM header) {
    const auto* told = reinterpret_cast<const win::NMITEMACTIVATE*>(header);
    if (told->hdr.code == win::LVN_DELETEALLITEMS) return 1;
    if (told->hdr.code == win::LVN_COLUMNCLICK) onColumnClick.raise(Index, told->iSubItem + 1);
    if (told->hdr.code == win::NM_DBLCLK) doubleClicked_ = true;
    const bool right = told->hdr.code == win::NM_RCLICK;
    if (!right && told->hdr.code != win::NM_CLICK) return 0;
    const int button = right ? rightButton : leftButton;
    pressed_ &= ~button;
    released_ = {.mouse = {.kind = MouseKind::up,
                           .button = button,
                           .shift = shiftState(),
                           .x = told->ptAction.x * Screen.TwipsPerPixelX(),
                           .y = told->ptAction.y * Screen.TwipsPerPixelY()},
                 .click = true,
                 .onRow = told->iItem >= 0};
    return right ? 1 : 0;
}

void ListView::tellRelease() {
    if (!released_) return;
    const Release told = *std::exchange(released_, std::nullopt);
    const win::HWND window = hWnd();
    if (told.click && told.onRow) onItemClick.raise(Index);
    if (told.click && hasWindow(window)) onClick.raise(Index);
    if (hasWindow(window)) tellMouse(told.mouse);
}

win::POINT ListView::menuPlace() {
    win::POINT place{};
    win::RECT row{};
    row.left = win::LVIR_BOUNDS;
    const int focused = focusedRow();
    if (focused >= 0 && send(win::LVM_GETITEMRECT, static_cast<win::WPARAM>(focused),
                             reinterpret_cast<win::LPARAM>(&row))) {
        win::RECT inner{};
        win::GetClientRect(hWnd(), &inner);
        place = {std::max<win::LONG>(row.left, 0),
                 std::clamp<win::LONG>(row.bottom, 0, inner.bottom)};
    }
    win::ClientToScreen(hWnd(), &place);
    return place;
}

}  // namespace magpie
