// ObjectsHand: a library that makes objects of one class, on either desktop:
//   Value                        a property that keeps whatever it is given
//   Raise TEXT                   raises event 1 with the text, and then event 2 without one
//   Ask HOST MEMBER KIND [TEXT]  calls the host's member by its name and hands its answer back
//   Fail                         fails as one that is denied
//   Odd                          answers a value that is none of a host's kinds
#pragma once

#include <string>

#include "platform/api/olectl.h"

namespace hand {

// Its full path; and one that does not begin with a drive, as that of a share.
std::string objectLibrary();
std::string objectLibraryOnNoDrive();

// A library that makes no objects, and a file that is no library.
std::string libraryWithoutObjects();
std::string brokenLibrary();
// Whether nobody has the library loaded.
bool isLetGo(const std::string& library);

inline constexpr win::CLSID objectClass{
    0x5B6F41A0, 0x90C3, 0x4C1E, {0x8D, 0x21, 0x3A, 0x77, 0x0E, 0x55, 0x10, 1}};
inline constexpr win::CLSID objectEvents{
    0x5B6F41A0, 0x90C3, 0x4C1E, {0x8D, 0x21, 0x3A, 0x77, 0x0E, 0x55, 0x10, 2}};

}  // namespace hand
