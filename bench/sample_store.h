// SampleStore: a store of a given size, and the stack file that it makes.
#pragma once

#include <cstdint>
#include <string>

namespace magpie::bench {

struct StoreSize {
    std::int32_t entries;
    std::int32_t groups;
};

// Fills the empty store: texts of the usual lengths, dates that survive the file, the entries of
// each group together, as a load leaves them.
void fillStore(StoreSize size);

void emptyStore();

// The whole file on the desktop's disk, read in one piece.
std::string bytesOf(const std::string& path);

}  // namespace magpie::bench
