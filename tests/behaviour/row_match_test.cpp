// From the rows in view to their records: texts, match, and the cut of the selection.
#include "entries/row_match.h"

#include <array>
#include <random>

#include "platform/runtime/failure.h"
#include "tests/behaviour/view_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RowMatch : public ViewFixture {
public:
    static void open(std::initializer_list<std::string_view> titles) {
        openWith({"A"});
        for (const std::string_view title : titles) add(title);
        RefreshURLPage();
    }

    // Rows count from 0 here; the last one gets the list's focus mark.
    static void select(std::initializer_list<int> rows) {
        for (const int row : rows) Form3.ListView1[lvIndex].Row(row + 1).Selected(true);
    }

    static std::vector<int> selected() {
        std::vector<int> rows;
        for (int row = 0; row < Form3.ListView1[lvIndex].Count(); ++row)
            if (Form3.ListView1[lvIndex].Row(row + 1).Selected()) rows.push_back(row);
        return rows;
    }

    static RowTexts textsOf(std::int32_t row) {
        RowTexts texts;
        readRowTexts(texts, row);
        return texts;
    }
};

// Texts ----------------------------------------------------------------------------------

TEST_F(RowMatch, ARowsTextsComeInTheOrderOfTheColumns) {
    open({"a"});
    URLData& record = add("b");
    record.URL("http://b/");
    record.Rated = 4;
    record.Visited = 17;
    record.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    RefreshURLPage();
    EXPECT_THAT(textsOf(1), ElementsAre("b", "http://b/", "V.High", "A", "2001-02-03 04:05:06",
                                        "1999-12-31 12:00:00", "17"));
    EXPECT_EQ(textsOf(0)[4], "Never");
}

TEST_F(RowMatch, AColumnIsCutBehind254Characters) {
    open({});
    const std::string title(300, 't');
    for (const std::size_t length : {253u, 254u, 255u, 256u, 300u}) add(title.substr(0, length));
    RefreshURLPage();
    std::vector<std::size_t> lengths;
    for (int row = 0; row < 5; ++row) lengths.push_back(textsOf(row)[0].size());
    EXPECT_THAT(lengths, ElementsAre(253, 254, 254, 254, 254));
    EXPECT_EQ(textsOf(4)[0], title.substr(0, 254));
}

TEST_F(RowMatch, ARowThatIsNotThereHasNoTexts) {
    open({"a"});
    for (const std::int32_t row : {1, -1}) {
        EXPECT_THAT(textsOf(row), testing::Each(""));
        EXPECT_EQ(rowState(row, win::LVIS_SELECTED), 0u);
    }
}

TEST_F(RowMatch, TheListInViewIsTheOneThatIsRead) {
    openWith({"A", "B"});
    add("a", 0);
    add("b", 1);
    RefreshURLPage();
    Form3.lastIDX2 = 1;
    EXPECT_EQ(rowText(0, 0), "a");
    clickTab(2);
    Form3.Combo1[1].ListIndex(1);
    ASSERT_EQ(lvIndex, 1);
    EXPECT_EQ(rowText(0, 0), "b");
}

TEST_F(RowMatch, TheSelectedRowsAreCounted) {
    open({"a", "b", "c"});
    EXPECT_EQ(selectedCount(), 0);
    select({0, 2});
    EXPECT_EQ(selectedCount(), 2);
}

// The match ------------------------------------------------------------------------------

TEST_F(RowMatch, ARowIsItsRecord) {
    open({"a", "b"});
    EXPECT_TRUE(rowIsRecord(textsOf(0), uBlock.URLDatas().Item(1)));
    EXPECT_TRUE(rowIsRecord(textsOf(1), uBlock.URLDatas().Item(2)));
    EXPECT_FALSE(rowIsRecord(textsOf(0), uBlock.URLDatas().Item(2)));
}

TEST_F(RowMatch, EveryTextButTheVisitsHasToFit) {
    open({"a"});
    const URLData& record = uBlock.URLDatas().Item(1);
    const RowTexts texts = textsOf(0);
    for (const std::size_t column : {0u, 1u, 2u, 3u}) {
        RowTexts other = texts;
        other[column] += "x";
        EXPECT_FALSE(rowIsRecord(other, record)) << column;
    }
    RowTexts other = texts;
    other[4] = "2001-01-01 00:00:00";
    EXPECT_FALSE(rowIsRecord(other, record));
    other = texts;
    other[5] = "2001-01-01 00:00:00";
    EXPECT_FALSE(rowIsRecord(other, record));
    other = texts;
    other[6] = "999";
    EXPECT_TRUE(rowIsRecord(other, record));
}

