// "Apply Filter": the masks taken from the controls, in their order, and where it stops.
#include "tests/behaviour/panel_fixture.h"
#include "views/mask_controls.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class ApplyFilter : public PanelFixture {
public:
    struct Masks {
        std::array<bool, 6> rated{};
        int visitedMode = 0, visitedCount = 0;
        int addedMode = 0, addedValue = 0, addedUnit = 0;
        int accessedMode = 0, accessedValue = 0, accessedUnit = 0;
        bool operator==(const Masks&) const = default;
    };

    static Masks masks() {
        return {ratedMask, visitedMode,  visitedCount,  addedMode,   addedValue,
                addedUnit, accessedMode, accessedValue, accessedUnit};
    }

    // Every control away from its mask.
    static void setControls() {
        Form3.ratedBox[1].Value(0);
        Form3.Combo3[0].ListIndex(1);
        Form3.Text2[0].Text("11");
        Form3.Combo3[3].ListIndex(2);
        Form3.Text2[2].Text("12");
        Form3.Combo3[4].ListIndex(1);
        Form3.Combo3[1].ListIndex(3);
        Form3.Text2[1].Text("13");
        Form3.Combo3[2].ListIndex(2);
    }

    static void apply() { clickButton(Form3.cmdIndex[3]); }
};

// What is taken ------------------------------------------------------------------------

TEST_F(ApplyFilter, TakesEveryControl) {
    openFilter();
    setControls();
    EXPECT_EQ(masks(), (Masks{.rated = {true, true, true, true, true, false}}));
    apply();
    EXPECT_EQ(masks(), (Masks{{true, false, true, true, true, false}, 1, 11, 2, 12, 1, 3, 13, 2}));
}

