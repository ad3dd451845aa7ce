// What clicks and keys in the three lists do.
#include "entries/list_events.h"

#include <initializer_list>

#include "platform/api/user32.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::ElementsAre;
using testing::IsEmpty;

class ListEvents : public MenuFixture {
public:
    // Every record in view and the group "A" selected, on either tab.
    static void openAll() {
        open();
        chooseFrom(clickMenuButton, "List All");
        EXPECT_EQ(titlesInView().size(), 4u);
    }

    static std::string groupSelected() {
        if (currentTab == 2) return Form3.Combo1[1].List(Form3.Combo1[1].ListIndex());
        return groups().SelectedItem().Text();
    }
};

// Click ----------------------------------------------------------------------------------

TEST_F(ListEvents, AClickOnARecordMovesTheGroupListToItsGroup) {
    openAll();
    EXPECT_EQ(groupSelected(), "A");
    clickRow(records(), 4, Button::left);
    EXPECT_EQ(groupSelected(), "B");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "b"));
    EXPECT_TRUE(Form3.mnuListAll.Checked);
    clickRow(records(), 1, Button::left);
    EXPECT_EQ(groupSelected(), "A");
}

TEST_F(ListEvents, ARightClickMovesItBeforeTheMenuOpens) {
    openAll();
    std::string under;
    driver::onPopup([&under](const driver::Popup&) {
        under = groupSelected();
        return win::UINT{0};
    });
    clickRow(records(), 4, Button::right);
    EXPECT_EQ(under, "B");
}

TEST_F(ListEvents, AClickInAnEmptyListMovesNothing) {
    open();
    records().Clear();
    groups().Row(2).Selected(true);
    clickRow(records(), 1, Button::left);
    EXPECT_EQ(groupSelected(), "B");
}

TEST_F(ListEvents, OnTheStandardTabAClickLeavesTheDropDownAlone) {
    openAll();
    clickTab(2);
    EXPECT_EQ(groupSelected(), "A");
    chooseFrom(clickMenuButton, "List All");
    ASSERT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "b"));
    clickRow(records(), 4, Button::left);
    EXPECT_EQ(groupSelected(), "A");
    EXPECT_TRUE(Form3.mnuListAll.Checked);
    EXPECT_EQ(records().SelectedItem().Text(), "b");
}

TEST_F(ListEvents, AClickOnARecordThatHasGoneIsDropped) {
    openAll();
    uBlock.URLDatas().Delete(4);
    clickRow(records(), 4, Button::left);
    EXPECT_EQ(groupSelected(), "A");
    EXPECT_EQ(shownBy([] { clickRow(records(), 4, Button::right); }).owner, Form3.hWnd());
}

TEST_F(ListEvents, AClickOnAGroupIsNoClickOnARecord) {
    openAll();
    clickRow(records(), 4, Button::left);
    Form3.advMode = 0;
    clickRow(groups(), 1, Button::left);
    EXPECT_EQ(groupSelected(), "A");
}

// The Group List -------------------------------------------------------------------------

TEST_F(ListEvents, AClickOnAGroupListsItAlone) {
    openAll();
    Form3.tmpIDX = 9;
    clickRow(groups(), 2, Button::left);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_FALSE(Form3.mnuListAll.Checked);
    EXPECT_FALSE(Form3.mnuListAll2.Checked);
    EXPECT_EQ(Form3.tmpIDX, 1);
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
}

TEST_F(ListEvents, AClickOnTheSameGroupListsItAnew) {
    openAll();
    clickRow(groups(), 1, Button::left);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_FALSE(Form3.mnuListAll.Checked);
}

TEST_F(ListEvents, AClickBesideTheGroupsListsTheSelectedOne) {
    openAll();
    groups().Row(2).Selected(true);
    clickRow(groups(), 5, Button::left);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_FALSE(Form3.mnuListAll.Checked);
}

TEST_F(ListEvents, AClickInAnEmptyGroupListOnlyUpdatesTheMenus) {
    open();
    groups().Clear();
    Form3.tmpIDX = 9;
    Form3.mnuEdit.Enabled = false;
    clickRow(groups(), 1, Button::left);
    EXPECT_EQ(Form3.tmpIDX, 9);
    EXPECT_TRUE(Form3.mnuEdit.Enabled);
}

TEST_F(ListEvents, OnTheOtherFacesAClickOnAGroupListsNothing) {
    openAll();
    for (const std::uint8_t face : std::initializer_list<std::uint8_t>{0, 2}) {
        Form3.advMode = face;
        Form3.tmpIDX = 9;
        clickRow(groups(), 2, Button::left);
        EXPECT_EQ(Form3.tmpIDX, 9);
        EXPECT_TRUE(Form3.mnuListAll.Checked);
        EXPECT_EQ(titlesInView().size(), 4u);
    }
}

