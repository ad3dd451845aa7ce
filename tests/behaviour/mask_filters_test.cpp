// The dialog "Mask Filters", driven as by its user from the Standard tab.
#include "views/mask_filters.h"

#include "core/misc.h"
#include "platform/runtime/word.h"
#include "tests/behaviour/view_fixture.h"
#include "views/rated.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class MaskFilters : public ViewFixture {
public:
    ~MaskFilters() override { Rated.discard(); }

    // Records with these titles on the Standard tab, the n-th rated n.
    static void open(std::initializer_list<std::string_view> titles) {
        openWith({"A"});
        std::uint8_t rating = 0;
        for (const std::string_view title : titles) add(title).Rated = rating++;
        clickTab(2);
        RefreshURLPage();
    }

    static void click(Control& control) {
        driver::click(control.hWnd(), driver::middleOf(control.hWnd()));
        driver::pump();
    }

    static void press(int key, driver::Keys held = {}) {
        driver::key(key, held);
        driver::pump();
    }

    // Opens the dialog by "F", lets the user act in it, and closes it if that did not.
    static void edit(const std::function<void()>& user) {
        bool came = false;
        driver::whenIdle([&] {
            came = true;
            ASSERT_TRUE(Rated.Visible());
            user();
            Rated.unload();
            win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
        });
        click(Form3.Command5[0]);
        ASSERT_TRUE(came) << "the dialog did not open";
    }

    static std::vector<bool> ticks() {
        std::vector<bool> found;
        for (int row = 1; row <= Rated.ListView1[0].Count(); ++row)
            found.push_back(Rated.ListView1[0].Row(row).Checked());
        return found;
    }

    static void tick(int rating, bool ticked) {
        Rated.ListView1[0].Row(rating + 1).Checked(ticked);
    }

    // A click on the box of a rating's row.
    static void clickBox(int rating) {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        win::SendMessageA(Rated.ListView1[0].hWnd(), win::LVM_GETITEMRECT,
                          static_cast<win::WPARAM>(rating), reinterpret_cast<win::LPARAM>(&place));
        driver::click(Rated.ListView1[0].hWnd(), {place.left + 8, (place.top + place.bottom) / 2});
        driver::pump();
    }

    static bool onTop(Form& form) {
        return (win::GetWindowLongPtrA(form.hWnd(), win::GWL_EXSTYLE) & win::WS_EX_TOPMOST) != 0;
    }
};

// Opening and closing ----------------------------------------------------------------------

TEST_F(MaskFilters, ItShowsTheMasksAsTheyAre) {
    open({});
    ratedMask = {true, false, true, false, true, false};
    visitedMode = 2;
    visitedCount = -5;
    accessedMode = 3;
    accessedValue = 32767;
    accessedUnit = 1;
    edit([] {
        EXPECT_NE(driver::findWindow("Rated", "Mask Filters"), nullptr);
        EXPECT_THAT(ticks(), ElementsAre(true, false, true, false, true));
        EXPECT_EQ(Rated.Combo3[0].ListIndex(), 2);
        EXPECT_EQ(Rated.Text2[0].Text(), "-5");
        EXPECT_EQ(Rated.Combo3[1].ListIndex(), 3);
        EXPECT_EQ(Rated.Text2[1].Text(), "32767");
        EXPECT_EQ(Rated.Combo3[2].ListIndex(), 1);
    });
}

