// oleauto: automation of other programs' objects, by the names of their members. Texts are ANSI
// bytes on this side. Belongs to the interface thread.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

struct CLSID {
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
};

// The collection of the windows that the shell and its browser have open.
inline constexpr CLSID CLSID_ShellWindows{
    0x9BA05972, 0xF6A8, 0x11CF, {0xA4, 0x42, 0x00, 0xA0, 0xC9, 0x0A, 0x8F, 0x39}};

// An object in whatever program it lives. Whoever was given one gives it back with
// IDispatch_Release.
struct IDispatch;

// A value: nothing, a truth, a whole number, a text, an object (which may be null).
using VARIANT = std::variant<std::monostate, bool, std::int64_t, std::string, IDispatch*>;

// 0 and an object of this class, made by the program that serves it; else the error and null.
HRESULT CoCreateInstance(const CLSID& classId, IDispatch** object);

// Calls the member `name` as a DISPATCH_METHOD, or gets or puts it as a property. Negative on
// failure, with `result` left alone. An object that comes back is the caller's; so are those
// among the arguments. `result` may be null.
HRESULT IDispatch_Invoke(IDispatch* object, const char* name, WORD kind,
                         std::span<const VARIANT> arguments, VARIANT* result);

ULONG IDispatch_Release(IDispatch* object);

}  // namespace win
