// Reading the stack file.
#include <string>

#include "core/state.h"
#include "mainwindow/form3.h"
#include "platform/api/kernel32.h"
#include "platform/memory/driver.h"
#include "platform/memory/driver_system.h"
#include "platform/services/screen.h"
#include "store/groups.h"
#include "store/stack_commands.h"
#include "store/stack_file.h"
#include "tests/behaviour/store_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

namespace driver = win::memory::driver;

using testing::ElementsAre;
using testing::IsEmpty;

const std::string exampleFile =
    "+Reference\r\n"
    "http://server/index.html|Front page|8E53EC00|8E34968D|3|1|4\r\n"
    "http://server/tools.html|Tools|0|8E34968D|0|1|0\r\n"
    "+Empty group\r\n"
    "+Work\r\n"
    "http://server/a.html|Plan|0|8E53EC00|0|0|0\r\n";

class StackFileRead : public StoreFixture {};

TEST_F(StackFileRead, TheExampleIsReadIntoGroupsAndRecords) {
    EXPECT_TRUE(readText(exampleFile));
    EXPECT_THAT(groupNames(), ElementsAre("Reference", "Empty group", "Work"));
    EXPECT_THAT(recordNames(), ElementsAre("Front page", "Tools", "Plan"));
    EXPECT_EQ(record(1).LastAccesed.days, 36435.60416);
    EXPECT_EQ(record(1).Visited, 3);
    EXPECT_EQ(record(2).LastAccesed.days, 0);
    EXPECT_EQ(record(3).Owner, 2);
    EXPECT_EQ(urlsDirty, 0);
}

TEST_F(StackFileRead, TheExampleIsWrittenAsItWasRead) {
    readText(exampleFile);
    EXPECT_EQ(written(), lines(exampleFile));
}

TEST_F(StackFileRead, AMissingFileEmptiesTheStoreInSilence) {
    addGroupWithRecord();
    EXPECT_FALSE(read());
    EXPECT_THAT(groupNames(), IsEmpty());
    EXPECT_THAT(recordNames(), IsEmpty());
    EXPECT_EQ(urlsDirty, 0);
    EXPECT_EQ(IDXCount, 0);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileRead, AMissingFileToMergeLeavesTheStoreAndCountsAsAChange) {
    addGroupWithRecord();
    EXPECT_FALSE(read(true));
    EXPECT_THAT(recordNames(), ElementsAre("a"));
    EXPECT_EQ(urlsDirty, 2);
}

