// The five strips of the Filter face: how they open and shut, where they stand, and how
// the settings keep them.
#include "views/filter_strips.h"

#include "config/config.h"
#include "platform/runtime/failure.h"
#include "tests/behaviour/message_log.h"
#include "tests/behaviour/panel_fixture.h"
#include "tests/behaviour/settings_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;

class FilterStrips : public PanelFixture {
public:
    static std::vector<double> stripTops() {
        std::vector<double> tops;
        for (Frame& strip : Form3.slideSwitch) tops.push_back(strip.Top());
        return tops;
    }

    static std::vector<double> frameTops() {
        std::vector<double> tops;
        for (Frame* frame : frames()) tops.push_back(frame->Top());
        return tops;
    }

    // Bit i: strip i is open, by all that tells it.
    static int openOnes() {
        int bits = 0;
        for (int i = 0; i <= 4; ++i) {
            const std::string& tag = Form3.slideButton[i].Tag;
            Frame& frame = *frames()[static_cast<std::size_t>(i)];
            EXPECT_EQ(frame.Tag, tag);
            EXPECT_EQ(frame.Visible(), tag == "True");
            EXPECT_TRUE(tag == "True" || tag == "False");
            if (tag == "True") bits |= 1 << i;
        }
        return bits;
    }

    static void bringAll(int bits) {
        for (int i = 0; i <= 4; ++i) slideBump(i, (bits >> i) & 1);
    }
};

// The design ---------------------------------------------------------------------------

TEST_F(FilterStrips, HaveTheSizesOfTheDesign) {
    openFilter();
    for (int i = 0; i <= 4; ++i) {
        SCOPED_TRACE(i);
        Frame& strip = Form3.slideSwitch[i];
        EXPECT_EQ(strip.Left(), 144);
        EXPECT_EQ(strip.Width(), 1740);
        EXPECT_EQ(strip.Height(), 396);
        Button& button = Form3.slideButton[i];
        EXPECT_EQ(button.Left(), 48);
        EXPECT_EQ(button.Top(), 144);
        EXPECT_EQ(button.Width(), 1644);
        EXPECT_EQ(button.Height(), 204);
    }
    const double heights[] = {2148, 1500, 1476, 1476, 828};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(frames()[i]->Width(), 1956);
        EXPECT_EQ(frames()[i]->Height(), heights[i]);
    }
}

TEST_F(FilterStrips, HaveTheirCaptions) {
    openFilter();
    std::vector<std::string> captions;
    for (Button& button : Form3.slideButton) captions.push_back(button.Caption());
    EXPECT_THAT(captions, ElementsAre("Importance Masks", "Visited", "Last Accessed", "Added",
                                      "Text Masking"));
}

TEST_F(FilterStrips, EveryControlLiesInsideItsFrame) {
    openFilter();
    std::vector<Control*> all = {&Form3.Picture3, &Form3.timesLabel, &Form3.txtFilter};
    for (CheckBox& box : Form3.ratedBox) all.push_back(&box);
    for (ComboBox& combo : Form3.Combo3) all.push_back(&combo);
    for (TextBox& text : Form3.Text2) all.push_back(&text);
    for (Control* each : all) {
        Control& frame = *each->containingControl();
        SCOPED_TRACE(each->Caption());
        EXPECT_GE(each->Left(), 60);
        EXPECT_LE(each->Left() + each->Width(), frame.Width() - 60);
        // The strip covers the frame's upper edge.
        EXPECT_GE(each->Top(), 396 - 170 + 60);
        EXPECT_LE(each->Top() + each->Height(), frame.Height() - 60);
    }
}

// Open and shut ------------------------------------------------------------------------

TEST_F(FilterStrips, AllStartOpenEachUnderTheOneBefore) {
    openFilter();
    EXPECT_EQ(openOnes(), 31);
    EXPECT_THAT(stripTops(), ElementsAre(0, 2578, 4508, 6414, 8320));
    EXPECT_THAT(frameTops(), ElementsAre(170, 2748, 4678, 6584, 8490));
    EXPECT_EQ(Form3.filter3Box.Height(), 8490 + 1200);
}

TEST_F(FilterStrips, AllShutStandFourHundredApart) {
    openFilter();
    bringAll(0);
    EXPECT_EQ(openOnes(), 0);
    EXPECT_THAT(stripTops(), ElementsAre(0, 400, 800, 1200, 1600));
    EXPECT_EQ(Form3.filter3Box.Height(), 1600 + 700);
}

TEST_F(FilterStrips, InEveryStateEachStripStandsUnderTheOneBefore) {
    openFilter();
    const double heights[] = {2148, 1500, 1476, 1476, 828};
    for (int bits = 0; bits < 32; ++bits) {
        SCOPED_TRACE(bits);
        bringAll(bits);
        EXPECT_EQ(openOnes(), bits);
        double top = 0;
        for (int i = 0; i <= 4; ++i) {
            EXPECT_EQ(Form3.slideSwitch[i].Top(), top);
            EXPECT_EQ(frames()[static_cast<std::size_t>(i)]->Top(), top + 170);
            top += 400;
            if ((bits >> i) & 1) top += heights[i] + 30;
        }
        const double last = Form3.slideSwitch[4].Top();
        EXPECT_EQ(Form3.filter3Box.Height(), (bits & 16) != 0 ? last + 170 + 1200 : last + 700);
    }
}

