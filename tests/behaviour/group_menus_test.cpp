// The group commands as they are chosen from the two menus that hold them.
#include "tests/behaviour/group_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class GroupMenus : public GroupFixture {
public:
    static void chooseFromMainMenu(const char* line) {
        driver::choose(line);
        Button& button = currentTab == 1 ? Form3.Command3[1] : Form3.Command1[1];
        driver::click(button.hWnd(), driver::middleOf(button.hWnd()));
        driver::pump();
    }

    // From the menu of a row of the Group List, counted from 1.
    static void chooseFromGroupList(int row, const char* line) {
        win::RECT place{};
        place.left = win::LVIR_BOUNDS;
        win::HWND list = Form3.ListView1[3].hWnd();
        win::SendMessageA(list, win::LVM_GETITEMRECT, static_cast<win::WPARAM>(row - 1),
                          reinterpret_cast<win::LPARAM>(&place));
        driver::choose(line);
        driver::click(list, {place.left + 30, (place.top + place.bottom) / 2},
                      driver::Button::right);
        driver::pump();
    }
};

TEST_F(GroupMenus, TheMainMenuMakesAGroupOnEitherScreen) {
    openThree(1);
    answer("D");
    chooseFromMainMenu("New Group");
    EXPECT_EQ(asked.title, "New Group..");
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C", "D"));
    clickTab(2);
    answer("E");
    chooseFromMainMenu("New Group");
    EXPECT_THAT(comboTexts(), ElementsAre("A", "B", "C", "D", "E"));
}

TEST_F(GroupMenus, TheMainMenuRenamesTheGroupOfTheStandardScreen) {
    openThree(2);
    pick(1);
    answer("Beta");
    chooseFromMainMenu("Rename Group");
    EXPECT_EQ(asked.text, "B");
    EXPECT_THAT(comboTexts(), ElementsAre("A", "Beta", "C"));
    EXPECT_EQ(urlsDirty, 1) << "it is the command of the drop-down list";
}

TEST_F(GroupMenus, TheMainMenuRemovesTheGroupInViewOfEitherScreen) {
    openThree(2);
    pick(1);
    driver::answerMessageBox(win::IDYES);
    chooseFromMainMenu("Remove Group");
    EXPECT_THAT(groupNames(), ElementsAre("A", "C"));
    clickTab(1);
    pick(1);
    driver::answerMessageBox(win::IDYES);
    chooseFromMainMenu("Remove Group");
    EXPECT_THAT(groupNames(), ElementsAre("A"));
}

TEST_F(GroupMenus, TheGroupListsMenuMakesRenamesAndRemovesGroups) {
    openThree(1);
    answer("D");
    chooseFromGroupList(1, "New");
    EXPECT_EQ(asked.title, "New Group..");
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C", "D"));
    EXPECT_EQ(urlsDirty, 1);

    answer("Beta");
    chooseFromGroupList(2, "Rename");
    EXPECT_EQ(asked.title, "Rename Group..");
    EXPECT_EQ(asked.text, "B");
    EXPECT_THAT(groupNames(), ElementsAre("A", "Beta", "C", "D"));
    EXPECT_TRUE(Form3.ListView1[3].Sorted());
    EXPECT_EQ(urlsDirty, 1) << "it is the command of the Group List";

    pick(0);
    driver::answerMessageBox(win::IDYES);
    chooseFromGroupList(1, "Remove");
    EXPECT_THAT(groupNames(), ElementsAre("Beta", "C", "D"));
}

// The drop-down list is empty there, so there is neither a name to start from nor a row.
TEST_F(GroupMenus, RenamingByTheMainMenuOnTheAdvancedScreenAsksAndChangesNothing) {
    openThree(1);
    answer("Zed");
    chooseFromMainMenu("Rename Group");
    EXPECT_EQ(asked.title, "Rename Group..");
    EXPECT_EQ(asked.text, "");
    EXPECT_THAT(groupNames(), ElementsAre("A", "B", "C"));
    EXPECT_THAT(groupRows(), ElementsAre("A 0", "B 1", "C 2"));
    EXPECT_EQ(rowTexts(1)[3], "A");
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

// From the tray, while the question is up.
TEST_F(GroupMenus, AFlushUnderTheQuestionForANameCountsAsCancel) {
    putRecord("ID", "2 3000 4500 0 1 0 False False");
    openThree(1);
    driver::whenIdle([] {
        driver::choose("Flush");
        driver::postTrayMessage(win::WM_RBUTTONUP);
        driver::pump();
        EXPECT_FALSE(Form3.loaded());
        win::SetActiveWindow(box());
        driver::type("D");
        driver::key(win::VK_RETURN);
        win::PostMessageA(box(), win::WM_NULL, 0, 0);
    });
    chooseFromMainMenu("New Group");
    EXPECT_FALSE(Form3.loaded());
    EXPECT_EQ(IDXList.uBound(), 0);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(GroupMenus, TheEndOfTheProgramUnderTheQuestionForANameIsTheEnd) {
    putRecord("ID", "2 3000 4500 0 1 0 False False");
    openThree(1);
    driver::whenIdle([] {
        driver::choose("Unload");
        driver::postTrayMessage(win::WM_RBUTTONUP);
        driver::pump();
        EXPECT_FALSE(Form1.loaded());
        win::SetActiveWindow(box());
        driver::type("D");
        driver::key(win::VK_RETURN);
        win::PostMessageA(box(), win::WM_NULL, 0, 0);
    });
    chooseFromMainMenu("New Group");
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_EQ(IDXList.uBound(), 0);
}

}  // namespace
}  // namespace magpie
