// The filter decision, step by step, and the order of its steps.
#include "views/filter_decision.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

const Date now = dateFromCivil(2001, 3, 14, 9);

// A record that passes as it is. Of the three groups the middle one is unticked, and so is the
// spare element.
struct Decision {
    Decision() {
        groups.resize(3);
        groups[0].Checked = true;
        groups[2].Checked = true;
        record.Name("Title");
        record.LastAccesed = now;
        record.Created = now;
    }

    [[nodiscard]] bool passes() const { return filter().passes(record); }
    [[nodiscard]] int failing() const {
        return failureOf([&] { return passes(); });
    }
    [[nodiscard]] Filter filter() const { return {{listAll, group, groups}, masks, now}; }

    IndexList groups;
    bool listAll = true;
    std::int16_t group = 0;
    Masks masks;
    URLData record;
};

struct FilterDecision : testing::Test, Decision {};

TEST_F(FilterDecision, OneGroupIsItsOwnRecordsAlone) {
    listAll = false;
    const struct {
        int group;
        double owner;
        bool passes;
    } table[] = {
        {0, 0, true},    {0, 2, false},  {2, 2, true},  {1, 1, true},  // its tick is not looked at
        {0, 0.4, false},  // and the number is not rounded
        {-1, -1, true},   // nor looked up
        {7, 7, true},    {0, -1, false}, {0, 7, false},
    };
    for (const auto& row : table) {
        group = static_cast<std::int16_t>(row.group);
        record.Owner = row.owner;
        EXPECT_EQ(passes(), row.passes) << row.group << ' ' << row.owner;
    }
}

TEST_F(FilterDecision, AllGroupsAreTheTickedOnesWhicheverIsInView) {
    const struct {
        double owner;
        bool passes;
    } table[] = {
        {0, true},    {1, false},  {2, true},   {0.4, true},
        {0.6, false}, {1.5, true}, {0.5, true}, {3, false},  // the spare element
    };
    for (const int inView : {0, 1, 2})
        for (const auto& row : table) {
            group = static_cast<std::int16_t>(inView);
            record.Owner = row.owner;
            EXPECT_EQ(passes(), row.passes) << row.owner;
        }
    for (const double owner : {-1.0, 4.0, -0.6, 3.6, 32767.0}) {
        record.Owner = owner;
        EXPECT_EQ(failing(), failure::subscript) << owner;
    }
}

TEST_F(FilterDecision, EachRatingHasItsElement) {
    for (std::uint8_t off = 0; off <= 5; ++off) {
        masks.rated.fill(true);
        masks.rated[off] = false;
        for (std::uint8_t rating = 0; rating <= 5; ++rating) {
            record.Rated = rating;
            EXPECT_EQ(passes(), rating != off) << int{rating} << " without " << int{off};
        }
    }
    for (const int rating : {6, 255}) {
        record.Rated = rating;
        EXPECT_EQ(failing(), failure::subscript);
    }
}

TEST_F(FilterDecision, MasksThatWereNeverSetPassEveryRatingButTheLast) {
    for (std::uint8_t rating = 0; rating <= 5; ++rating) {
        record.Rated = rating;
        EXPECT_EQ(passes(), rating < 5);
    }
}

TEST_F(FilterDecision, VisitsAreHeldAgainstTheCount) {
    constexpr int most = std::numeric_limits<std::int32_t>::max();
    const struct {
        int mode;
        int count;
        int visited;
        bool passes;
    } table[] = {
        {maskOff, 3, 3, true},
        {maskOff, 3, 4, true},
        {maskOff, 3, 2, true},
        {maskMoreThan, 3, 4, true},
        {maskMoreThan, 3, 3, false},
        {maskMoreThan, 3, 2, false},
        {maskLessThan, 3, 2, true},
        {maskLessThan, 3, 3, false},
        {maskLessThan, 3, 4, false},
        {maskEqualTo, 3, 3, true},
        {maskEqualTo, 3, 2, false},
        {maskEqualTo, 3, 4, false},
        {maskMoreThan, -1, 0, true},
        {maskLessThan, -1, -2, true},
        {maskEqualTo, -1, -1, true},
        {maskMoreThan, 0, 0, false},
        {maskLessThan, 0, 0, false},
        {maskEqualTo, 0, 0, true},
        {maskMoreThan, 3, most, true},
        {maskEqualTo, 4, 65540, false},
        {4, 3, 4, true},
        {255, 3, 3, true},
    };
    for (const auto& row : table) {
        masks.visited = {row.mode, static_cast<std::int16_t>(row.count)};
        record.Visited = row.visited;
        EXPECT_EQ(passes(), row.passes) << row.mode << ' ' << row.count << ' ' << row.visited;
    }
}

