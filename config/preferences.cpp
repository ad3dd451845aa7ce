// Preferences: the companion library's dialog over the settings. They are handed over each time
// and taken back at its Apply.
#include <cstdint>
#include <memory>
#include <utility>

#include "config/companion.h"
#include "config/companion_host.h"
#include "config/library_member.h"
#include "config/pienest.h"
#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "mainwindow/tab_screens.h"
#include "platform/controls/event.h"
#include "platform/runtime/word.h"
#include "tray/form1.h"
#include "tray/pad.h"
#include "tray/tray_icon.h"

namespace magpie {

namespace {

// An event like any other: a failure of its routine ends here.
win::HRESULT applyCurrent(LibraryArguments, win::VARIANT*) {
    Event<> ApplyCurrent;
    ApplyCurrent = gcfg_ApplyCurrent;
    ApplyCurrent.raise(0);
    return 0;
}

constexpr win::DISPATCHMEMBER gcfgEvents[] = {
    {"ApplyCurrent", pienest::applyCurrent, win::DISPATCH_METHOD, applyCurrent},
};

template <class Number>
std::int64_t whole(const Number& number) {
    return number.value();
}

void handSettingsOver(const AutomationObject& gcfg) {
    gcfg.put("fullWindow", Form3.mnuFullwindow.Checked);
    gcfg.put("browserType", whole(browserType));
    gcfg.put("autoLoadSettings", autoLoadSettings);
    gcfg.put("autoSaveSettings", autoSaveSettings);
    gcfg.put("autoLoadURLs", autoLoadURLs);
    gcfg.put("autoSaveURLs", autoSaveURLs);
    gcfg.put("useKeystrokes", useKeystrokes);
    gcfg.put("Placement", std::int64_t{Form3.tbStrip.Placement()});
    gcfg.put("mainOnTop", mainOnTop);
    gcfg.put("iconOnTop", iconOnTop);
    gcfg.put("lineCheck", whole(lineCheck));
    gcfg.put("activeIcon", activeIcon);
    gcfg.put("onlineAction", whole(onlineAction));
    gcfg.put("noTrayIcon", noTrayIcon);
    gcfg.put("onlineOnly", onlineOnly);
    gcfg.put("shortcutMode", whole(shortcutMode));
}

// A pad for the line only goes at once while there is none, and comes back.
void takeOnlineOnly(bool wanted) {
    if (wanted == onlineOnly) return;
    onlineOnly = wanted;
    if (isOnline != 0) return;
    if (onlineOnly) {
        Form1.Visible(false);
        Form1.Hide();
    } else {
        Form1.Show();
        Form1.Visible(true);
    }
}

void takeActiveIcon(bool wanted) {
    if (wanted == activeIcon || onlineOnly) return;
    activeIcon = !wanted;
    toggleActiveIcon();
}

// The object as the main window's own, for as long as the operation takes.
class DuringOperation {
public:
    explicit DuringOperation(AutomationObject&& gcfg) {
        Form3.gcfg = std::make_shared<AutomationObject>(std::move(gcfg));
    }
    ~DuringOperation() { Form3.gcfg.reset(); }
    DuringOperation(const DuringOperation&) = delete;
    DuringOperation& operator=(const DuringOperation&) = delete;
};

}  // namespace

void showPreferences() {
    AutomationObject made = newLibraryObject(pienest::gcfg);
    LibraryDialog dialog;
    const DuringOperation operation(std::move(made));
    const AutomationObject& gcfg = *Form3.gcfg;
    const EventListener listener(gcfg, pienest::gcfgEvents, gcfgEvents);
    const AutomationObject host = hostObject(Form3);
    const AutomationObject application = applicationObject();
    gcfg.put("Host", host.lend());
    gcfg.put("Application", application.lend());
    gcfg.put("appPath", appPath);
    handSettingsOver(gcfg);
    dialog.lowerMainWindow();
    gcfg.call("Show", {});
}

void gcfg_ApplyCurrent() {
    if (!Form3.gcfg) return;
    const AutomationObject& gcfg = *Form3.gcfg;
    const auto placement = static_cast<int>(gcfg.number("Placement"));
    if (placement != Form3.tbStrip.Placement()) setTabPlacement(placement);
    autoLoadSettings = gcfg.truth("autoLoadSettings");
    autoSaveSettings = gcfg.truth("autoSaveSettings");
    autoLoadURLs = gcfg.truth("autoLoadURLs");
    autoSaveURLs = gcfg.truth("autoSaveURLs");
    useKeystrokes = gcfg.truth("useKeystrokes");
    browserType = gcfg.number("browserType");
    iconOnTop = gcfg.truth("iconOnTop");
    takeOnlineOnly(gcfg.truth("onlineOnly"));
    takeActiveIcon(gcfg.truth("activeIcon"));
    lineCheck = gcfg.number("lineCheck");
    onlineAction = gcfg.number("onlineAction");
    mainOnTop = gcfg.truth("mainOnTop");
    setTopMost(Form3, word(mainOnTop));
    if (const bool wanted = gcfg.truth("noTrayIcon"); wanted != noTrayIcon) {
        noTrayIcon = wanted;
        setTrayIcon(noTrayIcon);
    }
    shortcutMode = gcfg.number("shortcutMode");
}

}  // namespace magpie
