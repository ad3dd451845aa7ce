#include "platform/services/automation.h"

#include <utility>

#include "platform/runtime/failure.h"

namespace magpie {

namespace {

template <class T>
T valueOf(win::VARIANT value) {
    T* const found = std::get_if<T>(&value);
    if (found == nullptr) throw Failure{failure::automation};
    return std::move(*found);
}

}  // namespace

AutomationObject::AutomationObject(const win::CLSID& classId) {
    if (win::CoCreateInstance(classId, &object_) < 0 || object_ == nullptr)
        throw Failure{failure::cannotCreateObject};
}

AutomationObject::AutomationObject(const std::string& libraryPath, const win::CLSID& classId) {
    if (win::CoCreateInstanceFrom(libraryPath.c_str(), classId, &object_) < 0 || object_ == nullptr)
        throw Failure{failure::cannotCreateObject};
}

AutomationObject::AutomationObject(std::span<const win::DISPATCHMEMBER> members)
    : object_(win::CreateStdDispatch(members)) {}

AutomationObject::~AutomationObject() {
    if (object_ != nullptr) win::IDispatch_Release(object_);
}

AutomationObject::AutomationObject(AutomationObject&& other) noexcept
    : object_(std::exchange(other.object_, nullptr)) {}

std::string AutomationObject::text(const char* property) const {
    return valueOf<std::string>(invoke(property, win::DISPATCH_PROPERTYGET, {}));
}

std::int64_t AutomationObject::number(const char* property) const {
    return valueOf<std::int64_t>(invoke(property, win::DISPATCH_PROPERTYGET, {}));
}

bool AutomationObject::truth(const char* property) const {
    return valueOf<bool>(invoke(property, win::DISPATCH_PROPERTYGET, {}));
}

void AutomationObject::put(const char* property, const win::VARIANT& value) const {
    invoke(property, win::DISPATCH_PROPERTYPUT, {&value, 1});
}

void AutomationObject::call(const char* method, const win::VARIANT& argument) const {
    call(method, std::initializer_list<win::VARIANT>{argument});
}

void AutomationObject::call(const char* method,
                            std::initializer_list<win::VARIANT> arguments) const {
    if (win::IDispatch_Invoke(object_, method, win::DISPATCH_METHOD,
                              {arguments.begin(), arguments.size()}, nullptr) < 0)
        throw Failure{failure::automation};
}

AutomationObject AutomationObject::item(std::int64_t at) const {
    const win::VARIANT index = at;
    auto* const found = valueOf<win::IDispatch*>(invoke("Item", win::DISPATCH_METHOD, {&index, 1}));
    if (found == nullptr) throw Failure{failure::automation};
    return AutomationObject(found);
}

win::VARIANT AutomationObject::invoke(const char* member, win::WORD kind,
                                      std::span<const win::VARIANT> arguments) const {
    win::VARIANT result;
    if (win::IDispatch_Invoke(object_, member, kind, arguments, &result) < 0)
        throw Failure{failure::automation};
    return result;
}

EventListener::EventListener(const AutomationObject& source, const win::CLSID& events,
                             std::span<const win::DISPATCHMEMBER> members)
    : sink_(members), source_(source.lend()), events_(events) {
    if (win::IConnectionPoint_Advise(source_, events_, sink_.lend(), &cookie_) < 0)
        throw Failure{failure::automation};
}

EventListener::~EventListener() {
    win::IConnectionPoint_Unadvise(source_, events_, cookie_);
}

}  // namespace magpie