TEST_F(StackFileRead, AFolderOfThatNameIsAMissingFile) {
    driver::makeFolder(stackPathInTests);
    addGroupWithRecord();
    EXPECT_FALSE(read());
    EXPECT_THAT(recordNames(), IsEmpty());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileRead, ALockedFileIsAMissingFile) {
    putStackFile(exampleFile);
    const auto lock = driver::lockFile(stackPathInTests);
    addGroupWithRecord();
    EXPECT_FALSE(read());
    EXPECT_THAT(recordNames(), IsEmpty());
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileRead, AFileWithoutTheRightToReadIsAMissingFile) {
    putStackFile(exampleFile);
    driver::failCall("CreateFileA", 1, win::ERROR_ACCESS_DENIED);
    EXPECT_FALSE(read());
    EXPECT_EQ(driver::faultsLeft(), 0);
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST_F(StackFileRead, AFileOfNoBytesHoldsNothingAndIsRead) {
    EXPECT_TRUE(readText(""));
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST_F(StackFileRead, ALastLineWithoutAnEndIsRead) {
    EXPECT_TRUE(readText("+A\r\nu|n"));
    EXPECT_THAT(recordNames(), ElementsAre("n"));
    readText("+A\r\nu|n\r\n+B");
    EXPECT_THAT(groupNames(), ElementsAre("A", "B"));
}

TEST_F(StackFileRead, LinesEndAtALineFeedAlone) {
    EXPECT_TRUE(readText("+A\nu|n\nv|m\n"));
    EXPECT_THAT(recordNames(), ElementsAre("n", "m"));
}

TEST_F(StackFileRead, LinesEndAtACarriageReturnAlone) {
    EXPECT_TRUE(readText("+A\ru|n\rv|m"));
    EXPECT_THAT(groupNames(), ElementsAre("A"));
    EXPECT_THAT(recordNames(), ElementsAre("n", "m"));
}

TEST_F(StackFileRead, NulBytesComeBackAsTheyWere) {
    using namespace std::string_literals;
    const std::string text = "+A\0B\r\nu\0v|n\0|8E53EC00|8E34968D|3|1|4\r\n"s;
    EXPECT_TRUE(readText(text));
    EXPECT_THAT(recordNames(), ElementsAre("n\0"s));
    EXPECT_EQ(written(), lines(text));
}

TEST_F(StackFileRead, BytesAbove127ComeBackAsTheyWere) {
    std::string high;
    for (int byte = 128; byte < 256; ++byte) high += static_cast<char>(byte);
    const std::string text =
        "+" + high + "\r\n" + high + "|" + high + "|8E53EC00|8E34968D|3|1|4\r\n";
    EXPECT_TRUE(readText(text));
    EXPECT_EQ(written(), lines(text));
}

TEST_F(StackFileRead, ALineOfTenMegabytesIsOneLine) {
    const std::string name(10'000'000, 'n');
    const std::string text =
        "+A\r\nu|" + name + "|8E53EC00|8E34968D|3|1|4\r\nv|m|0|8E34968D|0|0|0\r\n";
    EXPECT_TRUE(readText(text));
    EXPECT_EQ(uBlock.URLDatas().Count(), 2);
    EXPECT_EQ(record(1).Name().size(), name.size());
    EXPECT_EQ(written(), lines(text));
}

TEST_F(StackFileRead, AFailingLineIsPassedOverAndKeepsItsRecord) {
    EXPECT_TRUE(
        readText("+A\r\nu|n|Never ever|8E34968D|3|1|4\r\nu|m|0|8E34968D|3|256|4\r\n"
                 "u|o|0|8E34968D|3|1|4\r\n"));
    EXPECT_THAT(recordNames(), ElementsAre("n", "m", "o"));
    EXPECT_EQ(record(1).Created.days, 0);
    EXPECT_EQ(record(1).Owner, 0);
    EXPECT_EQ(record(2).Visited, 3);
    EXPECT_EQ(record(2).Catagory, 0);
    EXPECT_EQ(record(2).Rated, 0);
    EXPECT_EQ(record(3).Rated, 4);
    EXPECT_THAT(driver::messageBoxes(), IsEmpty());
}

TEST_F(StackFileRead, AFileCutAnywhereIsReadAsFarAsItGoes) {
    const std::string whole = lines(exampleFile);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        driver::putFile(stackPathInTests, whole.substr(0, size));
        EXPECT_TRUE(read());
        EXPECT_LE(uBlock.URLDatas().Count(), 3);
        EXPECT_LE(IDXList.uBound(), 3);
    }
    EXPECT_EQ(uBlock.URLDatas().Count(), 3);
}

TEST_F(StackFileRead, EntriesPast32767FailOneByOneAndTheRestIsRead) {
    std::string text = "+A\r\n";
    for (int i = 0; i < 32770; ++i) text += "u|n\r\n";
    EXPECT_TRUE(readText(text + "+B\r\n"));
    EXPECT_EQ(uBlock.URLDatas().Count(), 32767);
    EXPECT_THAT(groupNames(), ElementsAre("A", "B"));
}

TEST_F(StackFileRead, AShortEntryWasCreatedNow) {
    driver::setLocalTime(2001, 5, 6, 7, 8, 9);
    readText("u|n\r\nu|n|8E53EC00|8E34968D|3|1\r\n");
    for (const int position : {1, 2}) {
        EXPECT_EQ(dateText(record(position).Created).substr(0, 16), "2001-05-06 07:08");
        EXPECT_EQ(record(position).LastAccesed.days, 0);
        EXPECT_EQ(record(position).Visited, 0);
    }
}

TEST_F(StackFileRead, AnEntryBehindASkippedLineBelongsToTheGroupAbove) {
    readText("+A\r\n+B\r\nx\r\nu|n\r\n");
    EXPECT_EQ(record(1).Owner, 1);
}

TEST_F(StackFileRead, AnAddressMayStartWithPlus) {
    readText("+A\r\n+u|n\r\n");
    EXPECT_EQ(record(1).URL(), "+u");
    EXPECT_THAT(groupNames(), ElementsAre("A"));
}

TEST_F(StackFileRead, AGroupNameIsCutAtItsSecondPlus) {
    readText("+a+b\r\n");
    EXPECT_THAT(groupNames(), ElementsAre("a"));
    EXPECT_EQ(written(), "+a\r\n");
}

TEST_F(StackFileRead, EntriesAheadOfTheFirstGroupVanishAtTheNextSave) {
    readText("u|n|8E53EC00|8E34968D|3|1|4\r\n+A\r\n");
    EXPECT_EQ(record(1).Owner, -1);
    EXPECT_EQ(written(), "+A\r\n");
}

TEST_F(StackFileRead, MergingAppendsGroupsEvenOfANameAlreadyThere) {
    readText("+A\r\nu|1\r\n");
    EXPECT_TRUE(readText("+A\r\nu|2\r\n+B\r\nu|3\r\n", true));
    EXPECT_THAT(groupNames(), ElementsAre("A", "A", "B"));
    EXPECT_EQ(record(1).Owner, 0);
    EXPECT_EQ(record(2).Owner, 1);
    EXPECT_EQ(record(3).Owner, 2);
    EXPECT_EQ(urlsDirty, 1);
}

TEST_F(StackFileRead, AMergeAtTheLimitOfUnsavedChangesFailsWithNothingDone) {
    putStackFile(exampleFile);
    urlsDirty = 32767;
    EXPECT_EQ(failureOf([] { return read(true); }), failure::overflow);
    EXPECT_THAT(recordNames(), IsEmpty());
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
}

TEST_F(StackFileRead, AReadClearsTheComboAndTheListInView) {
    NewCatagory("A");
    Form3.Combo1[1].AddItem("A");
    Form3.ListView1[lvIndex].Add("row");
    Form3.ListView1[1].Add("row of the other screen");
    read();
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 0);
    EXPECT_EQ(Form3.ListView1[lvIndex].Count(), 0);
    EXPECT_EQ(Form3.ListView1[1].Count(), 1);
}

