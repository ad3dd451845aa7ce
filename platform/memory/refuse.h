// Refusal: how the memory desktop meets what it does not know. It never answers
// a quiet "ok": it names what it met and ends the process, so that a test can not
// pass on a guess about the platform.
#pragma once

#include <cstdint>
#include <string_view>

namespace win::memory {

// Prints "memory desktop: <what>: <detail>" to the error stream and aborts.
[[noreturn]] void refuse(std::string_view what, std::string_view detail);
[[noreturn]] void refuse(std::string_view what, std::uintmax_t number);

}  // namespace win::memory
