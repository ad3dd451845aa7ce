// A flush from the tray while a command of the main window lets events run: the window stays away,
// and what is left of the command comes to nothing.
#include <functional>

#include "platform/services/screen.h"
#include "tests/behaviour/shutdown_fixture.h"

namespace magpie {
namespace {

class FlushInside : public ShutdownFixture {
public:
    // Does as the user of the open window does, and flushes under the n-th pump of it. Answers
    // whether there was such a pump.
    static bool flushUnder(int pump, const std::function<void()>& user) {
        bool flushed = false;
        driver::atPump(pump, [&flushed] {
            flushed = true;
            chooseFromTray("Flush");
        });
        user();
        driver::pump();
        if (flushed) return true;
        // Uses the prepared action up.
        while (!flushed) DoEvents();
        clickPad();
        return false;
    }

    static void expectFlushed() {
        EXPECT_FALSE(Form3.loaded());
        EXPECT_FALSE(keepResident);
        EXPECT_FALSE(reallyLoaded);
        EXPECT_EQ(uBlock.URLDatas().Count(), 0);
        EXPECT_TRUE(Form1.loaded());
        EXPECT_FALSE(Form1.mFlush.Enabled);
        EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
    }

    // Tries every pump of a command.
    static void expectEveryFlushStays(const std::function<void()>& user) {
        open();
        int pump = 1;
        for (;; ++pump) {
            SCOPED_TRACE(pump);
            ASSERT_EQ(uBlock.URLDatas().Count(), 3);
            if (!flushUnder(pump, user)) break;
            expectFlushed();
            clickPad();
        }
        EXPECT_GT(pump, 1) << "the command lets no events run";
    }

    static void clickButton(Control& button) {
        driver::click(button.hWnd(), {8, 8});
        driver::pump();
    }
};

TEST_F(FlushInside, UnderARefreshEndsIt) {
    expectEveryFlushStays([] { chooseFromMenu("List All"); });
}

TEST_F(FlushInside, UnderATabSwitchEndsIt) {
    expectEveryFlushStays([] { clickTab(3 - currentTab); });
}

TEST_F(FlushInside, UnderAStepOfTheSidePanelEndsIt) {
    expectEveryFlushStays([] { clickButton(Form3.Command3[2]); });
}

TEST_F(FlushInside, UnderTheFlipBoxEndsIt) {
    // Only showing the panel again pumps.
    expectEveryFlushStays([] {
        clickButton(Form3.indexFlipBox);
        clickButton(Form3.indexFlipBox);
    });
}

TEST_F(FlushInside, UnderMergingEndsIt) {
    expectEveryFlushStays([] {
        driver::cancelFileDialog();
        chooseFromMenu("Magpie .PNS");
    });
}

TEST_F(FlushInside, UnderTheRefreshBehindAPickedGroupEndsTheSwitchAroundIt) {
    open();
    clickTab(2);
    clickTab(1);
    // On the way to the Standard tab the drop-down list picks its group, whose refresh pumps.
    ASSERT_TRUE(flushUnder(1, [] { clickTab(2); }));
    expectFlushed();
}

TEST_F(FlushInside, AWindowThatWasOpenedAgainIsWhole) {
    open();
    ASSERT_TRUE(flushUnder(1, [] { chooseFromMenu("List All"); }));
    clickPad();
    expectOpen();
    EXPECT_THAT(titlesInView(), testing::ElementsAre("Front page", "Tools"));
}

}  // namespace
}  // namespace magpie
