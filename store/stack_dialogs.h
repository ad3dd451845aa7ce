// Stack dialogs: opening, merging and saving a stack file that the user chooses. Neither changes
// which file is the default one.
#pragma once

#include <string>

namespace magpie {

// Ask for a file and read or write it. They answer the path chosen, or empty text when the user
// cancels or something fails: nobody is told, and nothing more is done.
std::string OpenURLAs(bool merge);
std::string SaveURLAs();

}  // namespace magpie