TEST_F(MaskFilters, ItsRowsCaptionsAndListsStandAsTheyShould) {
    open({});
    edit([] {
        std::vector<std::string> ratings;
        for (int row = 1; row <= Rated.ListView1[0].Count(); ++row)
            ratings.push_back(Rated.ListView1[0].Row(row).Text());
        // The side panel and the menu call the last one "Very High".
        EXPECT_THAT(ratings, ElementsAre("Not Rated", "Low", "Medium", "High", "V.High"));
        char heading[40] = "";
        win::LVCOLUMNA column{};
        column.mask = win::LVCF_TEXT;
        column.pszText = heading;
        column.cchTextMax = sizeof heading;
        win::SendMessageA(Rated.ListView1[0].hWnd(), win::LVM_GETCOLUMNA, 0,
                          reinterpret_cast<win::LPARAM>(&column));
        EXPECT_STREQ(heading, "Rating Filter");
        EXPECT_EQ(Rated.ListView1[0].ColumnCount(), 1);
        for (const int mode : {0, 1}) {
            std::vector<std::string> rows;
            for (int row = 0; row < Rated.Combo3[mode].ListCount(); ++row)
                rows.push_back(Rated.Combo3[mode].List(row));
            EXPECT_THAT(rows, ElementsAre("OFF", "More Than", "Less Than", "Equal To"));
        }
        std::vector<std::string> units;
        for (int row = 0; row < Rated.Combo3[2].ListCount(); ++row)
            units.push_back(Rated.Combo3[2].List(row));
        EXPECT_THAT(units, ElementsAre("Days", "Weeks", "Months"));
        const std::vector<std::string> captions{
            Rated.Command2[0].Caption(), Rated.Command2[1].Caption(), Rated.Command1[2].Caption(),
            Rated.Command1[0].Caption(), Rated.Label5[0].Caption(),   Rated.cmdFilter.Caption(),
            Rated.cmdCancel.Caption()};
        EXPECT_THAT(captions, ElementsAre("CLR", "SET", "Accessed", "Last Accessed", "Times",
                                          "Filter", "Cancel"));
    });
}

TEST_F(MaskFilters, ItStandsBelowTheMainWindowsCornerUnderItsIcon) {
    open({});
    Form3.Left(1500);
    Form3.Top(750);
    edit([] {
        EXPECT_EQ(Rated.Left(), 1500);
        EXPECT_EQ(Rated.Top(), 1250);
        EXPECT_NEAR(Rated.ScaleWidth(), 4392, 15);
        EXPECT_NEAR(Rated.ScaleHeight(), 2352, 15);
        EXPECT_EQ(driver::iconOf(Rated.hWnd(), win::ICON_SMALL), Form3.Icon().small);
        EXPECT_EQ(driver::iconOf(Rated.hWnd(), win::ICON_BIG), Form3.Icon().big);
    });
}

TEST_F(MaskFilters, ItHoldsTheInterfaceWhileItIsUp) {
    open({});
    mainOnTop = true;
    setTopMost(Form3, wordTrue);
    edit([] {
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
        EXPECT_FALSE(onTop(Form3));
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_FALSE(Rated.loaded());
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
    EXPECT_TRUE(onTop(Form3));
    EXPECT_EQ(win::GetActiveWindow(), Form3.hWnd());
}

TEST_F(MaskFilters, EveryWayOutLetsTheInterfaceGo) {
    open({});
    const std::function<void()> ways[] = {
        [] { click(Rated.cmdCancel); },
        [] { press(win::VK_ESCAPE); },
        [] { win::SendMessageA(Rated.hWnd(), win::WM_SYSCOMMAND, win::SC_CLOSE, 0); },
    };
    for (const auto& way : ways) {
        edit([&way] {
            EXPECT_EQ(modalOpen, 1);
            way();
            EXPECT_FALSE(Rated.loaded());
        });
        EXPECT_EQ(modalOpen, 0);
    }
}

TEST_F(MaskFilters, OnlyTheLeftButtonOpensIt) {
    open({});
    driver::click(Form3.Command5[0].hWnd(), driver::middleOf(Form3.Command5[0].hWnd()),
                  driver::Button::middle);
    driver::pump();
    EXPECT_FALSE(Rated.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(MaskFilters, OpenedManyTimesItLeavesNothingBehind) {
    open({"a"});
    edit([] {});
    const driver::Counts before = driver::live();
    for (int time = 0; time < 20; ++time) edit([] { click(Rated.cmdFilter); });
    EXPECT_EQ(driver::live(), before);
}

// Ticks ------------------------------------------------------------------------------------

TEST_F(MaskFilters, ClrAndSetTickWithoutTouchingAMask) {
    open({"a", "b"});
    ratedMask[1] = false;
    edit([] {
        click(Rated.Command2[0]);
        EXPECT_THAT(ticks(), testing::Each(false));
        click(Rated.Command2[1]);
        EXPECT_THAT(ticks(), testing::Each(true));
    });
    EXPECT_THAT(ratedMask, ElementsAre(true, false, true, true, true, false));
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
}

TEST_F(MaskFilters, TheBoxesAreTickedByMouseAndKeyboard) {
    open({"a", "b", "c"});
    edit([] {
        clickBox(1);
        EXPECT_THAT(ticks(), ElementsAre(true, false, true, true, true));
        EXPECT_EQ(win::GetFocus(), Rated.ListView1[0].hWnd());
        press(win::VK_HOME);
        press(win::VK_SPACE);
        EXPECT_THAT(ticks(), ElementsAre(false, false, true, true, true));
        press(win::VK_RETURN);
    });
    EXPECT_THAT(ratedMask, ElementsAre(false, false, true, true, true, false));
    EXPECT_THAT(titlesInView(), ElementsAre("c"));
}

TEST_F(MaskFilters, TheSpaceBarTicksAtOnce) {
    open({});
    edit([] {
        EXPECT_EQ(win::GetFocus(), Rated.ListView1[0].hWnd());
        press(win::VK_SPACE);
        EXPECT_THAT(ticks(), ElementsAre(false, true, true, true, true));
        press(win::VK_DOWN);
        press(win::VK_SPACE);
        EXPECT_THAT(ticks(), ElementsAre(false, false, true, true, true));
    });
}

TEST_F(MaskFilters, AllRatingsUntickedEmptyTheListUntilAnotherApply) {
    open({"a", "b"});
    edit([] {
        click(Rated.Command2[0]);
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), IsEmpty());
    });
    EXPECT_THAT(titlesInView(), IsEmpty());
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 0");
    edit([] {
        click(Rated.Command2[1]);
        click(Rated.cmdFilter);
    });
    EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
    EXPECT_FALSE(ratedMask[5]);
}

// Filter -----------------------------------------------------------------------------------

TEST_F(MaskFilters, FilterRefreshesBehindTheDialogWhichStaysForAnotherTry) {
    open({"a", "b", "c"});
    edit([] {
        tick(0, false);
        click(Rated.cmdFilter);
        EXPECT_TRUE(Rated.Visible());
        EXPECT_THAT(titlesInView(), ElementsAre("b", "c"));
        EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 2");
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
        EXPECT_EQ(win::GetActiveWindow(), Rated.hWnd());
        EXPECT_EQ(modalOpen, 1);
        tick(2, false);
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), ElementsAre("b"));
    });
    expectHourglassAndHidingOver();
}