TEST_F(ApplyFilter, RefreshesByTheNewMasks) {
    openFilter();
    add("c", 0).Rated = 3;
    uBlock.URLDatas().Item("00001").Visited = 5;
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b", "c"));
    clickInPanel(Form3.ratedBox[3]);
    EXPECT_EQ(Form3.ratedBox[3].Value(), 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b", "c"));
    apply();
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    bringIntoSight(Form3.visitedFrame);
    Form3.Combo3[0].SetFocus();
    pressKey(win::VK_DOWN);
    Form3.Text2[0].SetFocus();
    Form3.Text2[0].selectAll();
    driver::type("4");
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    apply();
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

TEST_F(ApplyFilter, ReadsTheTextMaskByTheWay) {
    openFilter();
    Form3.txtFilter.Text("B");
    apply();
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(ApplyFilter, RemembersTheFace) {
    openFilter();
    savedAdvMode = 1;
    apply();
    EXPECT_EQ(savedAdvMode, 2);
}

TEST_F(ApplyFilter, AllRatingsOffLeaveAnEmptyList) {
    openFilter();
    clickInPanel(Form3.cmdIndex[4]);
    apply();
    EXPECT_EQ(ratedMask, (std::array<bool, 6>{}));
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
    clickInPanel(Form3.cmdIndex[5]);
    apply();
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    EXPECT_FALSE(ratedMask[5]);
}

TEST_F(ApplyFilter, ClearAndSetAloneChangeNoMask) {
    openFilter();
    clickInPanel(Form3.cmdIndex[4]);
    for (CheckBox& box : Form3.ratedBox) EXPECT_EQ(box.Value(), 0);
    EXPECT_TRUE(ratedMask[0]);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    clickInPanel(Form3.cmdIndex[5]);
    for (CheckBox& box : Form3.ratedBox) EXPECT_EQ(box.Value(), 1);
}

TEST_F(ApplyFilter, ReadsNumbersAsTheLanguageOfTheFieldsDoes) {
    openFilter();
    const struct {
        const char* text;
        int number;
    } cases[] = {{"0", 0},   {"7", 7},     {" 7 ", 7},         {"-3", -3},        {"+3", 3},
                 {"2.5", 2}, {"3.5", 4},   {"1e3", 1000},      {"&H1F", 31},      {"007", 7},
                 {".5", 0},  {"-0.6", -1}, {"32767.4", 32767}, {"-32768", -32768}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        visitedCount = addedValue = accessedValue = 99;
        for (TextBox& field : Form3.Text2) field.Text(each.text);
        apply();
        EXPECT_EQ(visitedCount, each.number);
        EXPECT_EQ(addedValue, each.number);
        EXPECT_EQ(accessedValue, each.number);
    }
}

TEST_F(ApplyFilter, TheMasksHoldOnTheStandardTab) {
    openFilter();
    Form3.ratedBox[0].Value(0);
    apply();
    clickTab(2);
    EXPECT_THAT(titlesInView(), IsEmpty());
    ratedMask[0] = true;
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
}

// Where it stops -----------------------------------------------------------------------

// Texts that are no 16-bit number.
constexpr const char* badNumbers[] = {"",    " ",     "x",      "1x",      "1 2",   "1,5",
                                      "--1", "32768", "-32769", "32767.5", "1e9999"};

TEST_F(ApplyFilter, ABadCountOfVisitsStopsBehindTheRatingsAndTheMode) {
    openFilter();
    for (const char* text : badNumbers) {
        SCOPED_TRACE(text);
        visitedMode = 0;
        ratedMask[1] = true;
        setControls();
        Form3.Text2[0].Text(text);
        apply();
        EXPECT_EQ(masks(),
                  (Masks{.rated = {true, false, true, true, true, false}, .visitedMode = 1}));
    }
}

TEST_F(ApplyFilter, ABadValueOfTheAddedDateStopsBehindItsMode) {
    openFilter();
    for (const char* text : badNumbers) {
        SCOPED_TRACE(text);
        visitedMode = addedMode = 0;
        visitedCount = 0;
        setControls();
        Form3.Text2[2].Text(text);
        apply();
        EXPECT_EQ(masks(), (Masks{.rated = {true, false, true, true, true, false},
                                  .visitedMode = 1,
                                  .visitedCount = 11,
                                  .addedMode = 2}));
    }
}

TEST_F(ApplyFilter, ABadValueOfTheLastAccessStopsBehindEverythingElseButItsUnit) {
    openFilter();
    for (const char* text : badNumbers) {
        SCOPED_TRACE(text);
        accessedMode = 0;
        setControls();
        Form3.Text2[1].Text(text);
        apply();
        EXPECT_EQ(masks(),
                  (Masks{{true, false, true, true, true, false}, 1, 11, 2, 12, 1, 3, 0, 0}));
    }
}

TEST_F(ApplyFilter, WhereItStopsTheListAndTheRememberedFaceStay) {
    openFilter();
    savedAdvMode = 1;
    setRatedBoxes(false);
    Form3.Text2[1].Text("x");
    const int pumps = driver::pumps();
    apply();
    EXPECT_EQ(savedAdvMode, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("a"));
    EXPECT_EQ(driver::pumps(), pumps);
    EXPECT_EQ(ratedMask, (std::array<bool, 6>{}));
    // The masks that were taken count from the next refresh on.
    EXPECT_THAT(refreshed(), IsEmpty());
}

TEST_F(ApplyFilter, ACorrectedFieldApplies) {
    openFilter();
    Form3.Text2[0].Text("x");
    apply();
    Form3.Text2[0].Text("3");
    Form3.Combo3[0].ListIndex(3);
    apply();
    EXPECT_EQ(visitedMode, 3);
    EXPECT_EQ(visitedCount, 3);
    EXPECT_THAT(titlesInView(), IsEmpty());
}

// The controls and the masks -----------------------------------------------------------

TEST_F(ApplyFilter, TheFaceShowsTheMasksWhenItIsEntered) {
    open();
    ratedMask = {false, true, false, true, false, false};
    visitedMode = 1;
    visitedCount = -21;
    accessedMode = 2;
    accessedValue = 32767;
    accessedUnit = 1;
    addedMode = 3;
    addedValue = -32768;
    addedUnit = 2;
    clickButton(Form3.Command3[2]);
    std::vector<int> boxes;
    for (CheckBox& box : Form3.ratedBox) boxes.push_back(box.Value());
    EXPECT_THAT(boxes, ElementsAre(0, 1, 0, 1, 0));
    std::vector<int> rows;
    for (ComboBox& combo : Form3.Combo3) rows.push_back(combo.ListIndex());
    EXPECT_THAT(rows, ElementsAre(1, 2, 1, 3, 2));
    EXPECT_EQ(Form3.Text2[0].Text(), "-21");
    EXPECT_EQ(Form3.Text2[1].Text(), "32767");
    EXPECT_EQ(Form3.Text2[2].Text(), "-32768");
}

TEST_F(ApplyFilter, WhatWasNotAppliedIsGoneWhenTheFaceIsEnteredAgain) {
    openFilter();
    setControls();
    clickButton(Form3.Command3[2]);
    clickButton(Form3.Command3[0]);
    ASSERT_EQ(Form3.advMode, 2);
    EXPECT_EQ(Form3.ratedBox[1].Value(), 1);
    EXPECT_EQ(Form3.Combo3[0].ListIndex(), 0);
    EXPECT_EQ(Form3.Text2[0].Text(), "0");
}

TEST_F(ApplyFilter, TheMasksOutliveAFlush) {
    openFilter();
    setControls();
    apply();
    const Masks before = masks();
    driver::choose("Flush to Tray");
    clickButton(Form3.Command3[1]);
    ASSERT_FALSE(Form3.loaded());
    clickPad();
    ASSERT_EQ(Form3.advMode, 2);
    EXPECT_EQ(masks(), before);
    EXPECT_EQ(Form3.ratedBox[1].Value(), 0);
    EXPECT_EQ(Form3.Text2[1].Text(), "13");
}

TEST_F(ApplyFilter, TheBoxesAndTheMasksGoEitherWay) {
    openFilter();
    setRatedBoxes(false);
    syncRatedBoxes(true);
    EXPECT_EQ(ratedMask, (std::array<bool, 6>{}));
    ratedMask[2] = true;
    syncRatedBoxes(false);
    EXPECT_EQ(Form3.ratedBox[2].Value(), 1);
    EXPECT_EQ(Form3.ratedBox[1].Value(), 0);
}

}  // namespace
}  // namespace magpie
