// Writing and rotating the stack file, and the save at closing.
#include <string>

#include "core/state.h"
#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/services/clock.h"
#include "platform/services/screen.h"
#include "store/groups.h"
#include "store/stack_commands.h"
#include "store/stack_file.h"
#include "tests/behaviour/store_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using testing::IsEmpty;

class StackFileSave : public StoreFixture {};

TEST_F(StackFileSave, OnlyRecordsOfAGroupAreWritten) {
    NewCatagory("A");
    NewCatagory("B");
    for (const double owner : {1.0, -1.0, 0.0, 1.5, 2.0, 1.0}) {
        addRecord(std::to_string(owner).substr(0, 4), owner);
    }
    EXPECT_EQ(written(), lines("+A\r\nhttp://server/0.00|0.00|0|8E34968D|0|0|0\r\n"
                               "+B\r\nhttp://server/1.00|1.00|0|8E34968D|0|0|0\r\n"
                               "http://server/1.00|1.00|0|8E34968D|0|0|0\r\n"));
}

TEST_F(StackFileSave, AWriteLeavesNoUnsavedChanges) {
    addGroupWithRecord();
    written();
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileSave, AGroupWithoutRecordsIsNotSavedByDefaultButBySaveAs) {
    putStackFile("+A\r\n");
    mnuOpen_Click(0);
    urlsDirty = 1;
    mnuSave_Click(0);
    EXPECT_EQ(backup(), std::nullopt);
    EXPECT_EQ(urlsDirty, 1);
    driver::answerFileDialog("C:\\other.pns");
    mnuSave_Click(1);
    EXPECT_EQ(driver::file("C:\\other.pns"), "+A\r\n");
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileSave, TheFirstSaveMakesNoBackup) {
    addGroupWithRecord();
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), lines("+A\r\nhttp://server/a|a|0|8E34968D|0|0|0\r\n"));
    EXPECT_EQ(backup(), std::nullopt);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
}

TEST_F(StackFileSave, TheSecondSaveKeepsTheFirstAsBackupAndTheThirdTheSecond) {
    addGroupWithRecord();
    mnuSave_Click(0);
    const auto first = stackFile();
    addRecord("b", 0);
    mnuSave_Click(0);
    const auto second = stackFile();
    EXPECT_NE(first, second);
    EXPECT_EQ(backup(), first);
    addRecord("c", 0);
    mnuSave_Click(0);
    EXPECT_NE(stackFile(), second);
    EXPECT_EQ(backup(), second);
}

TEST_F(StackFileSave, ABackupThatCannotGoIsNoReasonNotToSave) {
    putStackFile("old");
    driver::putFile(backupPathInTests, "older");
    const auto lock = driver::lockFile(backupPathInTests);
    addGroupWithRecord();
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), lines("+A\r\nhttp://server/a|a|0|8E34968D|0|0|0\r\n"));
    EXPECT_EQ(backup(), "older");
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileSave, AMidnightEndsTheFileAheadOfItsEntry) {
    putStackFile("the last good one");
    addGroupWithRecord();
    addRecord("midnight", 0).Created = {36404};
    addRecord("behind", 0);
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), lines("+A\r\nhttp://server/a|a|0|8E34968D|0|0|0\r\n"));
    EXPECT_EQ(backup(), "the last good one");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileSave, AMidnightEndsAFileOfAnySizeAheadOfItsEntry) {
    NewCatagory("A");
    std::string expected = "+A\r\n";
    for (int i = 0; i < 5000; ++i) {
        addRecord("name", 0);
        expected += lines("http://server/name|name|0|8E34968D|0|0|0\r\n");
    }
    addRecord("midnight", 0).LastAccesed = {36404};
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), expected);
}

TEST_F(StackFileSave, TheSaveAfterAFailedOneDestroysTheLastGoodCopy) {
    putStackFile("the last good one");
    addGroupWithRecord();
    record(1).Created = {36404};
    mnuSave_Click(0);
    mnuSave_Click(0);
    EXPECT_EQ(stackFile(), "+A\r\n");
    EXPECT_EQ(backup(), "+A\r\n");
}

TEST_F(StackFileSave, AFullDiskLeavesTheBackupAndTheUnsavedChanges) {
    putStackFile("the last good one");
    addGroupWithRecord();
    driver::setDiskRoom(3);
    const auto before = driver::liveInSystem();
    mnuSave_Click(0);
    EXPECT_EQ(backup(), "the last good one");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
    EXPECT_EQ(driver::liveInSystem(), before);
}

TEST_F(StackFileSave, WithoutTheRightToWriteTheBackupIsTheSurvivingCopy) {
    putStackFile("the last good one");
    addGroupWithRecord();
    driver::failCall("CreateFileA", 1, win::ERROR_ACCESS_DENIED);
    mnuSave_Click(0);
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_EQ(stackFile(), std::nullopt);
    EXPECT_EQ(backup(), "the last good one");
    EXPECT_EQ(urlsDirty, 1);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileSave, AFractionEndingInZerosMayComeBackAsAnotherDate) {
    readText("+A\r\nu|n|0|8E3496A4|0|0|0\r\n");  // .38564
    record(1).Created = {36404.385};
    const std::string file = written();
    EXPECT_EQ(file, lines("+A\r\nu|n|0|8E34181|0|0|0\r\n"));
    driver::putFile(stackPathInTests, file);
    read();
    EXPECT_EQ(dateText(record(1).Created).substr(0, 10), dateText(now()).substr(0, 10));
}

// ---- The unsaved changes and the save at closing ------------------------------------------

TEST_F(StackFileSave, TheUnsavedChangesOverflowPast32767) {
    urlsDirty = 32767;
    EXPECT_EQ(failureOf([] { ++urlsDirty; }), failure::overflow);
    EXPECT_EQ(urlsDirty, 32767);
}

TEST_F(StackFileSave, ClosingSavesAChangedStore) {
    autoSaveURLs = true;
    addGroupWithRecord();
    shouldSaveUrls();
    EXPECT_NE(stackFile(), std::nullopt);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileSave, ClosingSavesNothingWithoutAChange) {
    autoSaveURLs = true;
    addGroupWithRecord();
    urlsDirty = 0;
    shouldSaveUrls();
    EXPECT_EQ(stackFile(), std::nullopt);
}

TEST_F(StackFileSave, ClosingDropsTheChangesInSilenceWhenTheSettingIsOff) {
    autoSaveURLs = false;
    addGroupWithRecord();
    shouldSaveUrls();
    EXPECT_EQ(stackFile(), std::nullopt);
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileSave, ClosingCountsAFailedSaveAsASave) {
    autoSaveURLs = true;
    addGroupWithRecord();
    record(1).Created = {36404};
    shouldSaveUrls();
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileSave, ClosingAStoreWithoutRecordsKeepsTheUnsavedChanges) {
    autoSaveURLs = true;
    NewCatagory("A");
    urlsDirty = 3;
    shouldSaveUrls();
    EXPECT_EQ(stackFile(), std::nullopt);
    EXPECT_EQ(urlsDirty, 3);
}

TEST_F(StackFileSave, ClosingAStoreWithoutGroupsKeepsTheUnsavedChanges) {
    autoSaveURLs = true;
    addRecord("a", -1);
    urlsDirty = 3;
    shouldSaveUrls();
    EXPECT_EQ(stackFile(), std::nullopt);
    EXPECT_EQ(urlsDirty, 3);
}

}  // namespace
}  // namespace magpie
