#include "store/stack_line.h"

#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

#include "core/state.h"
#include "platform/services/clock.h"
#include "store/groups.h"
#include "store/hex_date.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// "|" stands for the separator byte.
std::string line(std::string text) {
    for (char& byte : text) {
        if (byte == '|') byte = stackSeparator;
    }
    return text;
}

URLData& onlyRecord() {
    EXPECT_EQ(uBlock.URLDatas().Count(), 1);
    return uBlock.URLDatas().Item(1);
}

URLData& parsed(const std::string& text) {
    ParseStackLine(line(text));
    return onlyRecord();
}

int failureOfLine(const std::string& text) {
    return failureOf([&] { ParseStackLine(line(text)); });
}

std::vector<std::string> groupNames() {
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) names.push_back(IDXList[i].Name);
    return names;
}

// The clock may go on between the line and the test.
void expectNow(Date date) {
    EXPECT_LE(date.days, now().days);
    EXPECT_GT(date.days, now().days - 1.0 / 1440);
}

TEST(StackLine, AnEntryLineGivesAllFields) {
    const URLData& record = parsed("http://server/index.html|Front page|8E53EC00|8E34968D|3|1|4");
    EXPECT_EQ(record.URL(), "http://server/index.html");
    EXPECT_EQ(record.Name(), "Front page");
    EXPECT_EQ(record.LastAccesed.days, 36435.60416);
    EXPECT_EQ(record.Created.days, 36404.38541);
    EXPECT_EQ(record.Visited, 3);
    EXPECT_EQ(record.Catagory, 1);
    EXPECT_EQ(record.Rated, 4);
}

TEST(StackLine, ATwoPartLineWasCreatedNowAndNeverVisited) {
    const URLData& record = parsed("u|n");
    EXPECT_EQ(record.URL(), "u");
    EXPECT_EQ(record.Name(), "n");
    expectNow(record.Created);
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Visited, 0);
}

TEST(StackLine, ASixPartLineIsReadAsATwoPartLine) {
    const URLData& record = parsed("u|n|8E53EC00|8E34968D|3|1");
    expectNow(record.Created);
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Visited, 0);
    EXPECT_EQ(record.Catagory, 0);
}

TEST(StackLine, AnEighthPartMakesAShortEntry) {
    const URLData& record = parsed("u|n|8E53EC00|8E34968D|3|1|4|");
    expectNow(record.Created);
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Visited, 0);
    EXPECT_EQ(record.Rated, 0);
}

TEST(StackLine, ALineOfOneSeparatorIsAnEntryWithoutNameAndAddress) {
    const URLData& record = parsed("|");
    EXPECT_EQ(record.URL(), "");
    EXPECT_EQ(record.Name(), "");
}

TEST(StackLine, ALineWithoutSeparatorAndPlusIsSkipped) {
    for (const char* text : {"", "x", " +a", "http://server/ Front page"}) ParseStackLine(text);
    EXPECT_EQ(uBlock.URLDatas().Count(), 0);
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST(StackLine, AnEntryBehindASkippedLineBelongsToTheGroupAbove) {
    for (const char* text : {"+A", "+B", "x", "u|n"}) ParseStackLine(line(text));
    EXPECT_EQ(onlyRecord().Owner, 1);
}

TEST(StackLine, AnEntryAheadOfTheFirstGroupHasTheOwnerMinusOne) {
    EXPECT_EQ(parsed("u|n").Owner, -1);
}

TEST(StackLine, AnAddressMayStartWithPlus) {
    EXPECT_EQ(parsed("+u|n").URL(), "+u");
    EXPECT_THAT(groupNames(), IsEmpty());
}

TEST(StackLine, AGroupNameEndsAtItsSecondPlus) {
    for (const char* text : {"+a+b", "+one+two+three", "+", "++x", "+ c "}) ParseStackLine(text);
    EXPECT_THAT(groupNames(), ElementsAre("a", "one", "", "", " c "));
}

TEST(StackLine, GroupNamesMayRepeat) {
    for (const char* text : {"+a", "u|1", "+a", "u|2"}) ParseStackLine(line(text));
    EXPECT_THAT(groupNames(), ElementsAre("a", "a"));
    EXPECT_EQ(uBlock.URLDatas().Item(1).Owner, 0);
    EXPECT_EQ(uBlock.URLDatas().Item(2).Owner, 1);
}

TEST(StackLine, ALostCreationDateTakesTheLastVisitWithIt) {
    const URLData& record = parsed("u|n|8E53EC00|0|3|1|4");
    expectNow(record.Created);
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Visited, 3);
}