// The two masks of dates, each over its own field and blind to the other's.
struct DateStep {
    const char* name;
    DateMask Masks::*mask;
    Date URLData::*date;
    Date URLData::*other;
};

const DateStep dateSteps[] = {
    {"accessed", &Masks::accessed, &URLData::LastAccesed, &URLData::Created},
    {"added", &Masks::added, &URLData::Created, &URLData::LastAccesed},
};

TEST_F(FilterDecision, EachDateHasAMaskOfItsOwn) {
    const Date none;
    const Date wednesday = dateFromCivil(2001, 3, 7, 23, 59, 59);
    const Date january = dateFromCivil(2001, 1, 31);
    const struct {
        DateMask mask;
        Date date;
        bool passes;
    } table[] = {
        {{maskOff, 7, 0}, none, true},
        {{maskOff, 7, 0}, january, true},
        {{maskEqualTo, 7, 0}, wednesday, true},
        {{maskEqualTo, 7, 0}, now, false},
        {{maskEqualTo, 1, 1}, wednesday, true},
        {{maskEqualTo, 1, 1}, now, false},
        {{maskEqualTo, 2, 2}, january, true},
        {{maskEqualTo, 2, 2}, wednesday, false},
        {{maskLessThan, 8, 0}, wednesday, true},
        {{maskLessThan, 7, 0}, wednesday, false},
        {{maskMoreThan, 7, 0}, january, true},
        {{maskMoreThan, 0, 0}, dateFromCivil(2001, 3, 15), false},
        {{4, 7, 0}, now, false},
        // No date at all passes no mask that is on; a date below zero is one.
        {{maskMoreThan, 7, 0}, none, false},
        {{maskLessThan, 7, 0}, none, false},
        {{maskEqualTo, 7, 0}, none, false},
        {{maskMoreThan, 7, 0}, Date{-5}, true},
        {{maskMoreThan, 7, 0}, Date{0.25}, true},
        // The day of date zero itself would be "Equal To" this many months ago.
        {{maskEqualTo, 1215, 2}, none, false},
        {{maskEqualTo, 1215, 2}, Date{0.25}, true},
    };
    for (const DateStep& step : dateSteps)
        for (const auto& row : table)
            for (const Date other : {none, now, january}) {
                masks = {};
                masks.*step.mask = row.mask;
                record.*step.date = row.date;
                record.*step.other = other;
                EXPECT_EQ(passes(), row.passes)
                    << step.name << ' ' << row.mask.mode << ' ' << row.mask.count << ' '
                    << row.mask.unit << ' ' << row.date.days;
            }
}

TEST_F(FilterDecision, TheTextIsFoundAnywhereInATitleOfAnyCase) {
    record.URL("http://server/");
    const struct {
        const char* mask;
        const char* title;
        bool passes;
    } table[] = {
        {"", "", true},
        {"", "any", true},
        {"ab", "xABx", true},
        {"AB", "xabx", true},
        {"aB", "Ab", true},
        {"ab", "a-b", false},
        {"a?b", "xa-bx", true},
        {"a?b", "ab", false},
        {"a*b", "x a...b x", true},
        {"#", "page 4", true},
        {"#", "page four #", false},
        {"[#]", "page four #", true},
        {"[x-z]", "..Y..", true},
        {"[x-z]", "abc", false},
        {"a[!a-z]b", "A-B", true},
        {"a[!a-z]b", "acb", false},
        {"server", "title", false},  // the address is not looked at
        {"e t", "the title", true},
        {" ", "title", false},
        {"\xe4", "\xc4pfel", true},  // letters beyond ASCII have cases too
    };
    for (const auto& row : table) {
        masks.text = row.mask;
        record.Name(row.title);
        EXPECT_EQ(passes(), row.passes) << row.mask << " in " << row.title;
    }
    for (const char* const open : {"[", "ab[", "[a-", "x[z-a]"}) {
        masks.text = open;
        EXPECT_EQ(failing(), failure::invalidPattern) << open;
    }
}

