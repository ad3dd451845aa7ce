// "Send" in the menu of the record lists.
#include "entries/bulk_commands.h"
#include "entries/bulk_list.h"
#include "platform/memory/driver_programs.h"
#include "platform/memory/driver_system.h"
#include "tests/behaviour/bulk_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using BulkSend = BulkFixture;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

std::string shortcutTo(const std::string& url) {
    std::string text = "[InternetShortcut]\r\nURL=";
    return text.append(url).append("\r\n");
}

// To a browser ---------------------------------------------------------------------------

TEST_F(BulkSend, OfSeveralSelectedRowsTheItemsAloneStaysAndNoVisitIsCounted) {
    open({"1", "2", "3"});
    for (const char* line : {"Last Active", "New Window"}) {
        select({0, 2, 1});
        urlsDirty = 0;
        choose(line);
        EXPECT_THAT(selected(), ElementsAre(1)) << line;
        EXPECT_EQ(urlsDirty, 1) << line;
    }
    const URLData& sent = uBlock.URLDatas().Item(2);
    EXPECT_EQ(sent.Visited, 0);
    EXPECT_EQ(sent.LastAccesed.days, 0);
    EXPECT_EQ(rowText(1, 4), "Never");
    EXPECT_EQ(rowText(1, 6), "0");
}

TEST_F(BulkSend, WithPadAndAnotherBrowserTheMainWindowStepsAside) {
    open({"1"});
    driver::addDdePeer({.service = "Netscape"});
    browserType = 1;
    activeIcon = true;
    select({0});
    choose("New Window");
    EXPECT_FALSE(Form3.Visible());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkSend, AnyOtherLineSendsNothing) {
    open({"1", "2"});
    select({0, 1});
    mnuSend_Click(2);
    EXPECT_THAT(selected(), ElementsAre(0, 1));
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkSend, AnEmptyListHasNothingToSend) {
    open({});
    EXPECT_EQ(failureOf([] {
                  mnuSend_Click(0);
                  return 0;
              }),
              failure::objectNotSet);
    EXPECT_EQ(urlsDirty, 0);
}

// As shortcut files ----------------------------------------------------------------------

TEST_F(BulkSend, EachRowBecomesAFileInTheFolderOfItsGroup) {
    open({"1", "2", "3"});
    uBlock.URLDatas().Item(3).URL("http://3/");
    refresh();
    shortcutMode = 1;
    select({0, 2});
    choose("Bookmarks Folder");
    EXPECT_THAT(driver::filesIn("C:\\Favorites\\A"),
                ElementsAre("C:\\Favorites\\A\\1.url", "C:\\Favorites\\A\\3.url"));
    EXPECT_THAT(driver::file("C:\\Favorites\\A\\3.url"), Optional(shortcutTo("http://3/")));
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(focused(), 2);
}

TEST_F(BulkSend, WithShortcutsOffNoFileAppearsAndTheStoreCountsAsChanged) {
    open({"1"});
    select({0});
    choose("Bookmarks Folder");
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), IsEmpty());
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(BulkSend, ARowNeedsNoRecord) {
    open({"1", "2"});
    uBlock.URLDatas().Clear();
    shortcutMode = 2;
    select({0, 1});
    choose("Bookmarks Folder");
    EXPECT_EQ(driver::filesIn("C:\\Favorites").size(), 2u);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(BulkSend, AnAddressThatTheListCutsIsWrittenAsFarAsItIsShown) {
    open({});
    add("1").URL(std::string(300, 'u'));
    refresh();
    shortcutMode = 2;
    select({0});
    choose("Bookmarks Folder");
    EXPECT_THAT(driver::file("C:\\Favorites\\1.url"), Optional(shortcutTo(std::string(254, 'u'))));
}

TEST_F(BulkSend, ATitleThatIsNoFileNameGetsNoneAndTheOthersGetTheirs) {
    open({"1", "a/b", "3"});
    shortcutMode = 2;
    select({0, 1, 2});
    choose("Bookmarks Folder");
    EXPECT_EQ(driver::filesIn("C:\\Favorites").size(), 2u);
    EXPECT_THAT(selected(), IsEmpty());
}

// It is met for as many passes as rows are selected: clearing the mark does not take it off
// the way.
TEST_F(BulkSend, ACutRowCountsAsSelected) {
    open({"1", "2", "3"});
    shortcutMode = 2;
    cut(0);
    select({1, 2});
    choose("Bookmarks Folder");
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), ElementsAre("C:\\Favorites\\1.url"));
    EXPECT_THAT(selected(), ElementsAre(1, 2));
}

TEST_F(BulkSend, ThePanelIsLeftAlone) {
    open({"1"});
    Form3.StatusBar1.Pane(1, "as it was");
    select({0});
    choose("Bookmarks Folder");
    choose("Last Active");
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "as it was");
}

}  // namespace
}  // namespace magpie
