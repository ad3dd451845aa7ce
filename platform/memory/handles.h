// Handles: the kernel's objects that a program holds by a HANDLE and gives back with
// CloseHandle. A number is never given out twice, so that a stale handle is found out.
#pragma once

#include <map>
#include <memory>

#include "platform/api/types.h"

namespace win::memory {

struct KernelObject {
    virtual ~KernelObject() = default;
};

HANDLE newHandle(std::unique_ptr<KernelObject> object);

// The object behind a handle; null when the handle was closed or is none.
KernelObject* objectOf(HANDLE handle);

// What the whole program holds open, by its handles.
std::map<HANDLE, std::unique_ptr<KernelObject>>& openHandles();

}  // namespace win::memory
