#include "platform/services/clipboard.h"

#include <gtest/gtest.h>
#include <string>

#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/runtime/failure.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using failure::clipboardUnavailable;

class ClipboardService : public testing::Test {
protected:
    ~ClipboardService() override {
        EXPECT_FALSE(driver::liveInSystem().clipboardOpen);
        EXPECT_EQ(driver::faultsLeft(), 0);
        win::DestroyWindow(window);
    }

    int failureOfSetting(const std::string& text) const {
        return failureOf([&] {
            setClipboardText(window, text);
            return 0;
        });
    }
    int failureOfClearing() const {
        return failureOf([&] {
            clearClipboard();
            return 0;
        });
    }
    static int failureOfReading() {
        return failureOf([] { return clipboardText(); });
    }

    win::HWND window = win::CreateWindowExA(0, "STATIC", "", win::WS_POPUP, 0, 0, 1, 1, nullptr,
                                            nullptr, nullptr, nullptr);
};

TEST_F(ClipboardService, ATextSetIsThereForEveryone) {
    setClipboardText(window, "http://server/");
    EXPECT_EQ(driver::clipboardText(), "http://server/");
    EXPECT_EQ(clipboardText(), "http://server/");
    EXPECT_EQ(driver::liveInSystem().globalBlocks, 1);
}

TEST_F(ClipboardService, AnotherProgramsTextIsRead) {
    driver::setClipboardText("theirs");
    EXPECT_EQ(clipboardText(), "theirs");
}

TEST_F(ClipboardService, ANewTextTakesTheOldOnesPlace) {
    driver::setClipboardText("theirs");
    setClipboardText(window, "");
    EXPECT_EQ(driver::clipboardText(), "");
    EXPECT_EQ(driver::liveInSystem().globalBlocks, 1);
}

TEST_F(ClipboardService, AClearedClipboardReadsAsEmpty) {
    driver::setClipboardText("theirs");
    clearClipboard();
    EXPECT_EQ(driver::clipboardText(), std::nullopt);
    EXPECT_EQ(clipboardText(), "");
    EXPECT_EQ(driver::liveInSystem().globalBlocks, 0);
}

TEST_F(ClipboardService, TheTextEndsAtItsFirstNul) {
    setClipboardText(window, std::string("ab\0cd", 5));
    EXPECT_EQ(clipboardText(), "ab");
}

TEST_F(ClipboardService, OneThatStaysOpenElsewhereRaises) {
    driver::setClipboardText("theirs");
    driver::holdClipboard(true);
    EXPECT_EQ(failureOfReading(), clipboardUnavailable);
    EXPECT_EQ(failureOfClearing(), clipboardUnavailable);
    EXPECT_EQ(failureOfSetting("mine"), clipboardUnavailable);
    EXPECT_EQ(driver::clipboardText(), "theirs");
    EXPECT_EQ(driver::liveInSystem().globalBlocks, 1);
}

TEST_F(ClipboardService, OneThatIsOpenElsewhereForAMomentIsAwaited) {
    driver::failCall("OpenClipboard", 1, win::ERROR_ACCESS_DENIED);
    driver::failCall("OpenClipboard", 2, win::ERROR_ACCESS_DENIED);
    setClipboardText(window, "mine");
    EXPECT_EQ(driver::clipboardText(), "mine");
}

TEST_F(ClipboardService, AFailureOnTheWayLeavesNothingOpenAndNothingBehind) {
    for (const char* function :
         {"GlobalAlloc", "GlobalLock", "EmptyClipboard", "SetClipboardData"}) {
        driver::failCall(function, 1, 8);
        EXPECT_EQ(failureOfSetting("mine"), clipboardUnavailable) << function;
        EXPECT_EQ(driver::liveInSystem(), driver::SystemCounts{}) << function;
    }
    driver::failCall("EmptyClipboard", 1, 8);
    EXPECT_EQ(failureOfClearing(), clipboardUnavailable);
}

TEST_F(ClipboardService, ATextThatCannotBeLockedRaises) {
    driver::setClipboardText("theirs");
    driver::failCall("GlobalLock", 1, 8);
    EXPECT_EQ(failureOfReading(), clipboardUnavailable);
}

}  // namespace
}  // namespace magpie
