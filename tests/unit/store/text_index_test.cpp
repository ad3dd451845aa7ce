#include "store/text_index.h"

#include <gmock/gmock.h>
#include <map>
#include <random>
#include <vector>

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Numbers of one slot, as far as there are slots.
constexpr std::size_t sameSlot = 1 << 20;

std::vector<std::int32_t> placesOf(const TextIndex& index, std::size_t number) {
    std::vector<std::int32_t> places;
    for (std::int32_t place = index.first(number); place != TextIndex::nowhere;
         place = index.firstBehind(place, number))
        places.push_back(place);
    return places;
}

TEST(TextIndex, PlacesOfANumberStandInAscendingOrder) {
    TextIndex index;
    for (const std::int32_t place : {3, 9, 0, 4, 12}) index.add(place, 7);
    EXPECT_THAT(placesOf(index, 7), ElementsAre(0, 3, 4, 9, 12));
}

TEST(TextIndex, AnotherNumberOfTheSameSlotIsPassedOver) {
    TextIndex index;
    for (const std::int32_t place : {0, 2, 4}) index.add(place, 7);
    for (const std::int32_t place : {1, 3}) index.add(place, 7 + sameSlot);
    EXPECT_THAT(placesOf(index, 7), ElementsAre(0, 2, 4));
    EXPECT_THAT(placesOf(index, 7 + sameSlot), ElementsAre(1, 3));
}

TEST(TextIndex, ThePlaceToSearchBehindMayHaveAnotherNumber) {
    TextIndex index;
    for (const std::int32_t place : {1, 5}) index.add(place, 7);
    index.add(3, 8);
    EXPECT_EQ(index.firstBehind(3, 7), 5);
    EXPECT_EQ(index.firstBehind(5, 8), TextIndex::nowhere);
}

TEST(TextIndex, ARemovedPlaceMayComeBackWithAnotherNumber) {
    TextIndex index;
    for (const std::int32_t place : {0, 1, 2}) index.add(place, 7);
    for (const std::int32_t place : {1, 0, 2}) index.remove(place);
    EXPECT_THAT(placesOf(index, 7), IsEmpty());
    index.add(1, 8);
    EXPECT_THAT(placesOf(index, 8), ElementsAre(1));
}

TEST(TextIndex, IsEmptyBeforeTheFirstPlaceAndAfterBeingCleared) {
    TextIndex index;
    EXPECT_EQ(index.first(7), TextIndex::nowhere);
    index.add(0, 7);
    index.clear();
    EXPECT_EQ(index.first(7), TextIndex::nowhere);
}

TEST(TextIndex, AgreesWithASearchThroughAllPlacesAfterAnyChanges) {
    std::mt19937 random(1);
    TextIndex index;
    std::map<std::int32_t, std::size_t> numbers;
    for (int change = 0; change < 2000; ++change) {
        const auto place = static_cast<std::int32_t>(random() % 60);
        if (numbers.contains(place)) {
            index.remove(place);
            numbers.erase(place);
        } else {
            const std::size_t number = random() % 4 * (sameSlot / 2);
            index.add(place, number);
            numbers[place] = number;
        }
        for (const std::size_t number : {std::size_t{0}, sameSlot}) {
            std::vector<std::int32_t> wanted;
            for (const auto& [each, its] : numbers)
                if (its == number) wanted.push_back(each);
            ASSERT_EQ(placesOf(index, number), wanted);
        }
    }
}

}  // namespace
}  // namespace magpie