TEST_F(FilterStrips, AClickOnItsButtonTogglesAStrip) {
    openFilter();
    for (int i = 0; i <= 4; ++i) {
        SCOPED_TRACE(i);
        clickInPanel(Form3.slideButton[i]);
        EXPECT_EQ(openOnes(), 31 & ~(1 << i));
        clickInPanel(Form3.slideButton[i]);
        EXPECT_EQ(openOnes(), 31);
    }
}

TEST_F(FilterStrips, TheSpaceBarAndEnterToggleTheStripThatHasTheFocus) {
    openFilter();
    Form3.slideButton[1].SetFocus();
    pressKey(win::VK_SPACE);
    EXPECT_EQ(openOnes(), 29);
    pressKey(win::VK_SPACE);
    EXPECT_EQ(openOnes(), 31);
    pressKey(win::VK_RETURN);
    EXPECT_EQ(openOnes(), 29);
    EXPECT_EQ(win::GetFocus(), Form3.slideButton[1].hWnd());
}

TEST_F(FilterStrips, TwoTogglesBringAStripBack) {
    openFilter();
    const std::vector<double> before = stripTops();
    slideBump(2, -1);
    EXPECT_EQ(openOnes(), 27);
    EXPECT_NE(stripTops(), before);
    slideBump(2, -1);
    EXPECT_EQ(openOnes(), 31);
    EXPECT_EQ(stripTops(), before);
}

TEST_F(FilterStrips, EveryOtherStateToggles) {
    openFilter();
    for (const int state : {-1, 2, 255, -7}) {
        SCOPED_TRACE(state);
        slideBump(0, 1);
        slideBump(0, state);
        EXPECT_EQ(openOnes(), 30);
        slideBump(0, state);
        EXPECT_EQ(openOnes(), 31);
    }
}

TEST_F(FilterStrips, OpeningAnOpenStripOnlyLaysOutAnew) {
    openFilter();
    const std::vector<double> before = stripTops();
    Form3.slideSwitch[3].Top(1);
    Form3.filter3Box.Height(100);
    slideBump(1, 1);
    EXPECT_EQ(openOnes(), 31);
    EXPECT_EQ(stripTops(), before);
    EXPECT_EQ(Form3.filter3Box.Height(), 9690);
}

TEST_F(FilterStrips, ShuttingAShutStripLeavesItShut) {
    openFilter();
    slideBump(1, 0);
    slideBump(1, 0);
    EXPECT_EQ(openOnes(), 29);
}

TEST_F(FilterStrips, AStripWithoutAStateIsShutByAToggle) {
    openFilter();
    Form3.slideButton[0].Tag = "";
    slideBump(0, -1);
    EXPECT_EQ(openOnes(), 30);
}

TEST_F(FilterStrips, ThereIsNoSixthStrip) {
    openFilter();
    for (const int index : {-1, 5}) {
        try {
            slideBump(index, 1);
            ADD_FAILURE() << index;
        } catch (const Failure& failed) {
            EXPECT_EQ(failed.number, failure::noSuchControl);
        }
    }
}

TEST_F(FilterStrips, TheFirstStripsPlaceIsTheOthersBase) {
    openFilter();
    bringAll(0);
    Form3.slideSwitch[0].Top(50);
    slideBump(4, 0);
    EXPECT_THAT(stripTops(), ElementsAre(50, 450, 850, 1250, 1650));
}

// What is shown ------------------------------------------------------------------------

TEST_F(FilterStrips, AShutStripTakesItsControlsOutOfReach) {
    openFilter();
    slideBump(0, 0);
    EXPECT_FALSE(win::IsWindowVisible(Form3.ratedBox[0].hWnd()));
    EXPECT_TRUE(win::IsWindowVisible(Form3.slideButton[0].hWnd()));
    slideBump(0, 1);
    EXPECT_TRUE(win::IsWindowVisible(Form3.ratedBox[0].hWnd()));
}

// The panel is not drawn while its strips move, and then once, whole.
TEST_F(FilterStrips, AStripMovesInOneStep) {
    openFilter();
    const std::vector<double> before = stripTops();
    const auto entry = [&before](win::UINT message, win::WPARAM wParam) {
        const char* const at = stripTops() == before ? " before" : " behind";
        switch (message) {
            case win::WM_SETREDRAW: return std::string(wParam != 0 ? "draws" : "holds") + at;
            case win::WM_PAINT: return std::string("painted") + at;
            default: return std::string();
        }
    };
    const MessageLog log(Form3.filter3Box.hWnd(), entry);
    slideBump(0, -1);
    EXPECT_THAT(log.entries, ElementsAre("holds before", "draws behind", "painted behind"));
}

