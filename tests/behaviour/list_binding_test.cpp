// A row and its record: what either row builder writes, and the way back by the tag.
#include "entries/list_binding.h"

#include "entries/row_match.h"
#include "platform/runtime/failure.h"
#include "tests/behaviour/entry_fixture.h"
#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;

class ListBinding : public EntryFixture {
public:
    // A row of its own, beside those in view.
    static std::vector<std::string> written(void (*builder)(const ListRow&, const URLData&),
                                            const URLData& from) {
        const ListRow row = records().Add("");
        builder(row, from);
        std::vector<std::string> texts = rowTexts(row.position());
        texts.push_back(row.Tag());
        records().Remove(row.position());
        return texts;
    }
};

TEST_F(ListBinding, EveryBuilderGivesTheSameTexts) {
    open();
    const double days[] = {0,   -0.0,         -1.5,         -40000.25, 1e-9,
                           0.5, 36525.999999, 45000.123456, 2958465};
    for (const double day : days) {
        for (const int rating : {0, 1, 4, 5}) {
            URLData& sample = add("Name | with \x80 and \"signs\"", 1);
            sample.URL(std::string("http://").append(500, 'u'));
            sample.LastAccesed = sample.Created = {day};
            sample.Rated = rating;
            sample.Visited = rating == 5 ? 2147483647 : rating;
            const std::vector<std::string> texts = written(Flannel, sample);
            EXPECT_EQ(texts, written(fillListRow, sample));
            listAll();
            RefreshURLPage();
            if (rating < 5) {
                std::vector<std::string> refreshedRow = rowTexts(records().Count());
                refreshedRow.push_back(records().Row(records().Count()).Tag());
                EXPECT_EQ(texts, refreshedRow);
            }
            uBlock.URLDatas().Delete(sample.ID());
        }
    }
}

// A row is written over whatever stood in it, and leads back to its record.
TEST_F(ListBinding, ARowThatWasFilledBeforeHoldsTheRecordAlone) {
    open();
    URLData& sample = record(2);
    sample.Rated = 3;
    sample.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    for (const auto& builder : {Flannel, fillListRow}) {
        const ListRow row = records().Row(1);
        builder(row, sample);
        EXPECT_THAT(rowTexts(1), ElementsAre("a2", "http://server/", "High", "A",
                                             "2001-02-03 04:05:06", "1999-12-31 12:00:00", "0"));
        RowTexts texts;
        readRowTexts(texts, 0);
        EXPECT_TRUE(rowIsRecord(texts, sample));
        builder(row, record(1));
        readRowTexts(texts, 0);
        EXPECT_FALSE(rowIsRecord(texts, sample));
        EXPECT_EQ(row.Tag(), "00001");
    }
}

TEST_F(ListBinding, ARowHoldsTheRecordInTheOrderOfTheColumns) {
    open();
    URLData& sample = add("Name", 1);
    sample.URL("http://url/");
    sample.Rated = 2;
    sample.LastAccesed = dateFromCivil(2001, 2, 3, 4, 5, 6);
    sample.Visited = 17;
    EXPECT_THAT(written(Flannel, sample),
                ElementsAre("Name", "http://url/", "Medium", "B", "2001-02-03 04:05:06",
                            "1999-12-31 12:00:00", "17", "00005"));
}

TEST_F(ListBinding, TheDateZeroAndAnyBelowItShowNever) {
    open();
    URLData& sample = record(1);
    for (const double day : {0.0, -0.5, -1.0, -2000.0}) {
        sample.LastAccesed = {day};
        Flannel(records().Row(1), sample);
        EXPECT_EQ(rowTexts(1)[4], "Never") << day;
    }
    sample.LastAccesed = {0.5};
    Flannel(records().Row(1), sample);
    EXPECT_EQ(rowTexts(1)[4], dateText({0.5}));
    sample.Created = {0};
    Flannel(records().Row(1), sample);
    EXPECT_EQ(rowTexts(1)[5], dateText({0}));
}

TEST_F(ListBinding, WritingARowAgainReplacesAllOfIt) {
    open();
    URLData& sample = record(2);
    sample.Name("other");
    sample.URL("");
    sample.Owner = 1;
    Flannel(records().Row(2), sample);
    EXPECT_THAT(rowTexts(2),
                ElementsAre("other", "", "Not Rated", "B", "Never", "1999-12-31 12:00:00", "0"));
    EXPECT_EQ(records().Count(), 3);
}

TEST_F(ListBinding, AnOwnerBetweenTwoGroupsIsRounded) {
    open();
    record(1).Owner = 0.6;
    Flannel(records().Row(1), record(1));
    EXPECT_EQ(rowTexts(1)[3], "B");
}

