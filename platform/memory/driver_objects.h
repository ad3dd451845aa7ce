// Driver, the objects' part: libraries that make objects, and what the help viewer was asked for.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/memory/help.h"
#include "platform/memory/objects.h"

namespace win::memory::driver {

// From now on the library at this full path makes objects of this class, each laid out by
// `layOut` before anybody gets it.
void putLibrary(std::string_view path, const CLSID& classId,
                std::function<void(LibraryObject&)> layOut);
// Objects that were not given back, the program's own included.
int objects();
// What the help viewer was asked for so far.
const std::vector<HelpCall>& helpCalls();

}  // namespace win::memory::driver
