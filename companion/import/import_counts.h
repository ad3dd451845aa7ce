// Import counts: what came in and what was skipped, and the sentence that says so.
#pragma once

#include <cstddef>
#include <string>

namespace magpie {

struct ImportCounts {
    std::size_t groups = 0;
    std::size_t links = 0;
    std::size_t withoutAddress = 0;
    std::size_t unreadable = 0;  // files and folders
    std::size_t withoutRoom = 0;
};

// What the user is told at the end of an import, such as "12 links in 3 groups were imported.
// 1 link without an address was skipped."
[[nodiscard]] std::string reportOf(const ImportCounts& counts);

}  // namespace magpie
