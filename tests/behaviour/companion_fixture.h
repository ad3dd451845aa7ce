// CompanionFixture: the program with a companion library whose insides are the test's: what it
// was given is noted, and what it does while a call runs is told beforehand.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/memory/driver_objects.h"
#include "tests/behaviour/shutdown_fixture.h"

namespace magpie {

class CompanionFixture : public ShutdownFixture {
public:
    using Library = win::memory::LibraryObject;

    CompanionFixture();

    // What the library does in a call of this method; a method without it does nothing.
    void during(const std::string& method, std::function<void(Library&)> act);
    // Lets the call fail behind that.
    void failing(const std::string& method) { failing_ = method; }

    // What was put and called, in order: "lineCheck", "Show()"; and what was read. `arguments` are
    // those of the last call.
    std::vector<std::string> done;
    std::vector<std::string> read;
    std::vector<win::VARIANT> arguments;

    // Calls a member of an object that the library was given.
    static win::HRESULT ask(win::IDispatch* host, const char* member, win::WORD kind,
                            const std::vector<win::VARIANT>& handed, win::VARIANT* result);
    static win::IDispatch* objectIn(const win::VARIANT& value) {
        return std::get<win::IDispatch*>(value);
    }
    static std::int64_t number(std::intptr_t value) { return value; }

    static bool onTop(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }

    static constexpr const char* libraryPath = "C:\\Magpie\\Pienest.dll";
    static constexpr std::int64_t flag = -1;

private:
    void layOut(Library& object, const std::vector<std::string>& properties,
                const std::vector<std::string>& methods, const win::CLSID& events);

    std::map<std::string, std::function<void(Library&)>> acts_;
    std::string failing_;
};

}  // namespace magpie
