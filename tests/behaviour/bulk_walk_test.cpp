// A selected row that matches no record: the walk over the selection stays at it, and the
// program goes on.
#include <functional>

#include "entries/bulk_list.h"
#include "platform/memory/driver_system.h"
#include "platform/services/clock.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tray/form1.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

bool over = false;

class BulkWalk : public BulkFixture {
public:
    // Of these rows the one with this number shows an address that the list cuts.
    static void openWithLongAddress(int row) {
        openWith({"A", "B"});
        for (int i = 0; i < 4; ++i) {
            URLData& record = add(std::to_string(i + 1));
            if (i == row) record.URL(std::string(255, 'u'));
        }
        savedAdvMode = 0;
        refresh();
    }

    static void deselect(int row) { records().Row(row + 1).Selected(false); }

    // Runs `command`, and in its n-th pump `action`; the command was not over before.
    static void during(const std::function<void()>& command, int pump,
                       const std::function<void()>& action) {
        over = false;
        driver::atPump(pump, [action] {
            EXPECT_FALSE(over);
            action();
        });
        command();
        over = true;
    }

    static void expectNothingDone() {
        EXPECT_THAT(keysLeft(), ElementsAre("00001", "00002", "00003", "00004"));
        EXPECT_THAT(ratings(), testing::Each(0));
        EXPECT_THAT(owners(), testing::Each(0));
        EXPECT_THAT(titlesInView(), ElementsAre("1", "2", "3", "4"));
        EXPECT_THAT(column(2), testing::Each("Not Rated"));
        EXPECT_THAT(column(3), testing::Each("A"));
    }
};

TEST_F(BulkWalk, ItIsStillGoingAfterAHundredPumpsAndEndsWhenTheRowIsDeselected) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Remove"); }, 100,
           [] {
               expectNothingDone();
               EXPECT_THAT(selected(), ElementsAre(1));
               deselect(1);
           });
    expectNothingDone();
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkWalk, RateWaitsLikewise) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("High"); }, 100, [] { deselect(1); });
    expectNothingDone();
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkWalk, MoveWaitsWithItsDialogUp) {
    openWithLongAddress(1);
    select({1});
    move([] {
        frmMove.Combo1.ListIndex(1);
        during([] { clickOn(frmMove.acceptCmd); }, 100, [] { deselect(1); });
    });
    expectNothingDone();
    EXPECT_EQ(urlsDirty, 2);
    EXPECT_FALSE(frmMove.loaded());
}

