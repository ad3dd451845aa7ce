// Application: what the running program knows of itself.
#pragma once

#include <string>

namespace magpie {

// The title of boxes that have none of their own.
inline constexpr const char* applicationTitle = "Magpie";

// The folder that the program was started from, without a backslash at its end unless it
// is the root of a drive. Empty when the platform does not tell.
std::string appFolder();

// The text behind the program's name on the command line, without the blanks around
// it. The name may stand in quotes; the text is taken as it is.
std::string commandTail();

// True when another instance of the program is already running. The first call marks
// this one as running, for as long as the process lives.
bool anotherInstance();

}  // namespace magpie
