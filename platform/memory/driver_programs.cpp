#include "platform/memory/driver_programs.h"

#include "platform/memory/other_windows.h"
#include "platform/memory/refuse.h"

namespace win::memory::driver {
namespace {

OtherWindow& existing(HWND window) {
    OtherWindow* found = otherWindow(window);
    if (!found) refuse("driver: no window", reinterpret_cast<std::uintptr_t>(window));
    return *found;
}

}  // namespace

HWND openOtherWindow(std::string_view className, std::string_view title,
                     std::function<void(int virtualKey, bool down)> onKey) {
    const HWND handle = newOtherHandle();
    otherWindows().insert(otherWindows().begin(),
                          {handle, std::string(className), std::string(title), std::move(onKey)});
    return handle;
}

void closeOtherWindow(HWND window) {
    existing(window);
    std::erase_if(otherWindows(), [&](const OtherWindow& each) { return each.handle == window; });
    if (otherForeground() == window) otherForeground() = nullptr;
}

void retitleOtherWindow(HWND window, std::string_view title) {
    existing(window).title = title;
}

const std::vector<SentKey>& keysSent() {
    return sentKeys();
}

DdePeer& addDdePeer(DdePeer peer) {
    return ddePeers().emplace_back(std::move(peer));
}

void removeDdePeers() {
    for (DdePeer& each : ddePeers()) {
        each.topics.clear();
        each.hangs = 0;
    }
}

ShellWindow& addShellWindow(ShellWindow window) {
    shellWindows().served = true;
    return shellWindows().all.emplace_back(std::move(window));
}

void endShellWindows() {
    shellWindows().served = false;
}

const std::vector<Launch>& launched() {
    return launches();
}

}  // namespace win::memory::driver
