// Automation: another program's object, driven by the names of its members.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>

#include "platform/api/olectl.h"

namespace magpie {

namespace failure {
inline constexpr int automation = 440;
}

// An object that is given back at the end. Everything that goes wrong with it raises 440: a
// member that it does not have or that is of another kind, a program that denies it or has
// ended.
class AutomationObject {
public:
    // A new object of this class. Raises 429 when no program serves it.
    explicit AutomationObject(const win::CLSID& classId);
    // A new one that the library at this full path makes, whatever is registered. Raises 429.
    AutomationObject(const std::string& libraryPath, const win::CLSID& classId);
    // One of the program's own, for others to call; its members have to outlive it.
    explicit AutomationObject(std::span<const win::DISPATCHMEMBER> members);
    ~AutomationObject();
    AutomationObject(AutomationObject&& other) noexcept;
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    std::string text(const char* property) const;
    std::int64_t number(const char* property) const;
    bool truth(const char* property) const;
    void put(const char* property, const win::VARIANT& value) const;
    // Whatever comes back is dropped, of whatever kind it is.
    void call(const char* method, const win::VARIANT& argument) const;
    void call(const char* method, std::initializer_list<win::VARIANT> arguments) const;
    AutomationObject item(std::int64_t at) const;

    // As an argument or for a property; whoever keeps it holds it.
    win::IDispatch* lend() const { return object_; }

private:
    explicit AutomationObject(win::IDispatch* object) : object_(object) {}
    win::VARIANT invoke(const char* member, win::WORD kind,
                        std::span<const win::VARIANT> arguments) const;

    win::IDispatch* object_ = nullptr;
};

// Listens to the events of an object while it lives. The object has to outlive it.
class EventListener {
public:
    // The numbers of the members are those of the events. Raises 440 for events that the source
    // does not have.
    EventListener(const AutomationObject& source, const win::CLSID& events,
                  std::span<const win::DISPATCHMEMBER> members);
    ~EventListener();
    EventListener(const EventListener&) = delete;
    EventListener& operator=(const EventListener&) = delete;

private:
    AutomationObject sink_;
    win::IDispatch* source_;
    win::CLSID events_;
    win::DWORD cookie_ = 0;
};

}  // namespace magpie
