// What waits for the user: message boxes, popup menus, the drag of a window.
#include <algorithm>

#include "platform/memory/desktop.h"
#include "platform/memory/drag.h"
#include "platform/memory/faults.h"
#include "platform/memory/menu_tree.h"
#include "platform/memory/modal_window.h"
#include "platform/memory/place.h"
#include "platform/memory/refuse.h"
#include "platform/memory/user_answers.h"

namespace win::memory {
namespace {

template <class Answer>
Answer takeAnswer(std::deque<Answer>& prepared) {
    Answer answer = prepared.front();
    prepared.pop_front();
    return answer;
}

bool hasButton(UINT type, int button) {
    return type & MB_YESNO ? button == IDYES || button == IDNO : button == IDOK;
}

driver::MenuLine lineOf(const MenuEntry& entry);

std::vector<driver::MenuLine> linesOf(HMENU menu) {
    std::vector<driver::MenuLine> lines;
    for (const MenuEntry& each : entriesOf(menu)) lines.push_back(lineOf(each));
    return lines;
}

driver::MenuLine lineOf(const MenuEntry& entry) {
    driver::MenuLine line;
    line.id = entry.id;
    line.caption = entry.text;
    line.separator = entry.type & MFT_SEPARATOR;
    line.enabled = !(entry.state & MFS_GRAYED);
    line.checked = entry.state & MFS_CHECKED;
    if (entry.below) line.lines = linesOf(entry.below);
    return line;
}

bool canChoose(const std::vector<driver::MenuLine>& lines, UINT id) {
    return std::any_of(lines.begin(), lines.end(), [id](const driver::MenuLine& each) {
        if (!each.enabled || each.separator) return false;
        return each.lines.empty() ? each.id == id : canChoose(each.lines, id);
    });
}

}  // namespace

UserAnswers& userAnswers() {
    static UserAnswers answers;
    return answers;
}

ModalWindow::ModalWindow(HWND owner, const char* caption)
    : owner_(owner), disabledOwner_(owner && !EnableWindow(owner, false)) {
    window_ = CreateWindowExA(WS_EX_DLGMODALFRAME, "#32770", caption,
                              WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 100, 100, 300, 120,
                              owner, nullptr, nullptr, nullptr);
}

// The owner is enabled first, so that the activation can go back to it.
ModalWindow::~ModalWindow() {
    if (disabledOwner_ && IsWindow(owner_)) EnableWindow(owner_, true);
    if (IsWindow(window_)) DestroyWindow(window_);
}

void dragByCaption(HWND handle) {
    if (userAnswers().drags.empty()) refuse("drag without a target", windowOf(handle).text);
    POINT to = takeAnswer(userAnswers().drags);
    SetWindowPos(handle, nullptr, to.x, to.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageA(handle, WM_EXITSIZEMOVE, 0, 0);
}

}  // namespace win::memory

namespace win {

using namespace memory;

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    if (type & ~(MB_YESNO | MB_ICONWARNING | MB_ICONQUESTION | MB_DEFBUTTON2))
        refuse("type of a message box", type);
    if (faultIn("MessageBoxA")) return 0;
    driver::Box box{owner, text, caption, type};
    userAnswers().boxesShown.push_back(box);
    if (userAnswers().boxes.empty()) refuse("message box without an answer", text);
    auto answer = takeAnswer(userAnswers().boxes);
    ModalWindow modal(owner, caption);
    int button = answer(box);
    if (owner && !findWindow(owner)) return 0;
    if (!hasButton(type, button)) refuse("box does not have the button", std::to_string(button));
    return button;
}

BOOL MessageBeep(UINT type) {
    if (type != MB_OK) refuse("sound of a beep", type);
    ++userAnswers().beeps;
    return true;
}

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    if (flags & ~(TPM_LEFTALIGN | TPM_RIGHTBUTTON | TPM_NONOTIFY | TPM_RETURNCMD))
        refuse("flags of a popup menu", flags);
    windowOf(owner);
    driver::Popup popup{owner, {x, y}, flags, menu, {}};
    popup.menu.lines = linesOf(menu);
    if (faultIn("TrackPopupMenu")) return false;
    if (userAnswers().popups.empty()) refuse("popup menu", "without an answer");
    if (GetCapture()) ReleaseCapture();
    Menus::Tracked& tracked = menus().tracked.emplace_back();
    UINT chosen = takeAnswer(userAnswers().popups)(popup);
    if (tracked.ended) chosen = 0;
    menus().tracked.pop_back();
    if (chosen && !canChoose(popup.menu.lines, chosen)) refuse("menu can not give", chosen);
    if (flags & TPM_RETURNCMD) return static_cast<BOOL>(chosen);
    if (chosen) PostMessageA(owner, WM_COMMAND, chosen, 0);
    return true;
}

BOOL EndMenu() {
    if (menus().tracked.empty()) refuse("EndMenu", "without a menu");
    menus().tracked.back().ended = true;
    return true;
}

}  // namespace win
