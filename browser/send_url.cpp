#include "browser/send_url.h"

#include "browser/dde_roads.h"
#include "browser/ie_keystrokes.h"
#include "browser/ie_object.h"
#include "browser/launch_browser.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/row_match.h"
#include "mainwindow/same_main_window.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

constexpr std::uint8_t internetExplorer = 0;

// These answer whether the main window has to make room for the browser.

bool sendToInternetExplorer(const std::string& url, bool newWindow) {
    if (newWindow) {
        launchBrowser(url);
        return false;
    }
    if (!useKeystrokes) {
        navigateIE(url);
        return false;
    }
    if (pasteIntoIE(url)) return true;
    launchBrowser(url);
    return false;
}

bool sendByDde(const std::string& url, bool newWindow) {
    const Delivery delivery = deliverByDde(url, newWindow);
    if (delivery == Delivery::failed) launchBrowser(url);
    return delivery == Delivery::done;
}

}  // namespace

void sendURL(const std::string& url, bool newWindow) {
    try {
        const SameMainWindow mainWindow;
        singleSelect(false);
        const bool makesRoom = browserType == internetExplorer
                                   ? sendToInternetExplorer(url, newWindow)
                                   : sendByDde(url, newWindow);
        if (makesRoom && activeIcon && mainWindow.isThere()) stepAside(Form3);
    } catch (const Failure&) {
        return;
    }
}

}  // namespace magpie
