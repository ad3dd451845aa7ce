#include "browser/ie_object.h"

#include "browser/ie_window.h"
#include "browser/launch_browser.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

// Of a handle 32 bits count, whatever the width of the program that tells it.
bool isHandle(std::int64_t told, win::HWND window) {
    return static_cast<std::int32_t>(told) ==
           static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
}

bool shows(const AutomationObject& member, win::HWND window) {
    return member.text("Name") == "Microsoft Internet Explorer" &&
           isHandle(member.number("HWND"), window) && member.truth("Visible");
}

std::optional<AutomationObject> memberOf(win::HWND window) {
    const AutomationObject windows(win::CLSID_ShellWindows);
    const std::int64_t count = windows.number("Count");
    for (std::int64_t at = 0; at < count; ++at) {
        AutomationObject member = windows.item(at);
        if (shows(member, window)) return member;
    }
    return std::nullopt;
}

bool navigates(const std::string& url) {
    try {
        const std::optional<AutomationObject> browser = findIEObject();
        if (!browser) return false;
        browser->put("Visible", true);
        browser->call("Navigate", url);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

}  // namespace

std::optional<AutomationObject> findIEObject() {
    const win::HWND window = topmostOfPlatform();
    if (window == nullptr) return std::nullopt;
    try {
        return memberOf(window);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void navigateIE(const std::string& url) {
    if (!navigates(url)) launchBrowser(url);
}

}  // namespace magpie
