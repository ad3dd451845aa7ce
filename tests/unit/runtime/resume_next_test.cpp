#include "platform/runtime/resume_next.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

TEST(ResumeNext, RunsTheStatementsInOrderAndPassesOverTheFailingOne) {
    std::string trace;
    ResumeNext([&] { trace += 'a'; },
               [&] {
                   trace += 'b';
                   throw Failure{failure::typeMismatch};
               },
               [&] { trace += 'c'; });
    EXPECT_EQ(trace, "abc");
}

TEST(ResumeNext, KeepsTheOldValueOfAFailingAssignment) {
    int target = 7;
    ResumeNext([&] { target = []() -> int { throw Failure{failure::overflow}; }(); });
    EXPECT_EQ(target, 7);
}

TEST(ResumeNext, LetsAnyOtherExceptionLeaveTheRun) {
    bool reached = false;
    EXPECT_THROW(ResumeNext([] { throw std::runtime_error("a bug"); }, [&] { reached = true; }),
                 std::runtime_error);
    EXPECT_FALSE(reached);
}

TEST(ResumeNext, TellsTheObserverAfterEachFailingStatementAndBeforeTheNext) {
    std::vector<int> seen;
    ResumeNextNoting([&](const Failure& failed) { seen.push_back(failed.number); },
                     [] { throw Failure{failure::fileNotFound}; }, [&] { seen.push_back(0); },
                     [] { throw Failure{failure::subscript}; });
    EXPECT_EQ(seen, (std::vector{failure::fileNotFound, 0, failure::subscript}));
}

TEST(ResumeNext, LetsAFailureOfTheObserverOut) {
    const auto run = [] {
        ResumeNextNoting([](const Failure&) { throw Failure{failure::objectNotSet}; },
                         [] { throw Failure{failure::overflow}; });
        return 0;
    };
    EXPECT_EQ(failureOf(run), failure::objectNotSet);
}

TEST(ResumeNext, NestsSoThatTheInnerRunKeepsItsFailures) {
    int outer = 0;
    ResumeNextNoting([&](const Failure&) { ++outer; },
                     [] { ResumeNext([] { throw Failure{failure::overflow}; }); });
    EXPECT_EQ(outer, 0);
}

TEST(TrueOrFailing, AnswersTheConditionAndFallsIntoTheBlockWhenItFails) {
    EXPECT_TRUE(trueOrFailing([] { return true; }));
    EXPECT_FALSE(trueOrFailing([] { return false; }));
    EXPECT_TRUE(trueOrFailing([]() -> bool { throw Failure{failure::typeMismatch}; }));
    EXPECT_THROW(
        static_cast<void>(trueOrFailing([]() -> bool { throw std::logic_error("a bug"); })),
        std::logic_error);
}

TEST(TrueOrFailing, TellsTheObserverOnlyWhenTheConditionFails) {
    int seen = 0;
    const auto note = [&](const Failure& failed) { seen = failed.number; };
    EXPECT_FALSE(trueOrFailingNoting(note, [] { return false; }));
    EXPECT_EQ(seen, 0);
    EXPECT_TRUE(trueOrFailingNoting(note, []() -> bool { throw Failure{failure::subscript}; }));
    EXPECT_EQ(seen, failure::subscript);
}

TEST(Failure, HasATextOfItsOwnForEveryNamedNumber) {
    const std::string unnamed = Failure{-1}.what();
    std::vector<std::string> texts;
    for (const int number :
         {5, 6, 9, 13, 52, 53, 58, 61, 62, 70, 75, 76, 91, 93, 282, 285, 286, 340, 429, 457, 481}) {
        const std::string text = Failure{number}.what();
        EXPECT_NE(text, unnamed) << number;
        for (const std::string& other : texts) EXPECT_NE(text, other) << number;
        texts.push_back(text);
    }
}

}  // namespace
}  // namespace magpie
