// What an import hands over: groups, and bookmarks for the group made last.
#include "entries/imported_entries.h"

#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

using ImportedEntries = EntryFixture;

TEST_F(ImportedEntries, ABookmarkGoesIntoTheGroupMadeLast) {
    open();
    driver::setLocalTime(2004, 5, 6, 7, 8, 9);
    mb_NewGroup("Imported");
    mb_BungURL("First", "http://first/");
    mb_NewGroup("More");
    mb_BungURL(" Second ", "");
    ASSERT_EQ(IDXList.uBound(), 4);
    EXPECT_EQ(IDXList[2].Name, "Imported");
    EXPECT_TRUE(IDXList[2].Checked);
    EXPECT_EQ(IDXList[3].Name, "More");
    EXPECT_EQ(record(5).Owner, 2);
    EXPECT_EQ(record(5).URL(), "http://first/");
    EXPECT_EQ(record(6).Owner, 3);
    EXPECT_EQ(record(6).Name(), " Second ");
    EXPECT_EQ(record(6).URL(), "");
    EXPECT_EQ(dateText(record(6).Created), "2004-05-06 07:08:09");
    EXPECT_EQ(record(6).LastAccesed.days, 0);
    EXPECT_EQ(record(6).Visited, 0);
    EXPECT_EQ(record(6).Catagory, 0);
    EXPECT_EQ(record(6).Rated, 0);
}

TEST_F(ImportedEntries, NothingIsShownOrCountedAsAChangeYet) {
    open();
    mb_NewGroup("Imported");
    mb_BungURL("First", "http://first/");
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 4");
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(ImportedEntries, IntoAnEmptyIndexTheyGoIntoNoGroupAndNoWalkShowsThem) {
    openWith({});
    mb_BungURL("Nobody's", "http://nobody/");
    EXPECT_EQ(newest().Owner, -1);
    NewCatagory("A");
    rebuildGroupList(true);
    EXPECT_THAT(refreshed(), IsEmpty());
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
}

}  // namespace
}  // namespace magpie
