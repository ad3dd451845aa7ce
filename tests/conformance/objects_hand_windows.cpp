#ifdef _WIN32

#include <fstream>

#include "tests/conformance/objects_hand.h"

#include <windows.h>

namespace hand {

namespace {

std::string besideProgram(const char* name) {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string program = path;
    return program.substr(0, program.rfind('\\') + 1) + name;
}

}  // namespace

std::string objectLibrary() {
    return besideProgram("object_double.dll");
}

std::string objectLibraryOnNoDrive() {
    return "\\\\?\\" + objectLibrary();
}

std::string libraryWithoutObjects() {
    return besideProgram("line_double.dll");
}

std::string brokenLibrary() {
    char folder[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    const std::string path = std::string(folder) + "magpie_broken.dll";
    std::ofstream(path) << "no library";
    return path;
}

bool isLetGo(const std::string& library) {
    return ::GetModuleHandleA(library.c_str()) == nullptr;
}

}  // namespace hand

#endif
