// User's answers: what a test has prepared for the moments when the program waits for
// its user. Every answer serves once.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/memory/driver.h"

namespace win::memory {

struct UserAnswers {
    std::deque<std::function<UINT(const driver::Popup&)>> popups;
    std::deque<std::function<int(const driver::Box&)>> boxes;
    std::vector<driver::Box> boxesShown;
    std::deque<POINT> drags;
    int beeps = 0;  // heard so far
};

UserAnswers& userAnswers();

}  // namespace win::memory
