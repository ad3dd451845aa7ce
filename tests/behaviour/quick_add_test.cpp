// Quick Add: a dropped text as an entry of the group in view.
#include "entries/add_entry.h"
#include "platform/controls/control_failure.h"
#include "tests/behaviour/entry_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

class QuickAdding : public EntryFixture {
public:
    static int failureOfAdding() {
        return failureOf([] { return QuickAdd("http://dropped/"), 0; });
    }
};

TEST_F(QuickAdding, WithoutAGroupNothingIsAddedAndNothingSaid) {
    openWith({});
    QuickAdd("http://dropped/");
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(QuickAdding, WithOneGroupTheRowAndTheRecordAppearAtOnce) {
    openWith({"A"});
    driver::setLocalTime(2004, 5, 6, 7, 8, 9);
    QuickAdd("http://dropped/");
    ASSERT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(newest().Name(), "<Quick Add>");
    EXPECT_EQ(newest().URL(), "http://dropped/");
    EXPECT_EQ(newest().Owner, 0);
    EXPECT_EQ(newest().Rated, 0);
    EXPECT_EQ(newest().Catagory, 0);
    EXPECT_EQ(newest().Visited, 0);
    EXPECT_EQ(newest().LastAccesed.days, 0);
    EXPECT_EQ(dateText(newest().Created), "2004-05-06 07:08:09");
    EXPECT_THAT(rowTexts(1), ElementsAre("<Quick Add>", "http://dropped/", "Not Rated", "A",
                                         "Never", "2004-05-06 07:08:09", "0"));
    EXPECT_THAT(tags(), ElementsAre("00001"));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 1");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 1");
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(QuickAdding, ItGoesToTheGroupInViewOnEitherTab) {
    open();
    groups().Row(2).Selected(true);
    RefreshURLPage();
    QuickAdd("one");
    EXPECT_EQ(newest().Owner, 1);
    EXPECT_THAT(titlesInView(), ElementsAre("b", "<Quick Add>"));
    clickTab(2);
    Form3.Combo1[1].ListIndex(0);
    QuickAdd("two");
    EXPECT_EQ(newest().Owner, 0);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3", "<Quick Add>"));
}

TEST_F(QuickAdding, TheTextIsTakenAsItIs) {
    open();
    const std::string texts[] = {"", "  no address ", "two\r\nlines", std::string(40000, 'u')};
    for (const std::string& text : texts) {
        QuickAdd(text);
        EXPECT_EQ(newest().URL(), text);
    }
    EXPECT_EQ(urlsDirty, 4);
}

TEST_F(QuickAdding, TheRowIsAddedAtTheEndWhateverTheFilterSaysOfIt) {
    open();
    ratedMask.fill(false);
    RefreshURLPage();
    EXPECT_THAT(titlesInView(), IsEmpty());
    QuickAdd("http://dropped/");
    EXPECT_THAT(titlesInView(), ElementsAre("<Quick Add>"));
    EXPECT_THAT(refreshed(), IsEmpty());
}

TEST_F(QuickAdding, NoShortcutFileIsWritten) {
    open();
    shortcutMode = 2;
    QuickAdd("http://dropped/");
    EXPECT_THAT(driver::filesIn("C:\\Favorites"), IsEmpty());
}

TEST_F(QuickAdding, WithNoGroupSelectedItFailsAndAddsNothing) {
    open();
    groups().Clear();
    EXPECT_EQ(failureOfAdding(), failure::objectNotSet);
    clickTab(2);
    Form3.Combo1[1].ListIndex(-1);
    const std::vector<std::string> before = titlesInView();
    EXPECT_EQ(failureOfAdding(), failure::invalidProperty);
    EXPECT_EQ(titlesInView(), before);
    EXPECT_EQ(uBlock.URLDatas().Count(), 4);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(QuickAdding, AFullStoreLeavesARowWithoutAnEntry) {
    openWith({"A"});
    while (uBlock.URLDatas().Count() < 32767) uBlock.URLDatas().Add("", "", 0);
    EXPECT_EQ(failureOfAdding(), failure::overflow);
    EXPECT_EQ(uBlock.URLDatas().Count(), 32767);
    EXPECT_THAT(rowTexts(1), ElementsAre("<Quick Add>", "", "", "", "", "", ""));
    EXPECT_THAT(tags(), ElementsAre(""));
    EXPECT_EQ(urlsDirty, 0);
}

}  // namespace
}  // namespace magpie
