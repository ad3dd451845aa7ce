// LineHand: what moves the line, on either desktop.
#pragma once

#include <vector>

#include "platform/api/types.h"

namespace hand {

// Whether the line is in the hand of these tests: in the memory desktop, and under Wine, where
// a library of ours stands in for the system's. Elsewhere it is the machine's own.
bool movesTheLine();

// The states of the dial-up connections that are up from now on; the n-th has the same handle
// each time.
void setDialUp(const std::vector<win::DWORD>& states);

// What the system thinks of the line.
void setOnline(bool online);

}  // namespace hand
