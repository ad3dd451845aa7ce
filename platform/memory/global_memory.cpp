// Global memory: movable blocks, which only the clipboard still needs.
#include "platform/memory/global_memory.h"

#include "platform/api/kernel32.h"
#include "platform/memory/faults.h"
#include "platform/memory/refuse.h"

namespace win {

namespace memory {
namespace {

constexpr DWORD notLocked = 158;  // ERROR_NOT_LOCKED

}  // namespace

std::map<HGLOBAL, GlobalBlock>& globalBlocks() {
    static std::map<HGLOBAL, GlobalBlock> blocks;
    return blocks;
}

GlobalBlock& blockOf(HGLOBAL handle) {
    const auto found = globalBlocks().find(handle);
    if (found == globalBlocks().end()) {
        refuse("global memory handle", reinterpret_cast<std::uintptr_t>(handle));
    }
    return found->second;
}

HGLOBAL newBlock(std::string bytes) {
    static std::uintptr_t last = 0x800008;
    last += 16;
    const auto handle = reinterpret_cast<HGLOBAL>(last);
    globalBlocks()[handle].bytes = std::move(bytes);
    return handle;
}

void freeBlock(HGLOBAL handle) {
    if (blockOf(handle).locks) refuse("global memory freed", "while locked");
    globalBlocks().erase(handle);
}

}  // namespace memory

using namespace memory;

HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes) {
    if (flags != GMEM_MOVEABLE) refuse("GlobalAlloc flags", flags);
    if (bytes == 0) refuse("GlobalAlloc", "a block without bytes");
    if (faultIn("GlobalAlloc")) return nullptr;
    return newBlock(std::string(bytes, '\xCD'));
}

void* GlobalLock(HGLOBAL memory) {
    if (faultIn("GlobalLock")) return nullptr;
    GlobalBlock& block = blockOf(memory);
    ++block.locks;
    return block.bytes.data();
}

BOOL GlobalUnlock(HGLOBAL memory) {
    GlobalBlock& block = blockOf(memory);
    SetLastError(block.locks ? ERROR_SUCCESS : notLocked);
    if (block.locks) --block.locks;
    return block.locks > 0;
}

HGLOBAL GlobalFree(HGLOBAL memory) {
    if (blockOf(memory).clipboard) refuse("GlobalFree", "memory that the clipboard has taken");
    freeBlock(memory);
    return nullptr;
}

std::size_t GlobalSize(HGLOBAL memory) {
    return blockOf(memory).bytes.size();
}

}  // namespace win
