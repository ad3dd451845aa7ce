// BrowserObject: the automation that a browser's window offers, and the collection of the
// shell's windows that it is found in, with that one member.
#pragma once

#include <functional>
#include <string>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on

struct BrowserPage {
    HWND window = nullptr;
    std::string name;  // of the program
    std::string locationName;
    std::string locationUrl;
    std::string manner;  // "refuse", "silent", else it does as it is told
    std::function<void(const std::string&)> log;
};

// Serves the collection under the class {5A2C8D51-4C1E-4D6B-9E0A-2F4B6C7D8E90}; another class
// can be told to be treated as that. True for success.
bool serveShellWindows(BrowserPage& page);
// Has to be called before the program ends: nobody else could serve the class after it.
void stopServing();