TEST_F(StackFileRead, PendingEventsRunAfterEachLine) {
    putStackFile("+A\r\nu|1\r\nu|2\r\n");
    const int before = driver::pumps();
    std::vector<int> counts;
    for (int line = 1; line <= 3; ++line) {
        driver::atPump(line, [&] { counts.push_back(uBlock.URLDatas().Count()); });
    }
    read();
    EXPECT_EQ(driver::pumps() - before, 3);
    EXPECT_THAT(counts, ElementsAre(0, 1, 2));
}

TEST_F(StackFileRead, AReadInsideAReadIsSurvived) {
    putStackFile("+A\r\nu|1\r\nu|2\r\n");
    driver::putFile("C:\\other.pns", lines("+B\r\nu|3\r\n"));
    driver::atPump(2, [] { ReadStackFile("C:\\other.pns", false); });
    EXPECT_TRUE(read());
    EXPECT_THAT(groupNames(), ElementsAre("B"));
    EXPECT_THAT(recordNames(), ElementsAre("3", "2"));
}

TEST_F(StackFileRead, TheHourglassStandsWhileAFileIsRead) {
    putStackFile("+A\r\n");
    win::WORD during = 0;
    driver::atPump(1, [&] { during = driver::cursor(); });
    read();
    EXPECT_EQ(during, win::IDC_WAIT_NUMBER);
    EXPECT_EQ(Screen.MousePointer(), Pointer::standard);
}

TEST_F(StackFileRead, OpeningTheDefaultShowsItsGroups) {
    putStackFile(exampleFile);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.ListView1[3].Count(), 3);
    EXPECT_EQ(Form3.StatusBar1.Pane(2), "Total: 3");
}

TEST_F(StackFileRead, OpeningTheDefaultOnTheStandardScreenFillsTheCombo) {
    showTab(2);
    putStackFile(exampleFile);
    mnuOpen_Click(0);
    EXPECT_EQ(Form3.Combo1[1].ListCount(), 3);
    EXPECT_EQ(Form3.Combo1[1].ListIndex(), 0);
    EXPECT_EQ(Form3.ListView1[1].Count(), 2);
}

}  // namespace
}  // namespace magpie
