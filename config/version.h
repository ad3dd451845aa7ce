// Version: the program's, as the project states it.
#pragma once

#include <cstdint>

namespace magpie {

struct Version {
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t revision = 0;
};

Version programVersion();

}  // namespace magpie