TEST(StackLine, AnEntryThatWasNeverVisitedKeepsItsCreationDate) {
    const URLData& record = parsed("u|n|0|8E34968D|0|1|0");
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Created.days, 36404.38541);
}

TEST(StackLine, ABrokenLastVisitStopsTheLineAndKeepsTheRecord) {
    EXPECT_EQ(failureOfLine("u|n|Never ever|8E34968D|3|1|4"), failure::typeMismatch);
    EXPECT_EQ(onlyRecord().Name(), "n");
    EXPECT_EQ(onlyRecord().Created.days, 0);
    EXPECT_EQ(onlyRecord().Visited, 0);
}

TEST(StackLine, ABrokenCreationDateKeepsTheLastVisit) {
    EXPECT_EQ(failureOfLine("u|n|8E53EC00|########|3|1|4"), failure::typeMismatch);
    EXPECT_EQ(onlyRecord().LastAccesed.days, 36435.60416);
    EXPECT_EQ(onlyRecord().Created.days, 0);
    EXPECT_EQ(onlyRecord().Visited, 0);
}

struct BrokenNumber {
    const char* text;
    int failure;
};

class BrokenNumbers : public testing::TestWithParam<BrokenNumber> {};

TEST_P(BrokenNumbers, StopTheLineAtTheirField) {
    const std::string dates = "u|n|8E53EC00|8E34968D|";
    const std::string broken = GetParam().text;
    EXPECT_EQ(failureOfLine(dates + broken + "|1|4"), GetParam().failure);
    EXPECT_EQ(onlyRecord().Visited, 0);
    EXPECT_EQ(onlyRecord().Catagory, 0);
    EXPECT_EQ(onlyRecord().Created.days, 36404.38541);
    uBlock.URLDatas().Clear();
    EXPECT_EQ(failureOfLine(dates + "3|" + broken + "|4"), GetParam().failure);
    EXPECT_EQ(onlyRecord().Visited, 3);
    EXPECT_EQ(onlyRecord().Catagory, 0);
    EXPECT_EQ(onlyRecord().Rated, 0);
    uBlock.URLDatas().Clear();
    EXPECT_EQ(failureOfLine(dates + "3|1|" + broken), GetParam().failure);
    EXPECT_EQ(onlyRecord().Catagory, 1);
    EXPECT_EQ(onlyRecord().Rated, 0);
}

INSTANTIATE_TEST_SUITE_P(StackLine, BrokenNumbers,
                         testing::Values(BrokenNumber{"", failure::typeMismatch},
                                         BrokenNumber{"x", failure::typeMismatch},
                                         BrokenNumber{"3 4", failure::typeMismatch},
                                         BrokenNumber{"2147483648", failure::overflow},
                                         BrokenNumber{"-2147483649", failure::overflow},
                                         BrokenNumber{"1E400", failure::overflow},
                                         BrokenNumber{"99999999999999999999", failure::overflow}));

TEST(StackLine, AByteFieldIsLimitedTo255) {
    EXPECT_EQ(failureOfLine("u|n|0|8E34968D|2147483647|255|256"), failure::overflow);
    EXPECT_EQ(onlyRecord().Visited, 2147483647);
    EXPECT_EQ(onlyRecord().Catagory, 255);
    EXPECT_EQ(onlyRecord().Rated, 0);
    uBlock.URLDatas().Clear();
    EXPECT_EQ(failureOfLine("u|n|0|8E34968D|-5|-1|0"), failure::overflow);
    EXPECT_EQ(onlyRecord().Visited, -5);
}

TEST(StackLine, ALineCutAnywhereLeavesAtMostOneRecord) {
    const std::string whole = line("http://server/|Front page|8E53EC00|8E34968D|3|1|4");
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        uBlock.URLDatas().Clear();
        static_cast<void>(failureOf([&] { ParseStackLine(whole.substr(0, size)); }));
        const bool entry = whole.substr(0, size).find(stackSeparator) != std::string::npos;
        EXPECT_EQ(uBlock.URLDatas().Count(), entry ? 1 : 0) << size;
    }
}

TEST(StackLine, TheLinesPastAFullCollectionFailOneByOne) {
    for (int i = 0; i < 32767; ++i) ParseStackLine(line("u|n"));
    EXPECT_EQ(failureOfLine("u|n"), failure::overflow);
    EXPECT_EQ(failureOfLine("u|n"), failure::overflow);
    EXPECT_EQ(failureOfLine("+A"), 0);
    EXPECT_EQ(uBlock.URLDatas().Count(), 32767);
    EXPECT_THAT(groupNames(), ElementsAre("A"));
}

