#include "tests/behaviour/companion_fixture.h"

#include "config/pienest.h"

namespace magpie {

namespace {

constexpr auto failed = static_cast<win::HRESULT>(0x80004005u);

const std::vector<std::string> gcfgProperties{
    "lineCheck",        "onlineAction", "noTrayIcon",   "onlineOnly",
    "activeIcon",       "shortcutMode", "fullWindow",   "browserType",
    "useKeystrokes",    "autoLoadURLs", "autoSaveURLs", "autoLoadSettings",
    "autoSaveSettings", "Placement",    "iconOnTop",    "mainOnTop",
    "appPath",          "Host",         "Application"};

}  // namespace

CompanionFixture::CompanionFixture() {
    driver::putLibrary(libraryPath, pienest::gcfg, [this](Library& object) {
        layOut(object, gcfgProperties, {"Show"}, pienest::gcfgEvents);
    });
    driver::putLibrary(libraryPath, pienest::mb, [this](Library& object) {
        layOut(object, {"Host"}, {"ImportFavorites", "ImportNetscape", "lastRootOwner"},
               pienest::mbEvents);
    });
    driver::putLibrary(libraryPath, pienest::out, [this](Library& object) {
        layOut(object, {}, {"About", "Contact"}, {});
    });
}

void CompanionFixture::layOut(Library& object, const std::vector<std::string>& properties,
                              const std::vector<std::string>& methods, const win::CLSID& events) {
    object.events = events;
    for (const std::string& name : properties) object.properties[name];
    object.onPut = [this](std::string_view name, const win::VARIANT&) { done.emplace_back(name); };
    object.onGet = [this](std::string_view name) { read.emplace_back(name); };
    for (const std::string& name : methods)
        object.methods[name] = [this, name, &object](win::Arguments handed, win::VARIANT*) {
            done.push_back(name + "()");
            arguments.assign(handed.begin(), handed.end());
            if (acts_.contains(name)) acts_[name](object);
            return name == failing_ ? failed : 0;
        };
}

void CompanionFixture::during(const std::string& method, std::function<void(Library&)> act) {
    acts_[method] = std::move(act);
}

win::HRESULT CompanionFixture::ask(win::IDispatch* host, const char* member, win::WORD kind,
                                   const std::vector<win::VARIANT>& handed, win::VARIANT* result) {
    return win::IDispatch_Invoke(host, member, kind, handed, result);
}

}  // namespace magpie
