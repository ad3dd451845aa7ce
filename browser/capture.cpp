#include "browser/capture.h"

#include <optional>

#include "browser/dde_roads.h"
#include "browser/ie_keystrokes.h"
#include "browser/ie_object.h"
#include "core/interface_held.h"
#include "core/misc.h"
#include "core/state.h"
#include "entries/form2.h"
#include "mainwindow/same_main_window.h"
#include "platform/runtime/failure.h"

namespace magpie {

namespace {

constexpr std::uint8_t internetExplorer = 0;

// One capture at a time, also where it lets events run without holding the interface.
class OneCapture {
public:
    OneCapture() : first_(!underWay_) { underWay_ = true; }
    ~OneCapture() {
        if (first_) underWay_ = false;
    }
    OneCapture(const OneCapture&) = delete;
    OneCapture& operator=(const OneCapture&) = delete;

    bool first() const { return first_; }

private:
    static inline bool underWay_ = false;
    bool first_;
};

void showAsNewEntry(const Page& page) {
    const InterfaceHeld held(D_NEW);
    // The user may have used the dialog since the capture began, and its boxes load it only once
    // in an event.
    Form2.load();
    Form2.Text1[0].Text(page.title);
    Form2.Text1[1].Text(page.url);
    showDialogModal(Form2);
}

// Both texts before anything is shown: a browser that goes in between was not there.
std::optional<Page> pageByAutomation() {
    try {
        const std::optional<AutomationObject> browser = findIEObject();
        if (!browser) return std::nullopt;
        // A browser lets events in while it is read.
        const InterfaceHeld held(D_NEW);
        return Page{browser->text("LocationName"), browser->text("LocationURL")};
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}  // namespace

void getURL() {
    if (modalOpen > 0) return;
    const OneCapture capture;
    if (!capture.first()) return;
    if (useKeystrokes) return copyFromIE();
    if (browserType == internetExplorer) return readIEDirect();
    if (const std::optional<Page> page = readPageByDde()) showAsNewEntry(*page);
}

void readIEDirect() {
    const std::optional<Page> page = pageByAutomation();
    if (!page) return;
    const SameMainWindow mainWindow;
    showAsNewEntry(*page);
    if (mainWindow.isThere()) ++urlsDirty;
}

}  // namespace magpie