// A broken record stops the builder where its text would come.
TEST_F(ListBinding, ARatingOrAGroupThatIsNotThereLeavesTheRowHalfBuilt) {
    open();
    for (void (*builder)(const ListRow&, const URLData&) : {Flannel, fillListRow}) {
        URLData& broken = add("broken");
        broken.Rated = 6;
        const ListRow first = records().Add("");
        EXPECT_EQ(failureOf([&] { return builder(first, broken), 0; }), failure::subscript);
        EXPECT_THAT(rowTexts(first.position()),
                    ElementsAre("broken", "http://server/", "", "", "", "", ""));
        broken.Rated = 1;
        broken.Owner = 7;
        const ListRow second = records().Add("");
        EXPECT_EQ(failureOf([&] { return builder(second, broken), 0; }), failure::subscript);
        EXPECT_THAT(rowTexts(second.position()),
                    ElementsAre("broken", "http://server/", "Low", "", "", "", ""));
    }
}

TEST_F(ListBinding, ABrokenRecordLeavesTheRefreshedListHalfBuilt) {
    open();
    record(2).Rated = 6;
    EXPECT_EQ(failureOf([] { return RefreshURLPage(), 0; }), failure::subscript);
    EXPECT_THAT(titlesInView(), ElementsAre("a1"));
    expectHourglassAndHidingOver();
}

TEST_F(ListBinding, DeletingARowOrARecordChangesNoOtherTag) {
    open();
    EXPECT_THAT(tags(), ElementsAre("00001", "00002", "00003"));
    uBlock.URLDatas().Delete("00001");
    records().Remove(1);
    EXPECT_THAT(tags(), ElementsAre("00002", "00003"));
    add("a4");
    RefreshURLPage();
    EXPECT_THAT(tags(), ElementsAre("00002", "00003", "00005"));
}

// UpdateSelectedEntry ------------------------------------------------------------------------

TEST_F(ListBinding, TheSelectedItemIsBroughtBackInStep) {
    open();
    for (int position = 1; position <= 3; ++position)
        record(position).Name(record(position).Name() + " changed");
    records().Row(2).Selected(true);
    UpdateSelectedEntry(-1);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2 changed", "a3"));
    EXPECT_FALSE(Form2.loaded());
}

TEST_F(ListBinding, WithNoFocusedRowItIsTheFirst) {
    open();
    record(1).Name("changed");
    UpdateSelectedEntry(-1);
    EXPECT_THAT(titlesInView(), ElementsAre("changed", "a2", "a3"));
}

TEST_F(ListBinding, ATagIsFoundByItsNumber) {
    open();
    for (int position = 1; position <= 3; ++position)
        record(position).Name(record(position).Name() + " changed");
    records().Row(1).Tag("00003");
    UpdateSelectedEntry(3);
    EXPECT_THAT(titlesInView(), ElementsAre("a3 changed", "a2", "a3"));
    UpdateSelectedEntry(2);
    EXPECT_THAT(titlesInView(), ElementsAre("a3 changed", "a2 changed", "a3"));
}

TEST_F(ListBinding, ARecordThatHasNoRowChangesNone) {
    open();
    record(4).Name("out of view");
    Form3.mnuEdit.Enabled = false;
    UpdateSelectedEntry(4);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
    EXPECT_TRUE(Form3.mnuEdit.Enabled);
}

TEST_F(ListBinding, ARecordThatHasGoneIsTheCallersFailure) {
    open();
    uBlock.URLDatas().Delete("00001");
    Form3.mnuEdit.Enabled = false;
    for (const std::int32_t tag : {-1, 1, 77})
        EXPECT_EQ(failureOf([tag] { return UpdateSelectedEntry(tag), 0; }), failure::invalidCall);
    EXPECT_FALSE(Form3.mnuEdit.Enabled);
    EXPECT_THAT(titlesInView(), ElementsAre("a1", "a2", "a3"));
}

TEST_F(ListBinding, AnEmptyListOnlyHasItsMenusUpdated) {
    open();
    records().Clear();
    Form3.mnuEdit.Enabled = true;
    for (const std::int32_t tag : {-1, 1, 77}) UpdateSelectedEntry(tag);
    EXPECT_FALSE(Form3.mnuEdit.Enabled);
}

TEST_F(ListBinding, UnderTheDialogItNeedsNoneOfItsControls) {
    open();
    editing([] {
        record(1).Name("changed");
        UpdateSelectedEntry(-1);
        EXPECT_THAT(titlesInView(), ElementsAre("changed", "a2", "a3"));
        EXPECT_EQ(Form2.Text1[0].Text(), "a1");
        EXPECT_FALSE(Form3.mnuEdit.Enabled);
    });
}

}  // namespace
}  // namespace magpie
