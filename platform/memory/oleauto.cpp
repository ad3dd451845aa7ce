// Automation of the shell's windows and their collection, which another program serves.
#include "platform/api/oleauto.h"

#include <cstring>

#include "platform/memory/objects.h"
#include "platform/memory/refuse.h"
#include "platform/memory/shell_windows.h"

namespace win {

namespace memory {
namespace {

constexpr auto denied = static_cast<HRESULT>(0x80070005u);  // E_ACCESSDENIED

struct ShellObject : IDispatch {
    explicit ShellObject(ShellWindow* shown) : window(shown) { ++shellWindows().objects; }
    ~ShellObject() override { --shellWindows().objects; }

    HRESULT invoke(std::string_view name, WORD kind, Arguments arguments, VARIANT* result) override;

    ShellWindow* window;  // null: the collection
};

IDispatch* newObject(ShellWindow* window) {
    return new ShellObject(window);
}

void give(VARIANT* result, VARIANT value) {
    if (!result) refuse("automation", "a property that nobody takes");
    *result = std::move(value);
}

HRESULT invokeCollection(std::string_view name, Arguments arguments, VARIANT* result) {
    auto& all = shellWindows().all;
    if (name == "Count") {
        give(result, static_cast<std::int64_t>(all.size()));
    } else if (name == "Item") {
        auto& window = all.at(static_cast<std::size_t>(std::get<std::int64_t>(arguments[0])));
        give(result, window.away ? nullptr : newObject(&window));
    } else {
        return DISP_E_UNKNOWNNAME;
    }
    return 0;
}

HRESULT read(const ShellWindow& window, std::string_view name, VARIANT* result) {
    if (name == "Name") {
        give(result, window.name);
    } else if (name == "HWND") {
        give(result, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(window.window)));
    } else if (name == "Visible") {
        give(result, window.visible);
    } else if (name == "LocationName") {
        give(result, window.locationName);
    } else if (name == "LocationURL") {
        give(result, window.locationUrl);
    } else {
        return DISP_E_UNKNOWNNAME;
    }
    return 0;
}

HRESULT invokeWindow(ShellWindow& window, std::string_view name, WORD kind, Arguments arguments,
                     VARIANT* result) {
    if (window.underRead && kind == DISPATCH_PROPERTYGET) window.underRead(std::string(name));
    if (name == window.fails) return denied;
    if (kind == DISPATCH_PROPERTYGET) return read(window, name, result);
    if (kind == DISPATCH_PROPERTYPUT && name == "Visible") {
        window.done.push_back(std::get<bool>(arguments[0]) ? "visible" : "hidden");
    } else if (kind == DISPATCH_METHOD && name == "Navigate") {
        window.locationUrl = std::get<std::string>(arguments[0]);
        window.done.push_back("navigate " + window.locationUrl);
    } else {
        refuse("automation", name);
    }
    return 0;
}

HRESULT ShellObject::invoke(std::string_view name, WORD kind, Arguments arguments,
                            VARIANT* result) {
    if (!shellWindows().served) return denied;
    return window ? invokeWindow(*window, name, kind, arguments, result)
                  : invokeCollection(name, arguments, result);
}

}  // namespace

ShellWindows& shellWindows() {
    static ShellWindows windows;
    return windows;
}

}  // namespace memory

using namespace memory;

HRESULT CoCreateInstance(const CLSID& classId, IDispatch** object) {
    if (std::memcmp(&classId, &CLSID_ShellWindows, sizeof classId) != 0)
        refuse("class of an object", classId.Data1);
    *object = nullptr;
    if (!shellWindows().served) return REGDB_E_CLASSNOTREG;
    *object = newObject(nullptr);
    return 0;
}

HRESULT IDispatch_Invoke(IDispatch* object, const char* name, WORD kind,
                         std::span<const VARIANT> arguments, VARIANT* result) {
    return object->invoke(name, kind, arguments, result);
}

ULONG IDispatch_Release(IDispatch* object) {
    const int left = --object->references;
    if (left == 0) delete object;
    return static_cast<ULONG>(left);
}

}  // namespace win
