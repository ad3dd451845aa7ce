// Records, their collection and the group index.
#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/runtime/failure.h"
#include "store/group_lookup.h"
#include "store/groups.h"
#include "tests/behaviour/store_fixture.h"
#include "tests/unit/runtime/failure_of.h"
#include "views/group_list.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Store : public StoreFixture {};

// Gives the groups to the controls of both screens.
void addGroups(std::initializer_list<const char*> names) {
    for (const char* name : names) NewCatagory(name);
    rebuildGroupList(true);
}

void addRow(const URLData& record) {
    Form3.ListView1[lvIndex].Add(record.Name(), record.ID());
}

TEST_F(Store, AnEmptyStoreEnumeratesNothing) {
    EXPECT_THAT(recordNames(), IsEmpty());
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
}

TEST_F(Store, TheFirstRecordGetsTheId00001) {
    EXPECT_EQ(addRecord("a", 0).ID(), "00001");
}

TEST_F(Store, AnIdIsNotUsedAgainWhileRecordsRemain) {
    for (const char* name : {"a", "b", "c"}) addRecord(name, 0);
    uBlock.URLDatas().Delete("00001");
    EXPECT_EQ(addRecord("d", 0).ID(), "00004");
}

TEST_F(Store, IdsStartAgainOnceEveryRecordIsDeleted) {
    for (const char* name : {"a", "b", "c"}) addRecord(name, 0);
    for (const URLData& each : uBlock.URLDatas()) uBlock.URLDatas().Delete(each.ID());
    EXPECT_EQ(addRecord("d", 0).ID(), "00001");
}

TEST_F(Store, IdsStartAgainAfterClear) {
    addRecord("a", 0);
    uBlock.URLDatas().Clear();
    EXPECT_EQ(addRecord("b", 0).ID(), "00001");
}

TEST_F(Store, RecordsMayCarryTheSameNameAndAddress) {
    const std::string first = addRecord("a", 0).ID();
    const std::string second = addRecord("a", 0).ID();
    EXPECT_NE(first, second);
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
}

TEST_F(Store, WritingAnIdTwiceLeavesTheFirst) {
    URLData& added = addRecord("a", 0);
    added.ID("00009");
    EXPECT_EQ(added.ID(), "00001");
}

TEST_F(Store, AnEmptyIndexHasTheUpperBoundZero) {
    EXPECT_EQ(IDXList.uBound(), 0);
}

TEST_F(Store, OneNewGroupGivesTheUpperBoundOne) {
    NewCatagory("a");
    EXPECT_EQ(IDXList.uBound(), 1);
    EXPECT_EQ(IDXList[0].Name, "a");
    EXPECT_TRUE(IDXList[0].Checked);
    EXPECT_EQ(IDXList[0].GroupID, 0);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(Store, AnUnknownKeyAndAPositionOutOfRangeFail) {
    addRecord("a", 0);
    EXPECT_EQ(failureOf([] { (void)uBlock.URLDatas().Item("00002"); }), failure::invalidCall);
    EXPECT_EQ(failureOf([] { (void)uBlock.URLDatas().Item(2); }), failure::subscript);
}

TEST_F(Store, TheCounterOfTheKeysOverflowsPast32767) {
    for (int i = 0; i < 32767; ++i) uBlock.URLDatas().Add("", "", 0);
    EXPECT_EQ(failureOf([] { uBlock.URLDatas().Add("", "", 0); }), failure::overflow);
    EXPECT_EQ(uBlock.URLDatas().Count(), 32767);
}

TEST_F(Store, TheGroupOfTheAdvancedScreenIsTheSelectedRowOfTheGroupList) {
    addGroups({"a", "b", "c"});
    selectGroupItem(1);
    EXPECT_EQ(getCurrentIDX(), 1);
    EXPECT_EQ(GetSelectedIndex(), 1);
    EXPECT_EQ(Form3.ListView1[3].SelectedItem().Text(), "b");
}

TEST_F(Store, TheGroupOfTheStandardScreenIsTheSelectedRowOfTheCombo) {
    addGroups({"a", "b", "c"});
    showTab(2);
    selectGroupItem(2);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 2);
    EXPECT_EQ(getCurrentIDX(), 2);
    EXPECT_EQ(GetSelectedIndex(), 2);
}

TEST_F(Store, AnEmptyGroupListFailsWithoutTheGuardAndIsMinusOneWithIt) {
    EXPECT_EQ(failureOf([] { (void)getCurrentIDX(); }), failure::objectNotSet);
    EXPECT_EQ(GetSelectedIndex(), -1);
}

TEST_F(Store, ComboWithoutASelectedRowFailsWithoutTheGuardAndIsMinusOneWithIt) {
    addGroups({"a"});
    showTab(2);
    Form3.Combo1[1].ListIndex(-1);
    EXPECT_NE(failureOf([] { (void)getCurrentIDX(); }), 0);
    EXPECT_EQ(GetSelectedIndex(), -1);
}

TEST_F(Store, OnNoScreenTheGroupIsZeroOrNone) {
    currentTab = 3;
    EXPECT_EQ(getCurrentIDX(), 0);
    EXPECT_EQ(GetSelectedIndex(), -1);
}

TEST_F(Store, SelectingMinusOneOnAnEmptyListDoesNothing) {
    addGroups({"a", "b"});
    selectGroupItem(1);
    Form3.ListView1[lvIndex].Clear();
    selectGroupItem(-1);
    EXPECT_EQ(getCurrentIDX(), 1);
}

TEST_F(Store, SelectingMinusOneFollowsTheSelectedRecord) {
    addGroups({"a", "b", "c"});
    selectGroupItem(0);
    Form3.ListView1[lvIndex].Clear();
    addRow(addRecord("x", 2));
    selectGroupItem(-1);
    EXPECT_EQ(getCurrentIDX(), 2);
}

TEST_F(Store, SelectingMinusOneOnARecordInNoGroupDoesNothing) {
    addGroups({"a", "b"});
    selectGroupItem(1);
    Form3.ListView1[lvIndex].Clear();
    addRow(addRecord("x", -1));
    selectGroupItem(-1);
    EXPECT_EQ(getCurrentIDX(), 1);
}

TEST_F(Store, SelectingMinusOneOnARowWhoseRecordHasGoneFails) {
    addGroups({"a"});
    Form3.ListView1[lvIndex].Clear();
    addRow(addRecord("x", 0));
    uBlock.URLDatas().Clear();
    EXPECT_EQ(failureOf([] { selectGroupItem(-1); }), failure::invalidCall);
}

TEST_F(Store, SelectingANumberThatNoRowHasChangesNothing) {
    addGroups({"a", "b"});
    selectGroupItem(1);
    selectGroupItem(7);
    EXPECT_EQ(getCurrentIDX(), 1);
    showTab(2);
    selectGroupItem(1);
    selectGroupItem(7);
    EXPECT_EQ(getCurrentIDX(), 1);
}

}  // namespace
}  // namespace magpie
