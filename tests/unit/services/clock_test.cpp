#include "platform/services/clock.h"

#include <gtest/gtest.h>

#include "platform/api/kernel32.h"
#include "platform/memory/driver_system.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

TEST(Clock, TellsTheLocalTime) {
    driver::setLocalTime(1999, 10, 2, 14, 30, 0);
    EXPECT_EQ(dateText(now()), "1999-10-02 14:30:00");
    EXPECT_NEAR(now().days, 36435.6041666667, 1e-9);
}

TEST(Clock, DropsWhatIsLessThanASecond) {
    driver::setLocalTime(1999, 12, 31, 23, 59, 59, 999);
    EXPECT_EQ(dateText(now()), "1999-12-31 23:59:59");
    win::Sleep(1);
    EXPECT_EQ(dateText(now()), "2000-01-01 00:00:00");
}

TEST(Clock, GoesOnWhileTheProgramSleeps) {
    driver::setLocalTime(2000, 2, 28, 23, 59, 0);
    win::Sleep(60'000);
    EXPECT_EQ(dateText(now()), "2000-02-29 00:00:00");
}

}  // namespace
}  // namespace magpie
