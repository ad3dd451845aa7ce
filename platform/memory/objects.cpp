#include "platform/memory/objects.h"

#include <algorithm>
#include <cstring>

#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

constexpr auto moduleNotFound = static_cast<HRESULT>(0x8007007Eu);  // ERROR_MOD_NOT_FOUND

struct OwnObject : IDispatch {
    explicit OwnObject(std::span<const DISPATCHMEMBER> table) : members(table) {}

    HRESULT invoke(std::string_view name, WORD kind, Arguments arguments,
                   VARIANT* result) override {
        for (const DISPATCHMEMBER& each : members)
            if (!NoCase{}(each.name, name) && !NoCase{}(name, each.name))
                return call(each, kind, arguments, result);
        return DISP_E_UNKNOWNNAME;
    }

    HRESULT invoke(LONG id, Arguments arguments) {
        for (const DISPATCHMEMBER& each : members)
            if (each.id == id) return call(each, DISPATCH_METHOD, arguments, nullptr);
        return DISP_E_MEMBERNOTFOUND;
    }

    static HRESULT call(const DISPATCHMEMBER& member, WORD kind, Arguments arguments,
                        VARIANT* result) {
        if (!(member.kinds & kind)) return DISP_E_MEMBERNOTFOUND;
        VARIANT answer;
        const HRESULT done = member.call(arguments, &answer);
        if (done == 0 && result) *result = std::move(answer);
        return done;
    }

    std::span<const DISPATCHMEMBER> members;
};

// An object that is kept is held.
void hold(const VARIANT& value, int references) {
    if (auto* const object = std::get_if<IDispatch*>(&value))
        if (*object && ((*object)->references += references) == 0) delete *object;
}

bool same(const CLSID& a, const CLSID& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

LibraryObject& madeByLibrary(IDispatch* object) {
    auto* const made = dynamic_cast<LibraryObject*>(object);
    if (!made) refuse("connection point", "an object of no library");
    return *made;
}

}  // namespace

int& liveObjects() {
    static int live = 0;
    return live;
}

std::map<std::string, LibraryClasses, NoCase>& objectLibraries() {
    static std::map<std::string, LibraryClasses, NoCase> libraries;
    return libraries;
}

LibraryObject::~LibraryObject() {
    for (auto& [name, value] : properties) hold(value, -1);
    for (auto& [cookie, listener] : listeners) hold(listener, -1);
}

HRESULT LibraryObject::invoke(std::string_view name, WORD kind, Arguments arguments,
                              VARIANT* result) {
    if (kind == DISPATCH_METHOD) {
        const auto method = methods.find(name);
        if (method == methods.end()) return DISP_E_UNKNOWNNAME;
        VARIANT unwanted;
        return method->second(arguments, result ? result : &unwanted);
    }
    const auto property = properties.find(name);
    if (property == properties.end()) return DISP_E_UNKNOWNNAME;
    if (kind == DISPATCH_PROPERTYPUT) {
        hold(arguments[0], 1);
        hold(property->second, -1);
        property->second = arguments[0];
        if (onPut) onPut(name, arguments[0]);
        return 0;
    }
    if (onGet) onGet(name);
    *result = property->second;
    hold(*result, 1);
    return 0;
}

void LibraryObject::raise(LONG event, Arguments arguments) {
    for (auto& [cookie, listener] : std::map(listeners))
        static_cast<OwnObject*>(listener)->invoke(event, arguments);
}

}  // namespace memory

using namespace memory;

IDispatch::IDispatch() {
    ++liveObjects();
}

IDispatch::~IDispatch() {
    --liveObjects();
}

HRESULT CoCreateInstanceFrom(const char* libraryPath, const CLSID& classId, IDispatch** object) {
    *object = nullptr;
    if (faultIn("CoCreateInstanceFrom")) return moduleNotFound;
    const auto library = objectLibraries().find(std::string_view(libraryPath));
    if (library == objectLibraries().end()) return moduleNotFound;
    const auto made = library->second.find(classId.Data4[7]);
    if (made == library->second.end()) return CLASS_E_CLASSNOTAVAILABLE;
    auto* const fresh = new LibraryObject;
    made->second(*fresh);
    *object = fresh;
    return 0;
}

IDispatch* CreateStdDispatch(std::span<const DISPATCHMEMBER> members) {
    return new OwnObject(members);
}

HRESULT IConnectionPoint_Advise(IDispatch* source, const CLSID& events, IDispatch* sink,
                                DWORD* cookie) {
    LibraryObject& object = madeByLibrary(source);
    if (!same(object.events, events)) return CONNECT_E_NOCONNECTION;
    *cookie = ++object.lastCookie;
    object.listeners[*cookie] = sink;
    hold(sink, 1);
    return 0;
}

HRESULT IConnectionPoint_Unadvise(IDispatch* source, const CLSID& events, DWORD cookie) {
    LibraryObject& object = madeByLibrary(source);
    if (!same(object.events, events)) return CONNECT_E_NOCONNECTION;
    const auto listener = object.listeners.extract(cookie);
    if (listener.empty()) return CONNECT_E_NOCONNECTION;
    hold(listener.mapped(), -1);
    return 0;
}

}  // namespace win
