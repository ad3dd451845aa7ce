#include "platform/memory/driver_objects.h"

namespace win::memory::driver {

void putLibrary(std::string_view path, const CLSID& classId,
                std::function<void(LibraryObject&)> layOut) {
    objectLibraries()[std::string(path)][classId.Data4[7]] = std::move(layOut);
}

int objects() {
    return liveObjects();
}

const std::vector<HelpCall>& helpCalls() {
    return memory::helpCalls();
}

}  // namespace win::memory::driver
