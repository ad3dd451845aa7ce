#include "tests/conformance/file_dialog_user.h"

#ifdef _WIN32

#include <array>
#include <chrono>
#include <thread>

#include <windows.h>

namespace {

// Dialog items of the common dialogs' header dlgs.h.
constexpr int nameEdit = 0x0480;   // edt1
constexpr int nameCombo = 0x047C;  // cmb13, in dialogs that remember names

::HWND nameBoxOf(::HWND dialog) {
    ::HWND box = ::GetDlgItem(dialog, nameEdit);
    return box ? box : ::GetDlgItem(dialog, nameCombo);
}

std::string textOf(::HWND window) {
    std::array<char, 300> text{};
    ::SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<::LPARAM>(text.data()));
    return text.data();
}

// Accepts a visible file dialog of this process.
::BOOL CALLBACK isFileDialog(::HWND window, ::LPARAM found) {
    ::DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != ::GetCurrentProcessId() || !::IsWindowVisible(window)) return TRUE;
    if (!nameBoxOf(window)) return TRUE;
    *reinterpret_cast<::HWND*>(found) = window;
    return FALSE;
}

::HWND awaitFileDialog() {
    ::HWND dialog = nullptr;
    for (int tries = 0; !dialog && tries < 400; ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        ::EnumWindows(isFileDialog, reinterpret_cast<::LPARAM>(&dialog));
    }
    return dialog;
}

}  // namespace

struct FileDialogUser::Hand {
    SeenFileDialog seen;
    std::thread user;
};

FileDialogUser::FileDialogUser(win::HWND owner, std::optional<std::string> choice)
    : hand_(std::make_unique<Hand>()) {
    hand_->user = std::thread([&seen = hand_->seen, owner, choice = std::move(choice)] {
        const ::HWND dialog = awaitFileDialog();
        if (!dialog) return;
        seen.title = textOf(dialog);
        seen.name = textOf(nameBoxOf(dialog));
        seen.ownerEnabled = ::IsWindowEnabled(reinterpret_cast<::HWND>(owner));
        if (choice) {
            ::SendMessageA(nameBoxOf(dialog), WM_SETTEXT, 0,
                           reinterpret_cast<::LPARAM>(choice->c_str()));
        }
        ::PostMessageA(dialog, WM_COMMAND, choice ? IDOK : IDCANCEL, 0);
    });
}

FileDialogUser::~FileDialogUser() {
    if (hand_->user.joinable()) hand_->user.join();
}

const SeenFileDialog& FileDialogUser::seen() {
    if (hand_->user.joinable()) hand_->user.join();
    return hand_->seen;
}

#else

#include "platform/memory/driver_system.h"

struct FileDialogUser::Hand {
    SeenFileDialog seen;
};

FileDialogUser::FileDialogUser(win::HWND owner, std::optional<std::string> choice)
    : hand_(std::make_unique<Hand>()) {
    win::memory::driver::onFileDialog(
        [&seen = hand_->seen, owner, choice](const win::memory::FileDialog& dialog) {
            seen = {dialog.title, dialog.initialName, win::IsWindowEnabled(owner) != 0};
            return choice;
        });
}

FileDialogUser::~FileDialogUser() = default;

const SeenFileDialog& FileDialogUser::seen() {
    return hand_->seen;
}

#endif
