#include "platform/memory/file_dialogs.h"

#include "platform/api/comdlg32.h"
#include "platform/memory/faults.h"
#include "platform/memory/modal_window.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

std::string textOf(const char* text) {
    return text ? text : "";
}

std::vector<std::string> filterOf(const char* pairs) {
    std::vector<std::string> filter;
    for (const char* at = pairs; at && *at; at += filter.back().size() + 1) filter.push_back(at);
    return filter;
}

void check(const OPENFILENAMEA& dialog) {
    if (dialog.lStructSize != sizeof dialog) refuse("file dialog size", dialog.lStructSize);
    const DWORD unknown = dialog.Flags & ~(OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR);
    if (unknown) refuse("file dialog flags", unknown);
    // Without it the dialog changes the folder that the whole program works in.
    if (!(dialog.Flags & OFN_NOCHANGEDIR)) refuse("file dialog", "without OFN_NOCHANGEDIR");
    if (!dialog.lpstrFile || dialog.nMaxFile < 2) refuse("file dialog", "without a buffer");
    if (dialog.lpstrCustomFilter || dialog.lpstrDefExt || dialog.lpfnHook ||
        dialog.lpTemplateName || dialog.lpstrFileTitle || dialog.FlagsEx) {
        refuse("file dialog", "a field that nothing here fills or reads");
    }
}

void giveBack(OPENFILENAMEA& dialog, const std::string& path) {
    if (path.size() >= dialog.nMaxFile) refuse("path longer than the file dialog's buffer", path);
    dialog.lpstrFile[path.copy(dialog.lpstrFile, path.size())] = '\0';
    const std::size_t name = path.rfind('\\') + 1;
    const std::size_t point = path.find('.', name) == std::string::npos ? 0 : path.rfind('.') + 1;
    dialog.nFileOffset = static_cast<WORD>(name);
    dialog.nFileExtension = static_cast<WORD>(point);
}

BOOL show(OPENFILENAMEA& dialog, bool save) {
    check(dialog);
    FileDialogs& dialogs = fileDialogs();
    dialogs.shown.push_back({save, dialog.hwndOwner, textOf(dialog.lpstrTitle),
                             filterOf(dialog.lpstrFilter), textOf(dialog.lpstrFile),
                             textOf(dialog.lpstrInitialDir), dialog.Flags});
    if (dialogs.answers.empty()) refuse("unanswered file dialog", dialogs.shown.back().title);
    const FileDialogAnswer answer = std::move(dialogs.answers.front());
    dialogs.answers.erase(dialogs.answers.begin());
    const FileDialog shown = dialogs.shown.back();
    const ModalWindow modal(dialog.hwndOwner, shown.title.c_str());
    const std::optional<std::string> chosen = answer(shown);
    if (chosen) giveBack(dialog, *chosen);
    return chosen.has_value();
}

}  // namespace

FileDialogs& fileDialogs() {
    static FileDialogs dialogs;
    return dialogs;
}

}  // namespace memory

BOOL GetOpenFileNameA(OPENFILENAMEA* dialog) {
    if (memory::faultIn("GetOpenFileNameA")) return 0;
    return memory::show(*dialog, false);
}

BOOL GetSaveFileNameA(OPENFILENAMEA* dialog) {
    if (memory::faultIn("GetSaveFileNameA")) return 0;
    return memory::show(*dialog, true);
}

}  // namespace win