TEST_F(BulkWalk, TheDialogOfAMoveCanBeClosedMeanwhileToReachTheRow) {
    openWithLongAddress(1);
    select({1});
    move([] {
        driver::atPump(20, [] {
            frmMove.unload();
            EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
        });
        driver::atPump(30, [] { clickRow(records(), 1, driver::Button::left); });
        clickOn(frmMove.acceptCmd);
    });
    expectNothingDone();
    EXPECT_FALSE(frmMove.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkWalk, TheRowsBeforeItAreDoneAndThoseBehindItFollow) {
    openWithLongAddress(1);
    select({0, 1, 3});
    during([] { choose("Low"); }, 30,
           [] {
               EXPECT_THAT(ratings(), ElementsAre(1, 0, 0, 0));
               EXPECT_THAT(selected(), ElementsAre(1, 3));
               deselect(1);
           });
    EXPECT_THAT(ratings(), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(selected(), IsEmpty());
}

// The user takes the selection to another row by a click on it, which is no part of what was
// asked for.
TEST_F(BulkWalk, ARowThatIsSelectedInItsPlaceIsLeftAlone) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Remove"); }, 20, [] { clickRow(records(), 4, driver::Button::left); });
    expectNothingDone();
    EXPECT_THAT(selected(), ElementsAre(3));
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkWalk, ARefreshUnderItEndsIt) {
    openWithLongAddress(1);
    select({1, 2});
    during([] { RateSelected(1, false); }, 20, [] { RefreshURLPage(); });
    EXPECT_THAT(ratings(), ElementsAre(0, 0, 0, 0));
}

TEST_F(BulkWalk, ARecordThatComesToMatchIsTaken) {
    openWithLongAddress(1);
    select({1, 2});
    during([] { choose("Low"); }, 20, [] { uBlock.URLDatas().Item(2).URL(std::string(254, 'u')); });
    EXPECT_THAT(ratings(), ElementsAre(0, 1, 1, 0));
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(BulkWalk, ItSleepsWhileNothingHappens) {
    openWithLongAddress(1);
    select({1});
    const Date begin = now();
    during([] { choose("Low"); }, 20, [] { deselect(1); });
    constexpr double secondsOfDay = 86400;
    // The line is looked at every four seconds, and that alone wakes it up.
    EXPECT_GE((now().days - begin.days) * secondsOfDay, 20);
}

// A click is how the selection is taken off a row, and takes it off the others too.
TEST_F(BulkWalk, ARowThatIsSelectedInPlaceOfSeveralIsNotRemoved) {
    openWithLongAddress(1);
    select({1, 2});
    during([] { chooseAndAnswer("Remove", win::IDYES); }, 20,
           [] { clickRow(records(), 4, driver::Button::left); });
    expectNothingDone();
    EXPECT_THAT(selected(), ElementsAre(3));
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkWalk, ARowThatIsSelectedInPlaceOfSeveralIsNotRated) {
    openWithLongAddress(1);
    select({1, 2});
    during([] { choose("Low"); }, 20, [] { clickRow(records(), 4, driver::Button::left); });
    expectNothingDone();
    EXPECT_THAT(selected(), ElementsAre(3));
}

TEST_F(BulkWalk, AFurtherSelectedRowEndsItAsWell) {
    openWithLongAddress(1);
    select({1, 2});
    during([] { choose("Low"); }, 20,
           [] {
               select({3});
               deselect(1);
           });
    expectNothingDone();
}

TEST_F(BulkWalk, TheListIsDrawnWhileItWaits) {
    openWithLongAddress(1);
    select({0, 1, 2});
    during([] { choose("Low"); }, 20,
           [] {
               EXPECT_NE(win::GetWindowLongPtrA(records().hWnd(), win::GWL_STYLE) & win::WS_VISIBLE,
                         0);
               clickRow(records(), 4, driver::Button::left);
           });
    EXPECT_TRUE(records().Visible());
    EXPECT_THAT(ratings(), ElementsAre(1, 0, 0, 0));
}

TEST_F(BulkWalk, ACommandUnderItDoesNothing) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Low"); }, 20,
           [] {
               for (const char* command : {"High", "Remove", "Bookmarks Folder", "Move"})
                   choose(command);
               EXPECT_EQ(urlsDirty, 0);
               EXPECT_EQ(modalOpen, 0);
               EXPECT_THAT(selected(), ElementsAre(1));
               deselect(1);
           });
    expectNothingDone();
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkWalk, ASecondAcceptUnderAMoveDoesNothing) {
    openWithLongAddress(1);
    select({1});
    move([] {
        driver::atPump(20, [] {
            driver::key(win::VK_RETURN);
            EXPECT_TRUE(frmMove.loaded());
            EXPECT_EQ(urlsDirty, 0);
            deselect(1);
        });
        clickOn(frmMove.acceptCmd);
    });
    expectNothingDone();
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(BulkWalk, WhatComesAfterItActsAgain) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Low"); }, 20, [] { deselect(1); });
    select({3});
    choose("High");
    EXPECT_THAT(ratings(), ElementsAre(0, 0, 0, 3));
}

TEST_F(BulkWalk, AFlushUnderItEndsItAndTheMainWindowStaysAway) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Remove"); }, 20,
           [] {
               EXPECT_EQ(modalOpen, 1);
               keepResident = false;
               EXPECT_TRUE(Form3.unload());
           });
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
    clickPad();
    EXPECT_TRUE(Form3.Visible());
}

TEST_F(BulkWalk, AFlushUnderAMoveLeavesItsDialogToBeClosed) {
    openWithLongAddress(1);
    select({1});
    move([] {
        driver::atPump(20, [] {
            keepResident = false;
            Form3.unload();
        });
        clickOn(frmMove.acceptCmd);
        EXPECT_FALSE(Form3.loaded());
        EXPECT_TRUE(frmMove.Visible());
        clickOn(frmMove.acceptCmd);
        EXPECT_FALSE(frmMove.loaded());
    });
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(BulkWalk, TheEndOfTheProgramUnderItEndsIt) {
    openWithLongAddress(1);
    select({1});
    during([] { choose("Low"); }, 20, [] { Form1.unload(); });
    EXPECT_FALSE(Form1.loaded());
    EXPECT_FALSE(Form3.loaded());
    win::MSG message{};
    EXPECT_TRUE(win::PeekMessageA(&message, nullptr, 0, 0, win::PM_REMOVE));
    EXPECT_EQ(message.message, win::WM_QUIT);
}

TEST_F(BulkWalk, ARenamedGroupOfOtherRowsIsNoMatchEither) {
    openWith({"A", "B"});
    add("1", 0);
    add("2", 1);
    listAll();
    refresh();
    driver::whenIdle([] {
        driver::type("A2");
        driver::key(win::VK_RETURN);
        win::PostMessageA(win::GetActiveWindow(), win::WM_NULL, 0, 0);
    });
    groups().Row(1).Selected(true);
    groups().SetFocus();
    chooseFrom([] { driver::key(win::VK_APPS); }, "Rename");
    ASSERT_THAT(column(3), ElementsAre("A2", "A2"));
    select({0, 1});
    during([] { choose("Low"); }, 20, [] { deselect(1); });
    EXPECT_THAT(ratings(), ElementsAre(1, 0));
}

}  // namespace
}  // namespace magpie