TEST_F(RowMatch, TheMatchHeedsTheCase) {
    open({"a"});
    RowTexts texts = textsOf(0);
    texts[0] = "A";
    EXPECT_FALSE(rowIsRecord(texts, uBlock.URLDatas().Item(1)));
}

TEST_F(RowMatch, VisitsCategoryAndKeyTakeNoPart) {
    open({"a"});
    URLData& record = uBlock.URLDatas().Item(1);
    record.Visited = 99;
    record.Catagory = 7;
    EXPECT_TRUE(rowIsRecord(textsOf(0), record));
    EXPECT_TRUE(rowIsRecord(textsOf(0), add("a")));
}

TEST_F(RowMatch, DatesAreComparedToTheSecondAsTheyAreShown) {
    open({"a"});
    URLData& record = uBlock.URLDatas().Item(1);
    record.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    RefreshURLPage();
    constexpr double secondsOfDay = 86400;
    record.LastAccesed.days += 0.3 / secondsOfDay;
    record.Created.days -= 0.3 / secondsOfDay;
    EXPECT_TRUE(rowIsRecord(textsOf(0), record));
    record.LastAccesed.days += 1 / secondsOfDay;
    EXPECT_FALSE(rowIsRecord(textsOf(0), record));
}

TEST_F(RowMatch, NeverStandsForTheDateZeroAndNotForOneBelow) {
    open({"a"});
    URLData& record = uBlock.URLDatas().Item(1);
    EXPECT_TRUE(rowIsRecord(textsOf(0), record));
    record.LastAccesed.days = -2;
    RefreshURLPage();
    EXPECT_EQ(textsOf(0)[4], "Never");
    EXPECT_FALSE(rowIsRecord(textsOf(0), record));
}

TEST_F(RowMatch, ALastVisitThatIsNoDateFailsOnceAllBeforeItFits) {
    open({"a"});
    const URLData& record = uBlock.URLDatas().Item(1);
    RowTexts texts = textsOf(0);
    texts[4] = "yesterday";
    EXPECT_EQ(failureOf([&] { return rowIsRecord(texts, record); }), failure::typeMismatch);
    texts[5] = "1999-12-31 12:00:01";
    EXPECT_FALSE(rowIsRecord(texts, record));
}

TEST_F(RowMatch, ARatingOrGroupThatDoesNotExistFailsOnceAllBeforeItFits) {
    open({"a"});
    URLData& record = uBlock.URLDatas().Item(1);
    const RowTexts texts = textsOf(0);
    record.Rated = 6;
    EXPECT_EQ(failureOf([&] { return rowIsRecord(texts, record); }), failure::subscript);
    record.Rated = 5;
    EXPECT_FALSE(rowIsRecord(texts, record));
    record.Rated = 0;
    record.Owner = 2;
    EXPECT_EQ(failureOf([&] { return rowIsRecord(texts, record); }), failure::subscript);
    record.Name("b");
    EXPECT_FALSE(rowIsRecord(texts, record));
}

// The record of a row ----------------------------------------------------------------------

// What a look at every record of the collection finds, or the failure that ends it.
std::string keyByLookingAtAll(const RowTexts& texts) {
    try {
        for (const URLData& record : uBlock.URLDatas())
            if (rowIsRecord(texts, record)) return record.ID();
        return "none";
    } catch (const Failure& failed) {
        return "failure " + std::to_string(failed.number);
    }
}

std::string keyFound(const RowTexts& texts) {
    try {
        const URLData* record = recordOfRow(texts);
        return record == nullptr ? "none" : record->ID();
    } catch (const Failure& failed) {
        return "failure " + std::to_string(failed.number);
    }
}

// One of few values, so that many records are alike, with some that no row can show.
void fillAtRandom(URLData& record, std::mt19937& random) {
    const auto oneOf = [&random](auto... values) {
        const std::array list{values...};
        return list[random() % list.size()];
    };
    record.Name(oneOf("a", "a", "b", "A"));
    record.URL(oneOf("u", "u", "v"));
    record.Owner = oneOf(0.0, 1.0, 2.0, 2.0, 7.0);
    record.Rated = oneOf(0, 0, 1, 6);
    record.LastAccesed.days = oneOf(0.0, 0.0, 36000.5, -2.0, 1e7);
    record.Created.days = oneOf(36000.25, 36000.25, 36001.25, -1e7);
}

