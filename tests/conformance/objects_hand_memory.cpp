#ifndef _WIN32

#include "platform/memory/driver_objects.h"
#include "tests/conformance/objects_hand.h"

namespace hand {

namespace {

using win::Arguments;
using win::VARIANT;

constexpr auto denied = static_cast<win::HRESULT>(0x80070005u);

win::HRESULT ask(Arguments handed, VARIANT* result) {
    const auto kind = static_cast<win::WORD>(std::get<std::int64_t>(handed[2]));
    return win::IDispatch_Invoke(std::get<win::IDispatch*>(handed[0]),
                                 std::get<std::string>(handed[1]).c_str(), kind, handed.subspan(3),
                                 result);
}

void layOut(win::memory::LibraryObject& object) {
    object.events = objectEvents;
    object.properties["Value"];
    object.methods["Raise"] = [&object](Arguments handed, VARIANT*) {
        object.raise(1, handed);
        object.raise(2);
        return 0;
    };
    object.methods["Ask"] = ask;
    object.methods["Fail"] = [](Arguments, VARIANT*) { return denied; };
    object.methods["Odd"] = [](Arguments, VARIANT*) { return 0; };
}

std::string libraryAt(const char* path) {
    win::memory::driver::putLibrary(path, objectClass, layOut);
    return path;
}

}  // namespace

std::string objectLibrary() {
    return libraryAt("C:\\Tests\\object_double.dll");
}

std::string objectLibraryOnNoDrive() {
    return libraryAt("\\\\server\\share\\object_double.dll");
}

// What makes no objects is not there for whoever wants one.
std::string libraryWithoutObjects() {
    return "C:\\Tests\\line_double.dll";
}

std::string brokenLibrary() {
    return "C:\\Tests\\broken.dll";
}

bool isLetGo(const std::string&) {
    return true;
}

}  // namespace hand

#endif
