#include "store/records_by_group.h"

#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> namesOf(const RecordsByGroup& sorted, std::int32_t group) {
    std::vector<std::string> names;
    for (const URLData* record : sorted.of(group)) names.push_back(record->Name());
    return names;
}

TEST(RecordsByGroup, EachGroupHasItsRecordsInCollectionOrder) {
    URLDatas records;
    records.Add("a", "", 1);
    records.Add("b", "", 0);
    records.Add("c", "", 1);
    records.Add("d", "", 3);
    const RecordsByGroup sorted(records, 4);
    EXPECT_THAT(namesOf(sorted, 0), ElementsAre("b"));
    EXPECT_THAT(namesOf(sorted, 1), ElementsAre("a", "c"));
    EXPECT_THAT(namesOf(sorted, 2), IsEmpty());
    EXPECT_THAT(namesOf(sorted, 3), ElementsAre("d"));
}

TEST(RecordsByGroup, AnOwnerThatIsNoPositionIsInNoGroup) {
    URLDatas records;
    for (const double owner :
         {-1.0, 1.5, 2.0, 0.9999999, 1e300, -0.5, std::numeric_limits<double>::quiet_NaN(),
          std::numeric_limits<double>::infinity()}) {
        records.Add("stray", "", owner);
    }
    records.Add("minus zero", "", -0.0);
    const RecordsByGroup sorted(records, 2);
    EXPECT_THAT(namesOf(sorted, 0), ElementsAre("minus zero"));
    EXPECT_THAT(namesOf(sorted, 1), IsEmpty());
}

TEST(RecordsByGroup, NoGroupsHaveNoRecords) {
    URLDatas records;
    records.Add("a", "", 0);
    const RecordsByGroup sorted(records, 0);
    EXPECT_EQ(records.Count(), 1);
}

TEST(RecordsByGroup, EqualsAWalkOverAllRecordsForEachGroup) {
    std::mt19937 random(5);
    URLDatas records;
    for (int i = 0; i < 2000; ++i) {
        records.Add(std::to_string(i), "", static_cast<double>(random() % 30) / 2 - 1);
    }
    for (int i = 1; i < 2000; i += 7)
        records.Delete(1 + static_cast<std::int32_t>(random() % 1000));
    const RecordsByGroup sorted(records, 10);
    for (std::int32_t group = 0; group < 10; ++group) {
        std::vector<std::string> walked;
        for (const URLData& record : records) {
            if (record.Owner == group) walked.push_back(record.Name());
        }
        EXPECT_EQ(namesOf(sorted, group), walked) << group;
    }
}

}  // namespace
}  // namespace magpie
