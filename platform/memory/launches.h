// Launches: the programs that the shell has started for the program.
#pragma once

#include <string>
#include <vector>

namespace win::memory {

struct Launch {
    std::string file;
    std::string parameters;
};

std::vector<Launch>& launches();

}  // namespace win::memory
