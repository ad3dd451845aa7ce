// The keys of the menu: Ctrl with A, B, F, N, P.
#include <initializer_list>

#include "mainwindow/status_panel.h"
#include "platform/api/user32.h"
#include "tests/behaviour/menu_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> ran;

// Lets the items note that they ran instead.
class Shortcuts : public MenuFixture {
public:
    static void openNoting() {
        open();
        findText = "a";
        UpdateMenus();
        for (MenuItem& item : Form3.mnuAddEntry)
            item.onClick = [](int index) { ran.push_back("add " + std::to_string(index)); };
        for (MenuItem& item : Form3.mnuFind)
            item.onClick = [](int index) { ran.push_back("find " + std::to_string(index)); };
        Form3.onKeyPress = [](int character) {
            ran.push_back("character " + std::to_string(character));
        };
        for (ListView& list : Form3.ListView1)
            list.onKeyPress = [](int character) {
                ran.push_back("list's character " + std::to_string(character));
            };
    }

    static void ctrl(char letter) {
        driver::key(letter, {.ctrl = true, .shift = false, .alt = false});
    }

    static void pressAll() {
        for (char letter : {'A', 'B', 'F', 'N', 'P'}) ctrl(letter);
    }
};

TEST_F(Shortcuts, OnePressRunsItsItemOnceAndNobodyElseHearsOfIt) {
    openNoting();
    records().SetFocus();
    pressAll();
    EXPECT_THAT(ran, ElementsAre("add 1", "add 0", "find 0", "find 1", "find 2"));
}

std::string selectedTitle(ListView& list) {
    std::string titles;
    for (int row = 1; row <= list.Count(); ++row)
        if (list.Row(row).Selected()) titles += list.Row(row).Text();
    return titles;
}

TEST_F(Shortcuts, OnePressMovesTheSearchByOneRow) {
    open();
    findText = "a";
    records().Row(1).Selected(true);
    records().SetFocus();
    ctrl('N');
    EXPECT_EQ(selectedTitle(records()), "a2");
    ctrl('N');
    EXPECT_EQ(selectedTitle(records()), "a3");
    ctrl('P');
    EXPECT_EQ(selectedTitle(records()), "a2");
}

TEST_F(Shortcuts, TheirCharactersSearchInAListToo) {
    open();
    findText = "a";
    for (int tab : {1, 2}) {
        clickTab(tab);
        records().Row(1).Selected(true);
        records().SetFocus();
        driver::type("\x0E\x0E\x10");
        EXPECT_EQ(selectedTitle(records()), "a2");
    }
}

// Neither as characters nor as keys; a dialog that opened would wait for its user in vain.
TEST_F(Shortcuts, InAListWithoutRowsTheSearchesDoNothing) {
    openWith({"A"});
    RefreshURLPage();
    findText = "a";
    records().SetFocus();
    driver::type("\x06\x0E\x10");
    for (const char letter : {'F', 'N', 'P'}) ctrl(letter);
    EXPECT_EQ(modalOpen, 0);
    EXPECT_EQ(findText, "a");
    EXPECT_EQ(records().Count(), 0);
    EXPECT_EQ(win::GetFocus(), records().hWnd());
}

TEST_F(Shortcuts, OnePressOpensTheFindDialogOnce) {
    open();
    records().SetFocus();
    int opened = 0;
    driver::whenIdle([&opened] {
        opened = modalOpen == 4 ? opened + 1 : 0;
        win::SendMessageA(driver::findWindow("", "Find..."), win::WM_CLOSE, 0, 0);
    });
    ctrl('F');
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(Shortcuts, TheyWorkWhateverHasTheFocus) {
    openNoting();
    for (Control* control :
         std::initializer_list<Control*>{&groups(), &Form3.Command3[1], &Form3.tbStrip}) {
        ran.clear();
        control->SetFocus();
        pressAll();
        EXPECT_THAT(ran, ElementsAre("add 1", "add 0", "find 0", "find 1", "find 2"));
    }
    clickTab(2);
    for (Control* control :
         std::initializer_list<Control*>{&records(), &Form3.Combo1[1], &Form3.Command5[0]}) {
        ran.clear();
        control->SetFocus();
        pressAll();
        EXPECT_THAT(ran, ElementsAre("add 1", "add 0", "find 0", "find 1", "find 2"));
    }
}

void focusTextMask() {
    Form3.advMode = 1;
    driver::click(Form3.Command3[2].hWnd(), driver::middleOf(Form3.Command3[2].hWnd()));
    Form3.txtFilter.Text("mask");
    Form3.txtFilter.SetFocus();
}

TEST_F(Shortcuts, TheyWorkInATextAndLeaveItAsItIs) {
    openNoting();
    focusTextMask();
    pressAll();
    EXPECT_THAT(ran, ElementsAre("add 1", "add 0", "find 0", "find 1", "find 2"));
    EXPECT_EQ(Form3.txtFilter.Text(), "mask");
    EXPECT_EQ(win::SendMessageA(Form3.txtFilter.hWnd(), win::EM_GETSEL, 0, 0), 0);
}

TEST_F(Shortcuts, ATextMarksItselfByTheKeyOfAGreyItem) {
    openNoting();
    focusTextMask();
    Form3.mnuAddz.Enabled = false;
    ctrl('A');
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(win::SendMessageA(Form3.txtFilter.hWnd(), win::EM_GETSEL, 0, 0),
              win::makeLParam(0, 4));
}

TEST_F(Shortcuts, TheKeyOfAGreyItemIsTheCharacterThatItWouldBeWithoutTheMenu) {
    openNoting();
    records().SetFocus();
    Form3.mnuAddz.Enabled = false;
    Form3.mnuFindHd.Enabled = false;
    pressAll();
    EXPECT_THAT(
        ran, ElementsAre("character 1", "list's character 1", "character 2", "list's character 2",
                         "character 6", "list's character 6", "character 14", "list's character 14",
                         "character 16", "list's character 16"));
}

TEST_F(Shortcuts, AfterAFirstSearchFindNextWaitsForTheMenusButInAList) {
    open();
    findText = "a";
    records().Row(1).Selected(true);
    clickTab(2);
    records().Row(1).Selected(true);
    Form3.Command5[0].SetFocus();
    Form3.mnuFind[1].Enabled = false;
    ctrl('N');
    EXPECT_EQ(selectedTitle(records()), "a1");
    records().SetFocus();
    ctrl('N');
    EXPECT_EQ(selectedTitle(records()), "a2");
    UpdateMenus();
    Form3.Command5[0].SetFocus();
    ctrl('N');
    EXPECT_EQ(selectedTitle(records()), "a3");
}

TEST_F(Shortcuts, WithoutThePressACharacterIsTheWindowsOrTheListsAffair) {
    openNoting();
    records().SetFocus();
    driver::type("\x01\x02\x06\x0E\x10");
    EXPECT_THAT(
        ran, ElementsAre("character 1", "list's character 1", "character 2", "list's character 2",
                         "character 6", "list's character 6", "character 14", "list's character 14",
                         "character 16", "list's character 16"));
}

TEST_F(Shortcuts, OtherKeysAreNone) {
    openNoting();
    Form3.Command3[1].SetFocus();
    driver::key('A', {.ctrl = true, .shift = false, .alt = true});
    for (char letter : {'N', 'P'}) driver::key(letter);
    EXPECT_THAT(ran, testing::Each(testing::HasSubstr("character")));
}

}  // namespace
}  // namespace magpie
