// Driver, the line's part: dial-up connections, the system's opinion of the line, and the
// libraries that tell of them.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/memory/line.h"

namespace win::memory::driver {

// The dial-up connections that are up, or on their way up, from now on. None at the start.
void setDialUp(std::vector<DialUp> connections);
// What the system thinks of the line; it is down at the start.
void setOnline(bool online);
// What the program asked so far.
const LineQuestions& lineQuestions();

// A library of the system's folder ("rasapi32.dll", "wininet.dll", "hhctrl.ocx"), or a function of
// it, is not there until the result is gone. A program that has it loaded keeps it.
[[nodiscard]] std::shared_ptr<void> takeLibraryAway(std::string_view file);
[[nodiscard]] std::shared_ptr<void> takeFunctionAway(std::string_view file,
                                                     std::string_view function);

}  // namespace win::memory::driver