TEST(StackLine, ARecordIsWrittenInTheOrderOfTheFile) {
    const std::string text = line("http://server/index.html|Front page|8E53EC00|8E34968D|3|1|4");
    ParseStackLine(text);
    std::string written;
    appendEntryLine(written, onlyRecord());
    EXPECT_EQ(written, text + "\r\n");
}

TEST(StackLine, AMidnightInEitherDateWritesNothingOfTheEntry) {
    URLData& record = parsed("u|n|8E53EC00|8E34968D|3|1|4");
    record.Created = {36404};
    std::string written = "above\r\n";
    EXPECT_EQ(failureOf([&] { appendEntryLine(written, record); }), failure::typeMismatch);
    record.Created = {36404.5};
    record.LastAccesed = {36404};
    EXPECT_EQ(failureOf([&] { appendEntryLine(written, record); }), failure::typeMismatch);
    EXPECT_EQ(written, "above\r\n");
}

TEST(StackLine, AnyBytesComeBackAsTheyWere) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != stackSeparator) bytes += static_cast<char>(byte);
    }
    ParseStackLine(bytes + stackSeparator + bytes + line("|8E53EC00|8E34968D|3|1|4"));
    const URLData& record = onlyRecord();
    EXPECT_EQ(record.Name(), bytes);
    std::string written;
    appendEntryLine(written, record);
    EXPECT_TRUE(written.starts_with(bytes + stackSeparator + bytes + stackSeparator));
}

TEST(StackLine, AGroupIsWrittenAsPlusAndName) {
    ParseStackLine("+a+b");
    std::string written;
    appendGroupLine(written, IDXList[0]);
    EXPECT_EQ(written, "+a\r\n");
}

TEST(Groups, AnEmptyIndexHasTheUpperBoundZero) {
    EXPECT_EQ(IDXList.uBound(), 0);
    EXPECT_EQ(IDXList[0].Name, "");
}

TEST(Groups, ANewGroupStandsAheadOfTheSpareElement) {
    NewCatagory("a");
    EXPECT_EQ(IDXList.uBound(), 1);
    EXPECT_EQ(IDXList[0].Name, "a");
    EXPECT_TRUE(IDXList[0].Checked);
    EXPECT_EQ(IDXList[0].GroupID, 0);
    EXPECT_EQ(IDXList[1].Name, "");
    EXPECT_FALSE(IDXList[1].Checked);
    NewCatagory("a");
    EXPECT_EQ(IDXList[1].GroupID, 1);
    EXPECT_EQ(IDXCount, 2);
    EXPECT_EQ(urlsDirty, 0);
}

TEST(Groups, ANameMayBeThatOfAGroupInTheList) {
    NewCatagory("a group with a name too long for a short text");
    for (int i = 0; i < 20; ++i) NewCatagory(IDXList[0].Name);
    EXPECT_EQ(IDXList[20].Name, IDXList[0].Name);
}

TEST(Groups, TheCounterOverflowsBehindTheGroupThatReachesIt) {
    IDXCount = 32767;
    EXPECT_EQ(failureOf([] { NewCatagory("a"); }), failure::overflow);
    EXPECT_THAT(groupNames(), ElementsAre("a"));
    EXPECT_EQ(IDXList[0].GroupID, 32767);
}

TEST(Groups, APositionOutsideTheListFails) {
    NewCatagory("a");
    for (const std::int32_t position : {-1, 2, 2147483647}) {
        EXPECT_EQ(failureOf([&] { return IDXList[position].Name; }), failure::subscript);
    }
    EXPECT_EQ(failureOf([] { return IDXList[-1.0].Name; }), failure::subscript);
    EXPECT_EQ(failureOf([] { return IDXList[1e10].Name; }), failure::overflow);
    EXPECT_EQ(failureOf([] { IDXList.resize(-1); }), failure::subscript);
}

TEST(Groups, AnOwnerIsRoundedWhenItIsAPosition) {
    NewCatagory("a");
    NewCatagory("b");
    EXPECT_EQ(IDXList[0.5].Name, "a");
    EXPECT_EQ(IDXList[0.6].Name, "b");
    EXPECT_EQ(IDXList[1.5].Name, "");  // halves to even: the spare element
}

}  // namespace
}  // namespace magpie
