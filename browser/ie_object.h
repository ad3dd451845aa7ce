// A running Internet Explorer as automation knows it.
#pragma once

#include <optional>
#include <string>

#include "platform/services/automation.h"

namespace magpie {

// The automation object of the topmost window of Internet Explorer's or the shell's kind, if it is
// Internet Explorer's; no window below it is tried. Whatever fails on the way means that there is
// none.
std::optional<AutomationObject> findIEObject();

// Sends a running Internet Explorer to the address. Starts one where none is running, or where
// it lets itself not be driven.
void navigateIE(const std::string& url);

}  // namespace magpie
