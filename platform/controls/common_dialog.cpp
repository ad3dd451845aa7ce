#include "platform/controls/common_dialog.h"

#include <algorithm>
#include <vector>

#include "platform/controls/control_failure.h"
#include "platform/controls/form.h"

namespace magpie {

namespace {

constexpr std::size_t longestPath = 32768;

// "a|b" as the platform wants it: every part and the whole ended by a NUL.
std::string platformFilter(std::string filter) {
    std::replace(filter.begin(), filter.end(), '|', '\0');
    filter += '\0';
    return filter;
}

}  // namespace

void CommonDialog::ShowOpen() {
    show(&win::GetOpenFileNameA);
}

void CommonDialog::ShowSave() {
    show(&win::GetSaveFileNameA);
}

void CommonDialog::show(win::BOOL (*dialog)(win::OPENFILENAMEA*)) {
    const std::string filter = platformFilter(Filter);
    std::vector<char> path(longestPath, '\0');
    FileName.copy(path.data(), longestPath - 1);
    win::OPENFILENAMEA record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = dialogOwner();
    record.lpstrFilter = filter.c_str();
    record.lpstrFile = path.data();
    record.nMaxFile = static_cast<win::DWORD>(path.size());
    record.lpstrTitle = DialogTitle.c_str();
    record.Flags = win::OFN_HIDEREADONLY | win::OFN_NOCHANGEDIR | win::OFN_EXPLORER;
    if (!dialog(&record)) throw Failure{failure::cancelWasChosen};
    FileName = path.data();
}

}  // namespace magpie
