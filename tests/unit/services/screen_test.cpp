#include "platform/services/screen.h"

#include <gtest/gtest.h>

#include "platform/memory/driver.h"
#include "platform/runtime/failure.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

TEST(ScreenService, MeasuresTheDisplayInTwips) {
    EXPECT_EQ(Screen.TwipsPerPixelX(), 15);
    EXPECT_EQ(Screen.TwipsPerPixelY(), 15);
    EXPECT_EQ(Screen.Width(), 1024 * 15);
    EXPECT_EQ(Screen.Height(), 768 * 15);
}

TEST(ScreenService, TwipsFollowTheDensity) {
    driver::setDpi(144);
    EXPECT_EQ(Screen.TwipsPerPixelX(), 10);
    EXPECT_EQ(Screen.TwipsPerPixelY(), 10);
    EXPECT_EQ(pixelsX(1000), 100);
    EXPECT_EQ(pixelsY(1005), 101);
}

TEST(ScreenService, TheWorkAreaLeavesOutTheTaskBar) {
    win::RECT area{};
    EXPECT_TRUE(Screen.workArea(area));
    EXPECT_EQ(area.right, 1024);
    EXPECT_EQ(area.bottom, 740);
}

TEST(ScreenService, AWorkAreaThatIsNotToldLeavesTheRecordAlone) {
    driver::failCall("SystemParametersInfoA", 1, 5);
    win::RECT area{1, 2, 3, 4};
    EXPECT_FALSE(Screen.workArea(area));
    EXPECT_EQ(area.bottom, 4);
}

TEST(ScreenService, TheHourglassGoesWhenItsRoutineIsAbandoned) {
    EXPECT_EQ(failureOf([] {
                  const Hourglass hourglass;
                  EXPECT_EQ(driver::cursor(), win::IDC_WAIT_NUMBER);
                  throw Failure{failure::overflow};
                  return 0;
              }),
              failure::overflow);
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
    EXPECT_EQ(driver::cursor(), win::IDC_ARROW_NUMBER);
}

}  // namespace
}  // namespace magpie
