#include "browser/launch_browser.h"

#include <array>

#include "config/reg_module.h"
#include "core/state.h"
#include "platform/api/advapi32.h"
#include "platform/api/shell32.h"
#include "tray/form1.h"

namespace magpie {

namespace {

constexpr std::array<const char*, 3> browserFiles{"IEXPLORE.EXE", "Netscape.exe", "Opera.EXE"};

std::string pathOfBrowser() {
    if (browserType >= browserFiles.size()) return {};
    return appPathOf(browserFiles[browserType.value()], "");
}

}  // namespace

void launchBrowser(const std::string& url) {
    const std::string path = pathOfBrowser();
    win::ShellExecuteA(Form1.hWnd(), "Open", path.c_str(), url.c_str(), nullptr,
                       win::SW_SHOWNORMAL);
}

std::string appPathOf(const std::string& exeName, const std::string& sValueName) {
    constexpr const char* appPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
    win::HKEY key = nullptr;
    win::RegOpenKeyExA(win::HKEY_LOCAL_MACHINE, std::string(appPaths).append(exeName).c_str(), 0,
                       regAllAccess, &key);
    if (key == nullptr) return {};
    RegVariant value;
    regQueryValue(key, sValueName, value);
    win::RegCloseKey(key);
    return regText(value);
}

}  // namespace magpie