TEST_F(FilterStrips, AStripOutOfSightPaintsNothing) {
    open();
    const auto entry = [](win::UINT message, win::WPARAM) {
        return std::string(message == win::WM_PAINT ? "painted" : "");
    };
    const MessageLog log(Form3.filter3Box.hWnd(), entry);
    slideBump(0, -1);
    EXPECT_THAT(log.entries, testing::IsEmpty());
    EXPECT_EQ(openOnes(), 30);
}

TEST_F(FilterStrips, OnAnotherFaceAStripMovesOutOfSight) {
    open();
    EXPECT_FALSE(Form3.filter3Box.Visible());
    slideBump(0, 0);
    EXPECT_EQ(openOnes(), 30);
    EXPECT_FALSE(win::IsWindowVisible(Form3.filter3Box.hWnd()));
    clickButton(Form3.Command3[2]);
    EXPECT_TRUE(win::IsWindowVisible(Form3.filter3Box.hWnd()));
    EXPECT_EQ(openOnes(), 30);
}

TEST_F(FilterStrips, TheMasksInAShutStripKeepTheirControlsContents) {
    openFilter();
    Form3.Text2[0].Text("12");
    slideBump(1, -1);
    slideBump(1, -1);
    EXPECT_EQ(Form3.Text2[0].Text(), "12");
}

// The settings -------------------------------------------------------------------------

class StripSettings : public SettingsFixture {
public:
    static int openOnes() {
        int bits = 0;
        for (Button& button : Form3.slideButton)
            if (button.Tag == "True") bits |= 1 << button.Index;
        return bits;
    }
};

TEST_F(StripSettings, OnTheFirstStartEveryStripIsOpen) {
    EXPECT_EQ(slideState, 31);
    startAndOpen();
    EXPECT_EQ(slideState, 31);
    EXPECT_EQ(openOnes(), 31);
}

TEST_F(StripSettings, WithoutAutomaticLoadingEveryStripIsOpen) {
    putRecord("CF", "31 0 0 0 1 1 0 1500 3000 6000 4500 7 0 36000");
    startAndOpen();
    EXPECT_FALSE(autoLoadSettings);
    EXPECT_EQ(openOnes(), 31);
}

TEST_F(StripSettings, EachBitOpensItsStrip) {
    start();
    for (int bits = 0; bits < 32; ++bits) {
        SCOPED_TRACE(bits);
        readMain(mainRecord(11, std::to_string(bits)));
        EXPECT_EQ(openOnes(), bits);
    }
}

TEST_F(StripSettings, BitsWithoutAStripDoNothing) {
    start();
    readMain(mainRecord(11, "-1"));
    EXPECT_EQ(openOnes(), 31);
    readMain(mainRecord(11, "32"));
    EXPECT_EQ(openOnes(), 0);
}

// Where the record tells nothing, the state that was known drives the strips.
TEST_F(StripSettings, ARecordWithoutTheStripsBringsTheKnownStateBack) {
    start();
    for (const char* token : {"", "x", "2147483648"}) {
        SCOPED_TRACE(token);
        slideState = 5;
        slideBump(1, 1);
        readMain(mainRecord(11, token));
        EXPECT_EQ(slideState, 5);
        EXPECT_EQ(openOnes(), 5);
    }
    slideState = 9;
    readMain("8 0 0");
    EXPECT_EQ(openOnes(), 9);
}

TEST_F(StripSettings, WhatIsSavedIsWhatIsOpen) {
    startAndOpen();
    for (int bits = 0; bits < 32; ++bits) {
        for (int i = 0; i <= 4; ++i) slideBump(i, (bits >> i) & 1);
        slideState = 77;
        saveConfig();
        EXPECT_EQ(slideState, bits);
        EXPECT_EQ(tokenOf("CF", 11), std::to_string(bits));
    }
}

TEST_F(StripSettings, TheStripsComeBackAfterAFlush) {
    putRecord("CF", mainRecord(0, "8"));
    startAndOpen();
    slideBump(0, 0);
    slideBump(3, 0);
    chooseFromMenu("Flush to Tray");
    EXPECT_FALSE(Form3.loaded());
    clickPad();
    EXPECT_EQ(openOnes(), 22);
}

TEST_F(StripSettings, TheStripsComeBackOnAnotherFaceAsWell) {
    putRecord("CF", "8 0 0 0 1 2 0 1500 3000 6000 4500 17 0 36000");
    startAndOpen();
    EXPECT_EQ(Form3.advMode, 2);
    EXPECT_TRUE(Form3.filter3Box.Visible());
    EXPECT_EQ(openOnes(), 17);
    EXPECT_TRUE(win::IsWindowVisible(Form3.Frame4.hWnd()));
    EXPECT_FALSE(win::IsWindowVisible(Form3.addedFrame.hWnd()));
}

}  // namespace
}  // namespace magpie