TEST_F(ListEvents, ALeftClickUpdatesTheMenusInEveryList) {
    open();
    const auto updates = [](ListView& list) {
        Form3.mnuEdit.Enabled = false;
        clickRow(list, 1, Button::left);
        const bool onRow = Form3.mnuEdit.Enabled;
        Form3.mnuEdit.Enabled = false;
        clickRow(list, 9, Button::left);
        return onRow && Form3.mnuEdit.Enabled;
    };
    EXPECT_TRUE(updates(records()));
    Form3.advMode = 0;
    EXPECT_TRUE(updates(groups()));
    clickTab(2);
    EXPECT_TRUE(updates(records()));
}

TEST_F(ListEvents, AMiddleClickDoesNothing) {
    open();
    Form3.mnuEdit.Enabled = false;
    groups().Row(2).Selected(true);
    for (ListView* list : {&records(), &groups()}) clickRow(*list, 1, Button::middle);
    EXPECT_FALSE(Form3.mnuEdit.Enabled);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
}

TEST_F(ListEvents, ARightClickOnAGroupListsNothing) {
    openAll();
    shownBy([] { clickRow(groups(), 2, Button::right); });
    EXPECT_EQ(titlesInView().size(), 4u);
    EXPECT_TRUE(Form3.mnuListAll.Checked);
    EXPECT_EQ(groupSelected(), "B");
}

TEST_F(ListEvents, AClickOnAGroupKeepsTheFaceAndAClickOnARecordDoesNot) {
    open();
    savedAdvMode = 2;
    clickRow(records(), 1, Button::left);
    EXPECT_EQ(savedAdvMode, 2);
    clickRow(groups(), 9, Button::left);
    EXPECT_EQ(savedAdvMode, 2);
    clickRow(groups(), 1, Button::left);
    EXPECT_EQ(savedAdvMode, 1);
    Form3.advMode = 0;
    shownBy([] { clickRow(groups(), 2, Button::right); });
    EXPECT_EQ(savedAdvMode, 0);
}

TEST_F(ListEvents, ATickInTheIndexMaskListsNothing) {
    open();
    driver::click(Form3.Command3[0].hWnd(), driver::middleOf(Form3.Command3[0].hWnd()));
    ASSERT_EQ(Form3.advMode, 0);
    const bool before = groups().Row(2).Checked();
    driver::click(groups().hWnd(), {7, 38});
    EXPECT_NE(groups().Row(2).Checked(), before);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
}

// Keys -----------------------------------------------------------------------------------

TEST_F(ListEvents, AnArrowKeyMovesTheGroupListBeforeTheSelectionMoves) {
    openAll();
    records().Row(3).Selected(true);
    groups().Row(2).Selected(true);
    records().SetFocus();
    driver::key(win::VK_DOWN);
    EXPECT_EQ(records().SelectedItem().Text(), "b");
    EXPECT_EQ(groupSelected(), "A");
    driver::key(win::VK_UP);
    EXPECT_EQ(records().SelectedItem().Text(), "a3");
    EXPECT_EQ(groupSelected(), "B");
    driver::key(win::VK_HOME);
    EXPECT_EQ(groupSelected(), "B");
}

// The drop-down then lists its group, which ends "List All".
TEST_F(ListEvents, OnTheStandardTabAnArrowKeyMovesTheDropDown) {
    openAll();
    clickTab(2);
    chooseFrom(clickMenuButton, "List All");
    records().Row(4).Selected(true);
    records().SetFocus();
    driver::key(win::VK_UP);
    EXPECT_EQ(groupSelected(), "B");
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
    EXPECT_FALSE(Form3.mnuListAll.Checked);
}

TEST_F(ListEvents, AnArrowKeyInAnEmptyRecordListDoesNothing) {
    open();
    records().Clear();
    records().SetFocus();
    for (int key : {win::VK_UP, win::VK_DOWN}) driver::key(key);
    EXPECT_EQ(groupSelected(), "A");
}

TEST_F(ListEvents, AnArrowKeyInTheGroupListListsTheGroupWhenItIsLetGo) {
    open();
    groups().SetFocus();
    driver::hold(win::VK_DOWN, true);
    EXPECT_EQ(groupSelected(), "B");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    driver::hold(win::VK_DOWN, false);
    EXPECT_THAT(titlesInView(), ElementsAre("b"));
}

TEST_F(ListEvents, OtherKeysInTheGroupListListNothing) {
    open();
    uBlock.URLDatas().Clear();
    groups().SetFocus();
    for (int key : {win::VK_RETURN, win::VK_HOME, win::VK_SPACE, win::VK_LEFT}) driver::key(key);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    driver::key(win::VK_UP);
    EXPECT_THAT(titlesInView(), IsEmpty());
}

}  // namespace
}  // namespace magpie