TEST_F(MaskFilters, FilterThenCancelKeepsTheMask) {
    open({"a", "b"});
    edit([] {
        tick(0, false);
        click(Rated.cmdFilter);
        tick(1, false);
        click(Rated.cmdCancel);
    });
    EXPECT_THAT(ratedMask, ElementsAre(false, true, true, true, true, false));
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(MaskFilters, CancelAloneTakesNothingOver) {
    open({"a"});
    edit([] {
        click(Rated.Command2[0]);
        Rated.Combo3[0].ListIndex(1);
        Rated.Text2[0].Text("7");
        click(Rated.cmdCancel);
    });
    EXPECT_TRUE(ratedMask[0]);
    EXPECT_EQ(visitedMode, 0);
    EXPECT_EQ(visitedCount, 0);
    edit([] {
        EXPECT_THAT(ticks(), testing::Each(true));
        EXPECT_EQ(Rated.Text2[0].Text(), "0");
    });
}

TEST_F(MaskFilters, FilterTakesEveryMaskOfTheDialogOver) {
    open({"a"});
    edit([] {
        Rated.Combo3[0].ListIndex(1);
        Rated.Text2[0].Text("7");
        Rated.Combo3[1].ListIndex(2);
        Rated.Text2[1].Text("-32768");
        Rated.Combo3[2].ListIndex(2);
        click(Rated.cmdFilter);
    });
    EXPECT_EQ(visitedMode, 1);
    EXPECT_EQ(visitedCount, 7);
    EXPECT_EQ(accessedMode, 2);
    EXPECT_EQ(accessedValue, -32768);
    EXPECT_EQ(accessedUnit, 2);
    edit([] {
        EXPECT_EQ(Rated.Combo3[0].ListIndex(), 1);
        EXPECT_EQ(Rated.Text2[1].Text(), "-32768");
    });
}

TEST_F(MaskFilters, TheVisitsAndTheLastVisitThinTheList) {
    open({"never", "often", "lately"});
    uBlock.URLDatas().Item(2).Visited = 9;
    uBlock.URLDatas().Item(3).Visited = 9;
    uBlock.URLDatas().Item(3).LastAccesed = dateFromCivil(2001, 3, 12);
    edit([] {
        Rated.Combo3[0].ListIndex(1);
        Rated.Text2[0].Text("8");
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), ElementsAre("often", "lately"));
        Rated.Combo3[1].ListIndex(3);
        Rated.Text2[1].Text("2");
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), ElementsAre("lately"));
    });
}

