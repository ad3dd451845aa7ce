// olectl: objects that a library makes without being registered, objects of the program's own that
// others call by name, and events over connection points. Belongs to the interface thread.
#pragma once

#include <span>

#include "platform/api/oleauto.h"

namespace win {

// 0 and an object of this class, made by the class factory of the library at this full path, on a
// drive or a share; else the error and null. The registry is not asked. The library stays loaded
// once it has made an object.
HRESULT CoCreateInstanceFrom(const char* libraryPath, const CLSID& classId, IDispatch** object);

// What answers a member: 0, or a failure that the caller gets to see. What is among the
// arguments is lent for the call; `result` gets no object. Must not throw.
using MEMBERPROC = HRESULT (*)(std::span<const VARIANT> arguments, VARIANT* result);

// A member of an object of the program's own: its name and number, and how it may be called, as a
// sum of DISPATCH_METHOD and DISPATCH_PROPERTYGET.
struct DISPATCHMEMBER {  // the program's own
    const char* name;
    LONG id;
    WORD kinds;
    MEMBERPROC call;
};

// An object with these members, which have to outlive it. The caller gives it back.
IDispatch* CreateStdDispatch(std::span<const DISPATCHMEMBER> members);

// From now on `source` tells the sink of its events of this interface, by their numbers; `cookie`
// ends that. Answers 0, or the error: CONNECT_E_NOCONNECTION for events that it does not have.
HRESULT IConnectionPoint_Advise(IDispatch* source, const CLSID& events, IDispatch* sink,
                                DWORD* cookie);
HRESULT IConnectionPoint_Unadvise(IDispatch* source, const CLSID& events, DWORD cookie);

}  // namespace win
