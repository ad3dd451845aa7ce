#ifdef _WIN32

#include "tests/conformance/objects_hand.h"

#include <windows.h>

namespace hand {

std::string objectLibrary() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + "object_double.dll";
}

}  // namespace hand

#endif
