// Long journeys through the main window, each of hundreds of commands that a seed chooses. What
// store, list and controls have to show is known beside the program, and looked at after each.
#include "tests/behaviour/random_user.h"

namespace magpie {
namespace {

class RandomJourney : public RandomUser, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomJourney, LeavesStoreListAndControlsAsTheUserKnowsThem) {
    constexpr int deeds = 600;
    begin(GetParam());
    for (int done = 0; done < deeds && !HasFailure(); ++done) {
        act();
        SCOPED_TRACE("after deed " + std::to_string(done) + ", " + deed);
        expectAllAsKnown();
    }
    expectTheFileHoldsAll();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomJourney, testing::Range(1u, 11u));

}  // namespace
}  // namespace magpie
