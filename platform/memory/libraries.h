// Libraries: the libraries of the system's folder that a program may load while it runs, and the
// functions that it may look for in them.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/api/kernel32.h"
#include "platform/memory/no_case.h"

namespace win::memory {

using Functions = std::set<std::string, std::less<>>;

// By the file's name.
using Libraries = std::map<std::string, Functions, NoCase>;
Libraries& systemLibraries();

}  // namespace win::memory
