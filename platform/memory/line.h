// Line: the dial-up connections and the system's opinion of the line, as a test tells them, and
// what the program asked about them.
#pragma once

#include <string>
#include <vector>

#include "platform/api/types.h"

namespace win::memory {

struct DialUp {
    std::uint32_t handle = 0;  // never 0, and no other connection's
    DWORD state = 0;           // RASCS_Connected, or any other
};

// How often each question was put, and the record that came with it.
struct LineQuestions {
    int enumerations = 0;
    int states = 0;
    int general = 0;
    DWORD connectionSize = 0;
    DWORD offeredBytes = 0;
    DWORD stateSize = 0;
};

struct Line {
    std::vector<DialUp> dialUp;
    bool online = false;
    LineQuestions asked;
};

Line& line();

}  // namespace win::memory