TEST_F(RowMatch, TheRecordOfARowIsTheOneThatALookAtAllFinds) {
    openWith({"A", "B", "A"});
    std::mt19937 random(1);
    for (int i = 0; i < 300; ++i) fillAtRandom(add(""), random);
    int found = 0;
    for (int step = 0; step < 3000; ++step) {
        // Records are changed and deleted between the searches.
        URLData& any = uBlock.URLDatas().Item(static_cast<int>(random() % 300) + 1);
        fillAtRandom(any, random);
        if (step % 10 == 0) {
            uBlock.URLDatas().Delete(any.ID());
            fillAtRandom(add(""), random);
        }
        RowTexts texts;
        for (std::size_t column = 0; column < 6; ++column) {
            static const std::array<std::array<const char*, 3>, 6> values{
                {{"a", "b", "A"},
                 {"u", "v", "w"},
                 {"Not Rated", "Low", ""},
                 {"A", "B", "C"},
                 {"Never", "1998-07-24 12:00:00", "soon"},
                 {"1998-07-24 06:00:00", "1998-07-25 06:00:00", ""}}};
            texts[column] = values[column][random() % (step % 2 == 0 ? 2 : 3)];
        }
        const std::string wanted = keyByLookingAtAll(texts);
        ASSERT_EQ(keyFound(texts), wanted) << step;
        found += wanted.size() == 5 ? 1 : 0;
    }
    EXPECT_GT(found, 50);
}

// The cut of the selection ---------------------------------------------------------------

TEST_F(RowMatch, OfSeveralSelectedRowsTheItemsStays) {
    open({"a", "b", "c", "d"});
    select({0, 3, 2});
    EXPECT_EQ(singleSelect(false), 2);
    EXPECT_THAT(selected(), ElementsAre(2));
}

TEST_F(RowMatch, ASingleSelectedRowStays) {
    open({"a", "b"});
    select({1});
    EXPECT_EQ(singleSelect(false), 1);
    EXPECT_THAT(selected(), ElementsAre(1));
}

TEST_F(RowMatch, RowsThatLookAlikeAllStayAndTheLastIsTheResult) {
    open({"a", "b", "a", "a"});
    select({3, 0, 1, 2});
    EXPECT_EQ(singleSelect(false), 3);
    EXPECT_THAT(selected(), ElementsAre(0, 2, 3));
}

TEST_F(RowMatch, EverySelectedRowCanBeCleared) {
    open({"a", "b", "c"});
    select({0, 1, 2});
    EXPECT_EQ(singleSelect(true), 0);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(RowMatch, AnItemThatIsNotSelectedKeepsNoRow) {
    open({"a", "b", "c"});
    select({1, 2, 0});
    Form3.ListView1[lvIndex].Row(1).Selected(false);
    EXPECT_EQ(singleSelect(false), 0);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(RowMatch, WithoutAnySelectedRowTheResultIsTheFirst) {
    open({"a", "b"});
    EXPECT_EQ(singleSelect(false), 0);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(RowMatch, ARowWithATextThatIsCutKeepsNotEvenItself) {
    open({});
    add("a").URL(std::string(255, 'u'));
    add("b").URL(std::string(254, 'u'));
    RefreshURLPage();
    select({0});
    EXPECT_EQ(singleSelect(false), 0);
    EXPECT_THAT(selected(), IsEmpty());
    select({1});
    EXPECT_EQ(singleSelect(false), 1);
    EXPECT_THAT(selected(), ElementsAre(1));
}

TEST_F(RowMatch, AnEmptyListHasNoItemToKeep) {
    open({});
    EXPECT_EQ(failureOf([] { return singleSelect(false); }), failure::objectNotSet);
}

TEST_F(RowMatch, AnItemWhoseRecordHasGoneFailsWithTheSelectionAsItWas) {
    open({"a", "b"});
    select({0, 1});
    uBlock.URLDatas().Delete(2);
    EXPECT_EQ(failureOf([] { return singleSelect(false); }), failure::invalidCall);
    EXPECT_THAT(selected(), ElementsAre(0, 1));
}

// Where the selection begins ----------------------------------------------------------------

TEST_F(RowMatch, ASingleSelectedRowIsFoundByItsFocusMark) {
    open({"a", "b", "c"});
    EXPECT_EQ(selectionStart(), 0);
    select({1});
    EXPECT_EQ(selectionStart(), 1);
    select({2});
    EXPECT_EQ(selectionStart(), 0);
    setRowState(1, 0, win::LVIS_SELECTED);
    EXPECT_EQ(selectionStart(), 2);
}

TEST_F(RowMatch, ASelectedRowWithoutTheFocusMarkIsLookedForFromTheTop) {
    open({"a", "b", "c"});
    select({1, 2});
    setRowState(2, 0, win::LVIS_SELECTED);
    EXPECT_EQ(selectionStart(), 0);
    EXPECT_EQ(singleSelect(false), 0);
    EXPECT_THAT(selected(), IsEmpty());
}

}  // namespace
}  // namespace magpie
