#include "config/companion_host.h"

#include "browser/launch_browser.h"
#include "config/help.h"
#include "config/library_member.h"
#include "config/pienest.h"
#include "config/version.h"
#include "core/misc.h"
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/word.h"
#include "platform/services/application.h"
#include "tray/form1.h"

namespace magpie {

namespace {

std::int64_t handleOf(Form& form) {
    return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(form.hWnd()));
}

win::HRESULT mainWindow(LibraryArguments, win::VARIANT* result) {
    return answered([result] { *result = handleOf(Form3); });
}

win::HRESULT trayWindow(LibraryArguments, win::VARIANT* result) {
    return answered([result] { *result = handleOf(Form1); });
}

win::HRESULT findCurrentVersion(LibraryArguments arguments, win::VARIANT* result) {
    return answered([=] {
        *result = gcfg_findCurrentVersion(argument<std::string>(arguments, 0),
                                          argument<std::string>(arguments, 1));
    });
}

win::HRESULT showHelpId(LibraryArguments arguments, win::VARIANT*) {
    return answered([=] {
        const auto window = static_cast<std::intptr_t>(argument<std::int64_t>(arguments, 1));
        out_ShowHelpID(static_cast<std::int32_t>(argument<std::int64_t>(arguments, 0)),
                       reinterpret_cast<win::HWND>(window));
    });
}

constexpr win::WORD get = win::DISPATCH_PROPERTYGET;

constexpr win::DISPATCHMEMBER form3Members[] = {
    {"hWnd", 1, get, mainWindow},
    {"gcfg_findCurrentVersion", 2, win::DISPATCH_METHOD, findCurrentVersion},
    {"out_ShowHelpID", 3, win::DISPATCH_METHOD, showHelpId},
};

constexpr win::DISPATCHMEMBER form1Members[] = {
    {"hWnd", 1, get, trayWindow},
};

template <class Property>
constexpr win::MEMBERPROC property(Property) {
    return [](LibraryArguments, win::VARIANT* result) -> win::HRESULT {
        *result = Property{}();
        return 0;
    };
}

constexpr win::DISPATCHMEMBER applicationMembers[] = {
    {"Title", 1, get, property([] { return std::string(applicationTitle); })},
    {"Path", 2, get, property([] { return appPath; })},
    {"HelpFile", 3, get, property([] { return helpFile; })},
    {"Major", 4, get, property([] { return std::int64_t{programVersion().major}; })},
    {"Minor", 5, get, property([] { return std::int64_t{programVersion().minor}; })},
    {"Revision", 6, get, property([] { return std::int64_t{programVersion().revision}; })},
};

}  // namespace

std::string gcfg_findCurrentVersion(const std::string& exeName, const std::string& sValueName) {
    return appPathOf(exeName, sValueName);
}

AutomationObject hostObject(Form& form) {
    if (&form == &Form1) return AutomationObject(form1Members);
    return AutomationObject(form3Members);
}

AutomationObject applicationObject() {
    return AutomationObject(applicationMembers);
}

AutomationObject newLibraryObject(const win::CLSID& classId) {
    return AutomationObject(appPath + "\\" + pienest::libraryFile, classId);
}

LibraryDialog::LibraryDialog() {
    modalOpen = 1;
}

LibraryDialog::~LibraryDialog() {
    modalOpen = 0;
    if (lowered_) setTopMost(Form3, word(mainOnTop));
}

void LibraryDialog::lowerMainWindow() {
    lowered_ = true;
    setTopMost(Form3, wordFalse);
}

}  // namespace magpie
