// The double click on a record: a visit is counted and the address goes to the browser.
#include "browser/send_url.h"
#include "tests/behaviour/entry_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using driver::Button;
using testing::ElementsAre;
using testing::IsEmpty;

class Visit : public EntryFixture {
public:
    static void doubleClick(ListView& list, int row, Button button = Button::left) {
        driver::doubleClick(list.hWnd(), {30, 17 + (row - 1) * 14 + 7}, button);
    }
    static std::vector<int> visits() {
        std::vector<int> counts;
        for (const URLData& each : uBlock.URLDatas()) counts.push_back(each.Visited);
        return counts;
    }
};

TEST_F(Visit, ADoubleClickRaisesTheCountByOneAndShowsItAtOnce) {
    open();
    record(2).Visited = 6;
    RefreshURLPage();
    EXPECT_EQ(rowTexts(2)[4], "Never");
    driver::setLocalTime(2004, 5, 6, 7, 8, 9);
    doubleClick(records(), 2);
    EXPECT_EQ(record(2).Visited, 7);
    EXPECT_EQ(dateText(record(2).LastAccesed), "2004-05-06 07:08:09");
    EXPECT_THAT(rowTexts(2), ElementsAre("a2", "http://server/", "Not Rated", "A",
                                         "2004-05-06 07:08:09", "1999-12-31 12:00:00", "7"));
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_THAT(visits(), ElementsAre(0, 7, 0, 0));
}

TEST_F(Visit, TheRowStaysTheOneSelected) {
    open();
    for (const int row : {1, 3}) records().Row(row).Selected(true);
    doubleClick(records(), 2);
    EXPECT_THAT(selectedRows(), ElementsAre(2));
    doubleClick(records(), 2);
    EXPECT_THAT(selectedRows(), ElementsAre(2));
    EXPECT_THAT(visits(), ElementsAre(0, 2, 0, 0));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(Visit, OnEitherTabItIsTheSame) {
    open();
    clickTab(2);
    doubleClick(records(), 3);
    EXPECT_THAT(visits(), ElementsAre(0, 0, 1, 0));
    EXPECT_EQ(rowTexts(3)[6], "1");
}

// A rating without a name can't be shown.
TEST_F(Visit, ARowThatCannotBeWrittenIsVisitedAllTheSame) {
    open();
    record(2).Rated = 6;
    doubleClick(records(), 2);
    EXPECT_EQ(record(2).Visited, 1);
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(Visit, InAnEmptyListItDoesNothing) {
    open();
    records().Clear();
    doubleClick(records(), 1);
    EXPECT_THAT(visits(), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Visit, BesideTheRowsItVisitsTheListsItem) {
    open();
    records().Row(2).Selected(true);
    doubleClick(records(), 6);
    EXPECT_THAT(visits(), ElementsAre(0, 1, 0, 0));
}

TEST_F(Visit, TheGroupListAndTheOtherButtonsVisitNothing) {
    open();
    doubleClick(groups(), 2);
    driver::onPopup([](const driver::Popup&) { return win::UINT{0}; });
    driver::onPopup([](const driver::Popup&) { return win::UINT{0}; });
    doubleClick(records(), 1, Button::right);
    doubleClick(records(), 1, Button::middle);
    EXPECT_THAT(visits(), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Visit, OfARecordThatHasGoneNothingIsCounted) {
    open();
    uBlock.URLDatas().Delete("00002");
    doubleClick(records(), 2);
    EXPECT_THAT(visits(), ElementsAre(0, 0, 0));
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(rowTexts(2)[4], "Never");
}

TEST_F(Visit, ACountThatIsFullFailsBeforeAnythingElse) {
    open();
    record(1).Visited = 2147483647;
    RefreshURLPage();
    doubleClick(records(), 1);
    EXPECT_EQ(record(1).Visited, 2147483647);
    EXPECT_EQ(record(1).LastAccesed.days, 0);
    EXPECT_EQ(urlsDirty, 0);
}

// Sending --------------------------------------------------------------------------------------

TEST_F(Visit, SendingLeavesOneRowSelected) {
    open();
    for (const int row : {1, 2, 3}) records().Row(row).Selected(true);
    sendURL("http://server/", true);
    EXPECT_THAT(selectedRows(), ElementsAre(3));
}

TEST_F(Visit, SendingFromAnEmptyListOrOfARecordThatHasGoneIsDropped) {
    open();
    uBlock.URLDatas().Delete("00001");
    sendURL("http://server/", false);
    records().Clear();
    sendURL("http://server/", false);
    EXPECT_TRUE(Form3.Visible());
}

}  // namespace
}  // namespace magpie
