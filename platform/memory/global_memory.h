// Global memory: a block that is known by a handle and has to be locked to be used.
#pragma once

#include <map>
#include <string>

#include "platform/api/types.h"

namespace win::memory {

struct GlobalBlock {
    std::string bytes;
    int locks = 0;
    bool clipboard = false;  // no longer the program's
};

// Refuses a handle that is no block.
GlobalBlock& blockOf(HGLOBAL handle);

HGLOBAL newBlock(std::string bytes);
void freeBlock(HGLOBAL handle);

// Blocks that are not freed, by their handles, the clipboard's included.
std::map<HGLOBAL, GlobalBlock>& globalBlocks();

}  // namespace win::memory
