// Texts that another program drops on the main window.
#include "tests/behaviour/bulk_fixture.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr win::POINT onRows{30, 60};

class TextDrop : public BulkFixture {
public:
    static bool drop(Control& control, const std::optional<std::string>& text) {
        return driver::drop(control.hWnd(), onRows, text);
    }
    static bool canDrop(Control& control) { return driver::canDrop(control.hWnd(), {5, 5}, "u"); }
};

TEST_F(TextDrop, ATextBecomesAnEntryOfTheGroupInViewAndARowAtOnce) {
    open({"1"});
    EXPECT_TRUE(drop(records(), "http://server/page.html"));
    EXPECT_THAT(titlesInView(), ElementsAre("1", "<Quick Add>"));
    EXPECT_THAT(rowTexts(2), ElementsAre("<Quick Add>", "http://server/page.html", "Not Rated", "A",
                                         "Never", "2001-03-14 09:00:00", "0"));
    EXPECT_THAT(owners(), ElementsAre(0, 0));
    EXPECT_EQ(Form3.StatusBar1.Pane(1), "Viewed: 2");
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 2");
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(TextDrop, TheListOfTheStandardTabTakesThemToo) {
    open({});
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_THAT(owners(), ElementsAre(1));
    EXPECT_THAT(titlesInView(), ElementsAre("<Quick Add>"));
}

TEST_F(TextDrop, NothingElseInTheWindowTakesThem) {
    open({"1"});
    EXPECT_TRUE(canDrop(records()));
    EXPECT_FALSE(canDrop(groups()));
    EXPECT_FALSE(canDrop(Form3.Command3[0]));
    EXPECT_FALSE(canDrop(Form3.tbStrip));
    EXPECT_FALSE(canDrop(Form3.StatusBar1));
    clickTab(2);
    EXPECT_TRUE(canDrop(records()));
    EXPECT_FALSE(canDrop(Form3.Combo1[1]));
    EXPECT_FALSE(canDrop(Form3.Command1[1]));
}

TEST_F(TextDrop, AFileOrAnythingElseAddsNothing) {
    open({"1"});
    EXPECT_FALSE(drop(records(), {}));
    EXPECT_THAT(titlesInView(), ElementsAre("1"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(TextDrop, AnyTextIsTakenAsItIs) {
    open({});
    const std::string lines = " not an address\r\nat all ";
    EXPECT_TRUE(drop(records(), lines));
    EXPECT_TRUE(drop(records(), ""));
    EXPECT_TRUE(drop(records(), std::string(300, 'u')));
    EXPECT_EQ(uBlock.URLDatas().Item(1).URL(), lines);
    EXPECT_EQ(uBlock.URLDatas().Item(2).URL(), "");
    EXPECT_EQ(uBlock.URLDatas().Item(3).URL(), std::string(300, 'u'));
    EXPECT_EQ(records().Row(1).SubItem(1), lines);
}

TEST_F(TextDrop, WithoutAGroupADropDoesNothing) {
    openWith({});
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_THAT(titlesInView(), IsEmpty());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(TextDrop, WithoutAGroupInViewADropIsDropped) {
    open({"1"});
    groups().Clear();
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_THAT(titlesInView(), ElementsAre("1"));
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(TextDrop, WithNoRowOfTheDropDownChosenADropIsDroppedToo) {
    open({"1"});
    clickTab(2);
    Form3.Combo1[1].ListIndex(-1);
    urlsDirty = 0;
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(TextDrop, ANewRowComesIntoSightAndTakesNoMark) {
    open({});
    for (int i = 0; i < 60; ++i) add(std::to_string(i));
    refresh();
    select({0});
    EXPECT_FALSE(isInSight(records(), 60));
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_TRUE(isInSight(records(), 61));
    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_EQ(focused(), 0);
}

TEST_F(TextDrop, ADialogKeepsDropsOut) {
    open({"1"});
    move([] { EXPECT_FALSE(drop(records(), "http://server/")); });
    EXPECT_TRUE(drop(records(), "http://server/"));
    select({0, 1});
    driver::onMessageBox([](const driver::Box&) {
        EXPECT_FALSE(drop(records(), "http://server/"));
        return win::IDNO;
    });
    choose("Remove");
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
}

TEST_F(TextDrop, TheListsTakeThemAgainAfterAFlush) {
    open({"1"});
    keepResident = false;
    Form3.unload();
    clickPad();
    NewCatagory("A");
    rebuildGroupList(true);
    EXPECT_TRUE(drop(records(), "http://server/"));
    EXPECT_THAT(titlesInView(), ElementsAre("<Quick Add>"));
}

TEST_F(TextDrop, AListThatTheDesktopRefusesTakesNone) {
    driver::failCall("RegisterDragDrop", 1, win::ERROR_ACCESS_DENIED);
    driver::failCall("RegisterDragDrop", 2, win::ERROR_ACCESS_DENIED);
    open({"1"});
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_FALSE(drop(records(), "http://server/"));
}

TEST_F(TextDrop, TheRowsOfTwoDropsOfOneTextActAsOneRecordAfterTheOther) {
    open({});
    for (int time = 0; time < 2; ++time) drop(records(), "http://server/");
    select({0, 1});
    choose("Low");
    EXPECT_THAT(ratings(), ElementsAre(1, 1));
}

}  // namespace
}  // namespace magpie
