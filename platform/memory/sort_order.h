// Sort order: how the system's sorted controls order their texts.
#pragma once

#include <string>

namespace win::memory {

// Negative, zero or positive. Letters count alike whatever their case, and come after
// digits, which come after signs. Hyphens and apostrophes only decide between texts
// that are otherwise alike. Refuses bytes outside ASCII, whose order is the locale's.
int compareAsListed(const std::string& left, const std::string& right);

}  // namespace win::memory
