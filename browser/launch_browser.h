// Starting the browser of the settings, and where a browser's file is.
#pragma once

#include <string>

namespace magpie {

// Starts it with the address as its command line, as it stands. What comes of it is not looked
// at; a browser that can't be found starts nothing.
void launchBrowser(const std::string& url);

// The value of that name under the key that a program's installation leaves for its file name;
// the empty name is the file's full path. Empty without such a key or value.
std::string appPathOf(const std::string& exeName, const std::string& sValueName);

}  // namespace magpie
