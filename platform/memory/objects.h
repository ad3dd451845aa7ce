// Objects: what automation calls by the names of members: objects of the program's own, and those
// that a library makes.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/olectl.h"
#include "platform/memory/no_case.h"

namespace win {

using Arguments = std::span<const VARIANT>;

struct IDispatch {
    IDispatch();
    virtual ~IDispatch();
    IDispatch(const IDispatch&) = delete;
    IDispatch& operator=(const IDispatch&) = delete;

    virtual HRESULT invoke(std::string_view name, WORD kind, Arguments arguments,
                           VARIANT* result) = 0;

    int references = 1;
};

namespace memory {

// How many objects were not given back.
int& liveObjects();

// An object that a library has made: its properties take what they are given, its methods are
// a test's.
struct LibraryObject : IDispatch {
    using Method = std::function<HRESULT(Arguments arguments, VARIANT* result)>;

    ~LibraryObject() override;
    HRESULT invoke(std::string_view name, WORD kind, Arguments arguments, VARIANT* result) override;

    // Tells the listeners of an event, and returns when they are through with it.
    void raise(LONG event, Arguments arguments = {});

    std::map<std::string, VARIANT, std::less<>> properties;
    std::map<std::string, Method, std::less<>> methods;
    std::function<void(std::string_view name, const VARIANT& value)> onPut{};
    std::function<void(std::string_view name)> onGet{};
    CLSID events{};  // the interface of its events
    std::map<DWORD, IDispatch*> listeners{};
    DWORD lastCookie = 0;
};

// What a library makes: of each class, by the last byte of its identifier, an object, which
// its maker lays out.
using LibraryClasses = std::map<DWORD, std::function<void(LibraryObject&)>>;

// By full path.
std::map<std::string, LibraryClasses, NoCase>& objectLibraries();

}  // namespace memory

}  // namespace win
