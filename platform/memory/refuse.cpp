#include "platform/memory/refuse.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace win::memory {

void refuse(std::string_view what, std::string_view detail) {
    std::fflush(stdout);
    std::string line = "memory desktop: " + std::string(what) + ": " + std::string(detail) + "\n";
    std::fputs(line.c_str(), stderr);
    std::abort();
}

void refuse(std::string_view what, std::uintmax_t number) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%ju (0x%jX)", number, number);
    refuse(what, std::string_view(digits));
}

}  // namespace win::memory