TEST_F(FilterDecision, OneFilterAnswersForAnyNumberOfRecords) {
    masks.text = "b";
    Filter all = filter();
    std::vector<bool> answers;
    for (const char* const title : {"abc", "a", "", "B", "bbbb"}) {
        record.Name(title);
        answers.push_back(all.passes(record));
    }
    EXPECT_EQ(answers, (std::vector<bool>{true, false, false, true, true}));
}

// The order of the steps ---------------------------------------------------------------

// A step's two ways to end the decision: an exclusion, and a failure with its number.
struct Step {
    const char* name;
    void (*exclude)(Decision&);
    void (*fail)(Decision&);  // null: the step has no failure
    int number;
};

// Counts back to before the calendar's beginning.
constexpr DateMask leavingTheCalendar{maskMoreThan, -32768, 2};
constexpr DateMask passingNothing{maskLessThan, 0, 0};

const std::vector<Step> steps{
    {"scope", [](Decision& of) { of.listAll = false, of.group = 2; }, nullptr, 0},
    {"group", [](Decision& of) { of.groups[0].Checked = false; },
     [](Decision& of) { of.record.Owner = -1; }, failure::subscript},
    {"rating", [](Decision& of) { of.masks.rated.fill(false); },
     [](Decision& of) { of.record.Rated = 6; }, failure::subscript},
    {"visited",
     [](Decision& of) {
         of.masks.visited = {maskMoreThan, 1};
     },
     nullptr, 0},
    {"accessed", [](Decision& of) { of.masks.accessed = passingNothing; },
     [](Decision& of) { of.masks.accessed = leavingTheCalendar; }, failure::invalidCall},
    {"added", [](Decision& of) { of.masks.added = passingNothing; },
     [](Decision& of) { of.masks.added = leavingTheCalendar; }, failure::invalidCall},
    {"text", [](Decision& of) { of.masks.text = "no such title"; },
     [](Decision& of) { of.masks.text = "["; }, failure::invalidPattern},
};

TEST(FilterOrder, EachStepAloneEndsTheDecision) {
    EXPECT_TRUE(Decision().passes());
    for (const Step& step : steps) {
        Decision excluded;
        step.exclude(excluded);
        EXPECT_FALSE(excluded.passes()) << step.name;
        if (step.fail == nullptr) continue;
        Decision failed;
        step.fail(failed);
        EXPECT_EQ(failed.failing(), step.number) << step.name;
    }
}

TEST(FilterOrder, NothingBehindTheStepThatExcludesIsLookedAt) {
    for (std::size_t excluding = 0; excluding < steps.size(); ++excluding)
        for (std::size_t failing = 0; failing < steps.size(); ++failing) {
            if (failing == excluding || steps[failing].fail == nullptr) continue;
            Decision decision;
            steps[excluding].exclude(decision);
            steps[failing].fail(decision);
            EXPECT_EQ(decision.failing(), failing < excluding ? steps[failing].number : 0)
                << steps[excluding].name << " excludes, " << steps[failing].name << " fails";
        }
}

TEST(FilterOrder, OfTwoFailuresTheEarlierStepsIsRaised) {
    for (std::size_t first = 0; first < steps.size(); ++first)
        for (std::size_t second = first + 1; second < steps.size(); ++second) {
            if (steps[first].fail == nullptr || steps[second].fail == nullptr) continue;
            Decision decision;
            steps[first].fail(decision);
            steps[second].fail(decision);
            EXPECT_EQ(decision.failing(), steps[first].number)
                << steps[first].name << ' ' << steps[second].name;
        }
}

}  // namespace
}  // namespace magpie
