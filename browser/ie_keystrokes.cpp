#include "browser/ie_keystrokes.h"

#include "browser/ie_window.h"
#include "browser/keystrokes.h"
#include "core/interface_held.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/form2.h"
#include "platform/api/user32.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/failure.h"
#include "platform/services/clipboard.h"
#include "tray/form1.h"

namespace magpie {

namespace {

std::string titleOf(win::HWND window) {
    constexpr std::size_t limit = 254;  // the end of the text included
    char title[limit] = "";
    win::GetWindowTextA(window, title);
    return title;
}

// The page's title stands before the browser's name, and ends at its first dash as well.
std::string pageTitle(const std::string& windowTitle) {
    return windowTitle.substr(0, windowTitle.find(" -"));
}

// Brings the topmost window forward and answers its title; empty when there is no window, or
// when it shows another title by now.
std::string bringForward() {
    const win::HWND window = topmostByTitle();
    if (window == nullptr) return {};
    win::SetActiveWindow(window);
    const std::string title = titleOf(window);
    if (!isIeTitle(title)) return {};
    win::SetForegroundWindow(window);
    return title;
}

// Whoever holds the clipboard is waited for, as long as the program goes on.
std::string clipboardTextInTheEnd() {
    for (;;) {
        try {
            return clipboardText();
        } catch (const Failure&) {
            DoEvents();
            // Another dialog may have come and gone, and let the interface go.
            modalOpen = D_NEW;
        }
        if (!Form1.loaded()) Form2.unload();
        if (!Form2.loaded()) throw Failure{failure::objectNotSet};
    }
}

}  // namespace

void copyFromIE() {
    const InterfaceHeld held(plainDialog);
    const std::string title = bringForward();
    if (title.empty()) return;
    pressAltD();
    clearClipboard();
    pressCtrlC();
    modalOpen = D_NEW;
    Form2.Text1[0].Text(pageTitle(title));
    Form2.Text1[1].Text(clipboardTextInTheEnd());
    showDialogModal(Form2);
}

bool pasteIntoIE(const std::string& url) {
    try {
        if (bringForward().empty()) return false;
        pressAltD();
        setClipboardText(Form1.hWnd(), url);
        pressCtrlV();
        pressEnter();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

}  // namespace magpie
