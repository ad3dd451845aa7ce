// The dialog "Move to...".
#include "entries/move_dialog.h"

#include "tests/behaviour/bulk_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using MoveDialog = BulkFixture;
using testing::ElementsAre;

std::vector<std::string> groupsOffered() {
    std::vector<std::string> names;
    for (int row = 0; row < frmMove.Combo1.ListCount(); ++row)
        names.push_back(frmMove.Combo1.List(row));
    return names;
}

TEST_F(MoveDialog, ItOffersTheGroupsInOrderAndTheFirstOfThemNotTheOneInView) {
    openWith({"Work", "News", "Archive"});
    add("1");
    refresh();
    move([] {
        EXPECT_NE(driver::findWindow("frmMove", "Move to..."), nullptr);
        EXPECT_EQ(frmMove.acceptCmd.Caption(), "Accept");
        EXPECT_THAT(groupsOffered(), ElementsAre("Archive", "News", "Work"));
        EXPECT_EQ(frmMove.Combo1.ListIndex(), 0);
        EXPECT_EQ(frmMove.Combo1.ItemData(0), 2);
        EXPECT_EQ(win::GetFocus(), frmMove.Combo1.hWnd());
    });
}

TEST_F(MoveDialog, ItStandsBelowTheUpperLeftCornerOfTheMainWindowUnderItsIcon) {
    open({"1"});
    Form3.Left(2400);
    Form3.Top(1500);
    move([] {
        EXPECT_EQ(frmMove.Left(), 2400);
        EXPECT_EQ(frmMove.Top(), 2000);
        EXPECT_EQ(driver::iconOf(frmMove.hWnd(), win::ICON_SMALL),
                  driver::iconOf(Form3.hWnd(), win::ICON_SMALL));
    });
}

TEST_F(MoveDialog, ItHoldsTheInterfaceAndTheMainWindowOffItsLevel) {
    open({"1"});
    mainOnTop = true;
    move([] {
        EXPECT_EQ(modalOpen, 1);
        EXPECT_FALSE(isTopMost(Form3));
        EXPECT_FALSE(win::IsWindowEnabled(Form3.hWnd()));
    });
    EXPECT_EQ(modalOpen, 0);
    EXPECT_TRUE(isTopMost(Form3));
    EXPECT_TRUE(win::IsWindowEnabled(Form3.hWnd()));
}

TEST_F(MoveDialog, ClosedByItsFrameItMovesNothing) {
    open({"1"});
    select({0});
    move([] {
        frmMove.Combo1.ListIndex(1);
        win::PostMessageA(frmMove.hWnd(), win::WM_CLOSE, 0, 0);
        driver::pump();
        EXPECT_FALSE(frmMove.loaded());
    });
    EXPECT_THAT(owners(), ElementsAre(0));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(MoveDialog, EnterAccepts) {
    open({"1"});
    savedAdvMode = 0;
    select({0});
    move([] {
        driver::key(win::VK_DOWN);
        driver::key(win::VK_RETURN);
        EXPECT_FALSE(frmMove.loaded());
    });
    EXPECT_THAT(owners(), ElementsAre(1));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(MoveDialog, EveryOpeningBeginsAnew) {
    open({"1"});
    move([] { frmMove.Combo1.ListIndex(1); });
    add("2", 1);
    NewCatagory("0");
    move([] {
        EXPECT_THAT(groupsOffered(), ElementsAre("0", "A", "B"));
        EXPECT_EQ(frmMove.Combo1.ListIndex(), 0);
    });
}

TEST_F(MoveDialog, TheRowThatGetsTheFocusIsBroughtInStepWithItsRecord) {
    open({"1", "2"});
    savedAdvMode = 1;
    select({0});
    uBlock.URLDatas().Item(2).Visited = 5;
    moveTo("B");
    EXPECT_THAT(titlesInView(), ElementsAre("2"));
    EXPECT_EQ(rowText(0, 6), "5");
}

TEST_F(MoveDialog, ALastRowThatLeavesGreysTheMenu) {
    open({"1"});
    savedAdvMode = 1;
    select({0});
    moveTo("B");
    EXPECT_THAT(titlesInView(), testing::IsEmpty());
    EXPECT_FALSE(Form3.mnuMove.Enabled);
}

// A row whose record has gone can't be brought in step.
TEST_F(MoveDialog, AFailureAfterTheMoveLeavesTheDialogUp) {
    open({"same", "same"});
    select({1});
    choose("Remove");
    move([] {
        clickOn(frmMove.acceptCmd);
        EXPECT_TRUE(frmMove.loaded());
    });
    EXPECT_EQ(urlsDirty, 3);
    EXPECT_FALSE(frmMove.loaded());
}

TEST_F(MoveDialog, ItLeavesNothingBehind) {
    open({"1"});
    move([] {});
    const driver::Counts before = driver::live();
    for (int time = 0; time < 3; ++time) move([] {});
    EXPECT_EQ(driver::live(), before);
}

}  // namespace
}  // namespace magpie
