// ControlsTest: the ground for tests of controls: the common controls are started, and
// the driver pumps as the program does.
#pragma once

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "platform/controls/common_controls.h"
#include "platform/controls/form.h"
#include "platform/controls/message_loop.h"
#include "platform/memory/driver.h"

namespace magpie {

namespace driver = win::memory::driver;

class ControlsTest : public testing::Test {
public:
    ControlsTest() {
        startCommonControls();
        driver::pumpWith(DoEvents);
    }
    // Whatever a test has prepared must have happened.
    void TearDown() override { EXPECT_EQ(driver::unplayed(), 0); }
};

// What events noted, in their order.
inline std::vector<std::string> noted;

inline void note(const std::string& what) {
    noted.push_back(what);
}

// The number of the failure that `action` raises; 0 for none.
template <class Action>
int failureOf(Action action) {
    try {
        action();
    } catch (const Failure& failed) {
        return failed.number;
    }
    return 0;
}

}  // namespace magpie