TEST_F(MaskFilters, TheMaskByAgeStaysInForceAndIsNotShown) {
    open({"old", "new"});
    uBlock.URLDatas().Item(2).Created = dateFromCivil(2001, 3, 14, 8);
    addedMode = 3;
    addedValue = 0;
    addedUnit = 0;
    edit([] { click(Rated.cmdFilter); });
    EXPECT_THAT(titlesInView(), ElementsAre("new"));
    EXPECT_EQ(addedMode, 3);
}

TEST_F(MaskFilters, TheTextMaskStaysInForce) {
    open({"one", "two"});
    Form3.txtFilter.Text("w");
    edit([] { click(Rated.cmdFilter); });
    EXPECT_THAT(titlesInView(), ElementsAre("two"));
}

TEST_F(MaskFilters, EnterInANumberFilters) {
    open({"a"});
    edit([] {
        Rated.Combo3[0].ListIndex(1);
        Rated.Text2[0].SetFocus();
        Rated.Text2[0].selectAll();
        driver::type("3");
        press(win::VK_RETURN);
        EXPECT_TRUE(Rated.Visible());
        EXPECT_EQ(win::GetFocus(), Rated.Text2[0].hWnd());
        EXPECT_THAT(titlesInView(), IsEmpty());
    });
    EXPECT_EQ(visitedCount, 3);
}

// Failures ---------------------------------------------------------------------------------

TEST_F(MaskFilters, ATextThatIsNoNumberEndsFilterWithTheRatingsAndTheModeTakenOver) {
    open({"a", "b"});
    for (const char* text : {"", "many", "1 2"}) {
        ratedMask.fill(true);
        visitedMode = 0;
        visitedCount = 11;
        accessedMode = 0;
        edit([text] {
            tick(0, false);
            Rated.Combo3[0].ListIndex(2);
            Rated.Text2[0].Text(text);
            Rated.Combo3[1].ListIndex(1);
            click(Rated.cmdFilter);
            EXPECT_TRUE(Rated.Visible());
            EXPECT_EQ(modalOpen, 1);
        });
        EXPECT_FALSE(ratedMask[0]) << text;
        EXPECT_EQ(visitedMode, 2) << text;
        EXPECT_EQ(visitedCount, 11) << text;
        EXPECT_EQ(accessedMode, 0) << text;
        EXPECT_THAT(titlesInView(), ElementsAre("a", "b")) << text;
    }
}

TEST_F(MaskFilters, ANumberOutside16BitsEndsFilterAtItsField) {
    open({"a", "b"});
    for (const char* text : {"32768", "-32769", "1e300"}) {
        ratedMask.fill(true);
        visitedMode = 0;
        visitedCount = 11;
        accessedMode = 0;
        edit([text] {
            tick(0, false);
            Rated.Combo3[0].ListIndex(3);
            Rated.Text2[0].Text(text);
            Rated.Combo3[1].ListIndex(1);
            click(Rated.cmdFilter);
        });
        EXPECT_FALSE(ratedMask[0]) << text;
        EXPECT_EQ(visitedMode, 3) << text;
        EXPECT_EQ(visitedCount, 11) << text;
        EXPECT_EQ(accessedMode, 0) << text;
        EXPECT_THAT(titlesInView(), ElementsAre("a", "b")) << text;
    }
}

TEST_F(MaskFilters, ASecondNumberOutside16BitsEndsFilterBehindItsMode) {
    open({"a", "b"});
    for (const char* text : {"32768", "-32769", "1e300"}) {
        ratedMask.fill(true);
        visitedCount = 11;
        accessedMode = 0;
        accessedValue = 5;
        accessedUnit = 1;
        edit([text] {
            tick(0, false);
            Rated.Text2[0].Text("4");
            Rated.Combo3[1].ListIndex(2);
            Rated.Text2[1].Text(text);
            Rated.Combo3[2].ListIndex(2);
            click(Rated.cmdFilter);
        });
        EXPECT_FALSE(ratedMask[0]) << text;
        EXPECT_EQ(visitedCount, 4) << text;
        EXPECT_EQ(accessedMode, 2) << text;
        EXPECT_EQ(accessedValue, 5) << text;
        EXPECT_EQ(accessedUnit, 1) << text;
        EXPECT_THAT(titlesInView(), ElementsAre("a", "b")) << text;
    }
}

