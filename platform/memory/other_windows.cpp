#include "platform/memory/other_windows.h"

#include <algorithm>

#include "platform/memory/activity.h"
#include "platform/memory/classes.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

// Far above the program's own.
constexpr std::uintptr_t firstHandle = 0x1000000;

std::vector<HWND> allWindows() {
    std::vector<HWND> all;
    for (const OtherWindow& each : otherWindows()) all.push_back(each.handle);
    all.insert(all.end(), desktop().zOrder.begin(), desktop().zOrder.end());
    return all;
}

struct Names {
    std::string_view className;
    std::string_view title;
};

Names namesOf(HWND handle) {
    if (const OtherWindow* other = otherWindow(handle)) return {other->className, other->title};
    return {windowOf(handle).className, windowOf(handle).text};
}

}  // namespace

std::vector<OtherWindow>& otherWindows() {
    static std::vector<OtherWindow> all;
    return all;
}

OtherWindow* otherWindow(HWND handle) {
    auto& all = otherWindows();
    const auto found = std::ranges::find(all, handle, &OtherWindow::handle);
    return found == all.end() ? nullptr : &*found;
}

bool isOthers(HWND handle) {
    return reinterpret_cast<std::uintptr_t>(handle) >= firstHandle;
}

HWND& otherForeground() {
    static HWND inFront = nullptr;
    return inFront;
}

HWND newOtherHandle() {
    static std::uintptr_t last = firstHandle;
    return reinterpret_cast<HWND>(last += 4);
}

}  // namespace memory

using namespace memory;

BOOL EnumWindows(WNDENUMPROC visit, LPARAM parameter) {
    for (HWND each : allWindows()) {
        if (IsWindow(each) && !visit(each, parameter)) return 0;
    }
    return 1;
}

HWND FindWindowA(const char* className, const char* windowName) {
    if (!className || windowName) refuse("FindWindowA", "by a title");
    for (HWND each : allWindows())
        if (sameIgnoringCase(namesOf(each).className, className)) return each;
    return nullptr;
}

}  // namespace win
