#include "core/misc.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/runtime/word.h"
#include "tray/form1.h"

namespace magpie {

namespace {

// A form that has gone meanwhile, as by the tray menu under a dialog, stays gone. The
// platform activates the window as well, where only its level shall change: whoever had
// the keyboard keeps it.
void setLevel(Form& form, bool topMost) {
    if (!form.loaded()) return;
    const win::HWND active = win::GetActiveWindow();
    win::SetWindowPos(form.hWnd(), topMost ? win::HWND_TOPMOST : win::HWND_NOTOPMOST, 0, 0, 0, 0,
                      win::SWP_NOMOVE | win::SWP_NOSIZE);
    if (active != nullptr && win::GetActiveWindow() != active) win::SetActiveWindow(active);
}

}  // namespace

void setTopMost(Form& form, std::int16_t onTop) {
    setLevel(form, onTop == wordTrue);
    setLevel(Form1, (isOnline & word(iconOnTop)) != 0);
}

void showDialogModal(Form& form) {
    setTopMost(Form3, wordFalse);
    form.showModal();
    setTopMost(Form3, word(mainOnTop));
}

void centerOnMain(Form& form) {
    form.Left(Form3.Left() + (Form3.Width() - form.Width()) / 2);
    form.Top(Form3.Top() + (Form3.Height() - form.Height()) / 2);
}

void stepAside(Form& form) {
    form.Visible(false);
    form.WindowState(stateMinimised);
    form.Hide();
}

std::int32_t osPlatformId() {
    win::OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!win::GetVersionExA(&version)) return 0;
    return static_cast<std::int32_t>(version.dwPlatformId);
}

}  // namespace magpie