TEST_F(MaskFilters, ABadSecondNumberKeepsTheFirstAndLeavesTheUnit) {
    open({"a", "b"});
    accessedValue = 5;
    edit([] {
        tick(1, false);
        Rated.Combo3[0].ListIndex(1);
        Rated.Text2[0].Text("4");
        Rated.Combo3[1].ListIndex(3);
        Rated.Text2[1].Text("soon");
        Rated.Combo3[2].ListIndex(2);
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), ElementsAre("a", "b"));
        // Put right, the same dialog filters.
        Rated.Text2[0].Text("-1");
        Rated.Combo3[1].ListIndex(0);
        Rated.Text2[1].Text("6");
        click(Rated.cmdFilter);
        EXPECT_THAT(titlesInView(), ElementsAre("a"));
    });
    EXPECT_EQ(visitedCount, -1);
    EXPECT_EQ(accessedValue, 6);
    EXPECT_EQ(accessedUnit, 2);
}

TEST_F(MaskFilters, AfterABadNumberTheUnitIsLeftAlone) {
    open({"a"});
    edit([] {
        Rated.Combo3[1].ListIndex(3);
        Rated.Text2[1].Text("soon");
        Rated.Combo3[2].ListIndex(2);
        click(Rated.cmdFilter);
    });
    EXPECT_EQ(accessedMode, 3);
    EXPECT_EQ(accessedValue, 0);
    EXPECT_EQ(accessedUnit, 0);
}

// Keyboard ---------------------------------------------------------------------------------

TEST_F(MaskFilters, TabPassesTheHeadings) {
    open({});
    edit([] {
        std::vector<win::HWND> stops;
        for (int step = 0; step < 10; ++step) {
            stops.push_back(win::GetFocus());
            press(win::VK_TAB);
        }
        EXPECT_THAT(stops, ElementsAre(Rated.ListView1[0].hWnd(), Rated.Command2[0].hWnd(),
                                       Rated.Command2[1].hWnd(), Rated.Combo3[0].hWnd(),
                                       Rated.Text2[0].hWnd(), Rated.Combo3[1].hWnd(),
                                       Rated.Text2[1].hWnd(), Rated.Combo3[2].hWnd(),
                                       Rated.cmdFilter.hWnd(), Rated.cmdCancel.hWnd()));
        EXPECT_EQ(win::GetFocus(), Rated.ListView1[0].hWnd());
    });
}

TEST_F(MaskFilters, AClickOnAHeadingDoesNothing) {
    open({"a"});
    edit([] {
        win::HWND focus = win::GetFocus();
        for (const int heading : {0, 2}) driver::click(Rated.Command1[heading].hWnd(), {20, 5});
        driver::pump();
        EXPECT_EQ(win::GetFocus(), focus);
        EXPECT_TRUE(Rated.Visible());
    });
}

// Around it --------------------------------------------------------------------------------

TEST_F(MaskFilters, CancelPressedInTheMiddleOfTheRefreshClosesTheDialog) {
    open({"a", "b"});
    edit([] {
        tick(0, false);
        driver::atPump(1, [] { Rated.cmdCancel.onClick.raise(0); });
        Rated.cmdFilter.onClick.raise(0);
        EXPECT_FALSE(Rated.loaded());
    });
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_EQ(modalOpen, 0);
    expectHourglassAndHidingOver();
}

TEST_F(MaskFilters, WithTheMainWindowFlushedUnderItFilterOnlyTakesTheMasks) {
    open({"a", "b"});
    edit([] {
        Form1.mFlush.onClick.raise(0);
        EXPECT_FALSE(Form3.loaded());
        tick(0, false);
        click(Rated.cmdFilter);
        EXPECT_TRUE(Rated.Visible());
        EXPECT_FALSE(ratedMask[0]);
        EXPECT_FALSE(Form3.loaded());
    });
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(MaskFilters, MasksSetHereHoldOnTheAdvancedTabToo) {
    open({"a", "b"});
    edit([] {
        tick(0, false);
        click(Rated.cmdFilter);
    });
    clickTab(1);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

}  // namespace
}  // namespace magpie
