// A group made behind two removed ones: its number names no position, until the file is loaded
// again. What an entry is given then, it has; its row cannot be written.
#include "entries/add_entry.h"
#include "store/group_commands.h"
#include "store/groups.h"
#include "tests/behaviour/entry_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;

class GroupGap : public EntryFixture {
public:
    // Groups "A" and, with the number 3 at the position 1, "D", which is in view.
    static void open() {
        openWith({"A", "B", "C"});
        Form3.advMode = 1;
        RefreshURLPage();
        for (int time = 0; time < 2; ++time) {
            groups().Row(2).Selected(true);
            removeCurrentGroup(false);
        }
        NewCatagory("D");
        add("in A", 0);
        rebuildGroupList(true);
        groups().Row(2).Selected(true);
        RefreshURLPage();
        urlsDirty = 0;
        ASSERT_EQ(groups().Row(2).Tag(), "3");
        ASSERT_EQ(IDXList.uBound(), 2);
    }
};

TEST_F(GroupGap, ANewEntryIsStoredAndTheDialogStaysUp) {
    open();
    adding([] {
        writeName("new");
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_EQ(modalOpen, D_NEW);
        cancel();
    });
    EXPECT_EQ(newest().Name(), "new");
    EXPECT_EQ(newest().Owner, 3);
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_THAT(titlesInView(), ElementsAre("new"));
    EXPECT_EQ(rowTexts(1)[5], "");
    EXPECT_EQ(modalOpen, 0);
}

TEST_F(GroupGap, AQuickAddIsStoredAndCounted) {
    open();
    EXPECT_EQ(failureOf([] {
                  QuickAdd("http://server/");
                  return 0;
              }),
              failure::subscript);
    EXPECT_EQ(newest().Owner, 3);
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(rowTexts(1)[3], "");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 1");
}

TEST_F(GroupGap, AnEditIsStoredAndTheDialogStaysUp) {
    open();
    savedAdvMode = 0;
    groups().Row(1).Selected(true);
    RefreshURLPage();
    ASSERT_THAT(titlesInView(), ElementsAre("in A"));
    records().Row(1).Selected(true);
    editing([] {
        writeName("changed");
        chooseGroup("D");
        accept();
        EXPECT_TRUE(Form2.Visible());
        EXPECT_EQ(modalOpen, D_EDIT);
    });
    EXPECT_EQ(newest().Name(), "changed");
    EXPECT_EQ(newest().Owner, 3);
    EXPECT_EQ(modalOpen, 0);
}

}  // namespace
}  // namespace magpie
