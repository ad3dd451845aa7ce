#include "store/records.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

#include "tests/unit/runtime/failure_of.h"

namespace magpie {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> keysOf(URLDatas& records) {
    std::vector<std::string> keys;
    for (const URLData& record : records) keys.push_back(record.ID());
    return keys;
}

void add(URLDatas& records, int count) {
    for (int i = 0; i < count; ++i) records.Add("", "", 0);
}

TEST(Records, AnEmptyStoreEnumeratesNothing) {
    URLDatas records;
    EXPECT_EQ(records.Count(), 0);
    EXPECT_THAT(keysOf(records), ElementsAre());
    EXPECT_EQ(records.Add("n", "u", 0).ID(), "00001");
}

TEST(Records, AddGivesNameAddressAndOwnerAndLeavesTheRestZero) {
    URLDatas records;
    const URLData& record = records.Add("Front page", "http://server/", 2);
    EXPECT_EQ(record.Name(), "Front page");
    EXPECT_EQ(record.URL(), "http://server/");
    EXPECT_EQ(record.Owner, 2);
    EXPECT_EQ(record.LastAccesed.days, 0);
    EXPECT_EQ(record.Created.days, 0);
    EXPECT_EQ(record.Visited.value(), 0);
    EXPECT_EQ(record.Rated.value(), 0);
    EXPECT_EQ(record.Catagory.value(), 0);
    EXPECT_EQ(record.DebugID(), 0);
}

TEST(Records, KeysAreNotUsedAgainWhileARecordRemains) {
    URLDatas records;
    add(records, 3);
    records.Delete("00001");
    EXPECT_EQ(records.Add("", "", 0).ID(), "00004");
    EXPECT_THAT(keysOf(records), ElementsAre("00002", "00003", "00004"));
}

TEST(Records, KeysStartAgainAfterTheLastRecordIsDeleted) {
    URLDatas records;
    add(records, 3);
    for (const char* key : {"00003", "00001", "00002"}) records.Delete(key);
    EXPECT_EQ(records.Count(), 0);
    EXPECT_EQ(records.Add("", "", 0).ID(), "00001");
}

TEST(Records, KeysStartAgainAfterClear) {
    URLDatas records;
    add(records, 3);
    records.Clear();
    EXPECT_EQ(records.Count(), 0);
    EXPECT_THAT(keysOf(records), ElementsAre());
    EXPECT_EQ(failureOf([&] { (void)records.Item("00001"); }), failure::invalidCall);
    EXPECT_EQ(records.Add("", "", 0).ID(), "00001");
}

TEST(Records, TwoRecordsMayCarryTheSameNameAndAddress) {
    URLDatas records;
    records.Add("n", "u", 0);
    records.Add("n", "u", 0);
    EXPECT_THAT(keysOf(records), ElementsAre("00001", "00002"));
}

// By their texts -------------------------------------------------------------------------

// The keys of all records with these texts, as one search after the other finds them.
std::vector<std::string> found(URLDatas& records, std::string_view name, std::string_view url) {
    std::vector<std::string> keys;
    for (URLData* each = records.Find(name, url); each != nullptr;
         each = records.Find(name, url, each))
        keys.push_back(each->ID());
    return keys;
}

TEST(Records, AreFoundByTitleAndAddressInTheOrderOfTheCollection) {
    URLDatas records;
    for (const char* url : {"u", "v", "u", "U", "u"}) records.Add("n", url, 0);
    records.Add("N", "u", 0);
    EXPECT_THAT(found(records, "n", "u"), ElementsAre("00001", "00003", "00005"));
    EXPECT_THAT(found(records, "n", "v"), ElementsAre("00002"));
    EXPECT_THAT(found(records, "u", "n"), IsEmpty());
    EXPECT_THAT(found(records, "", ""), IsEmpty());
}

TEST(Records, AreFoundByTheTextsTheyHaveNow) {
    URLDatas records;
    add(records, 3);
    (void)records.Find("", "");
    records.Item(3).Name("new");
    records.Item(1).Name("new");
    records.Item(1).URL("address");
    records.Item(3).URL("address");
    EXPECT_THAT(found(records, "new", "address"), ElementsAre("00001", "00003"));
    records.Item(1).URL("");
    EXPECT_THAT(found(records, "new", "address"), ElementsAre("00003"));
    EXPECT_THAT(found(records, "new", ""), ElementsAre("00001"));
}

TEST(Records, AreFoundAsLongAsTheyAreThere) {
    URLDatas records;
    for (int i = 0; i < 3; ++i) records.Add("n", "u", 0);
    EXPECT_THAT(found(records, "n", "u"), ElementsAre("00001", "00002", "00003"));
    records.Delete("00002");
    records.Add("n", "u", 0);
    EXPECT_THAT(found(records, "n", "u"), ElementsAre("00001", "00003", "00004"));
    records.Clear();
    EXPECT_THAT(found(records, "n", "u"), IsEmpty());
    records.Add("n", "u", 0);
    EXPECT_THAT(found(records, "n", "u"), ElementsAre("00001"));
}

TEST(Records, ADeletedRecordMayGetOtherTextsWhileAWalkKeepsIt) {
    URLDatas records;
    records.Add("n", "u", 0);
    records.Add("n", "u", 0);
    (void)records.Find("n", "u");
    for (URLData& record : records) {
        if (record.ID() != "00001") continue;
        records.Delete(record.ID());
        record.Name("m");
        EXPECT_EQ(record.Name(), "m");
    }
    EXPECT_THAT(found(records, "m", "u"), IsEmpty());
    EXPECT_THAT(found(records, "n", "u"), ElementsAre("00002"));
}

TEST(Records, AnIdIsWrittenOnce) {
    URLData record;
    record.ID("00007");
    record.ID("00008");
    EXPECT_EQ(record.ID(), "00007");
}

TEST(Records, AnEmptyTextCountsAsTheOneWritingOfTheId) {
    URLData record;
    record.ID("");
    record.ID("00008");
    EXPECT_EQ(record.ID(), "");
}

TEST(Records, AKeyMatchesAsTheTextGiven) {
    URLDatas records;
    add(records, 12);
    EXPECT_EQ(&records.Item("00012"), &records.Item(12));
    for (const char* key : {"", "1", "0001", "000001", "00000", "00013", "0000a", " 0001", "-0001",
                            "+0001", "1E+01", "99999"}) {
        EXPECT_EQ(failureOf([&] { (void)records.Item(key); }), failure::invalidCall) << key;
        EXPECT_EQ(failureOf([&] { records.Delete(key); }), failure::invalidCall) << key;
    }
    EXPECT_EQ(records.Count(), 12);
}

TEST(Records, ADeletedKeyIsUnknown) {
    URLDatas records;
    add(records, 2);
    records.Delete("00001");
    EXPECT_EQ(failureOf([&] { (void)records.Item("00001"); }), failure::invalidCall);
}

TEST(Records, APositionCountsTheRecordsPresent) {
    URLDatas records;
    add(records, 4);
    records.Delete("00002");
    EXPECT_EQ(records.Item(1).ID(), "00001");
    EXPECT_EQ(records.Item(2).ID(), "00003");
    records.Delete(1);
    EXPECT_EQ(records.Item(1).ID(), "00003");
    for (const int position : {-1, 0, 3}) {
        EXPECT_EQ(failureOf([&] { (void)records.Item(position); }), failure::subscript) << position;
        EXPECT_EQ(failureOf([&] { records.Delete(position); }), failure::subscript) << position;
    }
}

TEST(Records, APositionIsOutOfRangeInAnEmptyStore) {
    URLDatas records;
    EXPECT_EQ(failureOf([&] { (void)records.Item(1); }), failure::subscript);
}

TEST(Records, DeletingByTheRecordsOwnIdIsSafe) {
    URLDatas records;
    add(records, 2);
    records.Delete(records.Item(1).ID());
    EXPECT_THAT(keysOf(records), ElementsAre("00002"));
}

TEST(Records, TheCounterOverflowsPast32767AndAddsNothing) {
    URLDatas records;
    add(records, 32767);
    EXPECT_EQ(records.Item(32767).ID(), "32767");
    EXPECT_EQ(failureOf([&] { records.Add("", "", 0); }), failure::overflow);
    records.Delete("00001");
    EXPECT_EQ(failureOf([&] { records.Add("", "", 0); }), failure::overflow);
    EXPECT_EQ(records.Count(), 32766);
    records.Clear();
    EXPECT_EQ(records.Add("", "", 0).ID(), "00001");
}

TEST(Records, AWalkVisitsEveryRecordThoughEachVisitDeletesIt) {
    URLDatas records;
    add(records, 5);
    std::vector<std::string> visited;
    for (const URLData& record : records) {
        records.Delete(record.ID());
        visited.push_back(record.ID());  // the record's memory outlives its visit
    }
    EXPECT_THAT(visited, ElementsAre("00001", "00002", "00003", "00004", "00005"));
    EXPECT_EQ(records.Count(), 0);
    EXPECT_EQ(records.Add("", "", 0).ID(), "00001");
}

TEST(Records, AWalkPassesOverARecordDeletedAheadOfIt) {
    URLDatas records;
    add(records, 4);
    std::vector<std::string> visited;
    for (const URLData& record : records) {
        if (record.ID() == "00001") {
            records.Delete("00002");
            records.Delete("00004");
        }
        visited.push_back(record.ID());
    }
    EXPECT_THAT(visited, ElementsAre("00001", "00003"));
}

TEST(Records, AWalkReachesRecordsAddedMeanwhile) {
    URLDatas records;
    add(records, 1);
    int visits = 0;
    for ([[maybe_unused]] const URLData& record : records) {
        if (++visits < 4) add(records, 1);
    }
    EXPECT_EQ(visits, 4);
}

TEST(Records, AWalkEndsWhenTheStoreIsClearedAndFilledAgain) {
    URLDatas records;
    add(records, 2);
    std::vector<std::string> visited;
    for (const URLData& record : records) {
        records.Clear();
        add(records, 5);
        visited.push_back(record.Name() + record.ID());
    }
    EXPECT_THAT(visited, ElementsAre("00001"));
    EXPECT_EQ(records.Count(), 5);
}

TEST(Records, WalksMayBeNested) {
    URLDatas records;
    add(records, 3);
    int pairs = 0;
    for (const URLData& outer : records) {
        for (const URLData& inner : records) {
            ++pairs;
            if (&inner == &outer) records.Delete(inner.ID());
        }
    }
    EXPECT_EQ(pairs, 3 + 2 + 1);
}

TEST(Records, TheRootMakesItsCollectionOnceAndKeepsIt) {
    URLBlock block;
    URLDatas& records = block.URLDatas();
    add(records, 1);
    EXPECT_EQ(&block.URLDatas(), &records);
    EXPECT_EQ(block.URLDatas().Count(), 1);
    EXPECT_EQ(block.DebugID(), 0);
    EXPECT_EQ(records.DebugID(), 0);
    EXPECT_EQ(IDebug{}.DebugID(), 0);
}

// Any run of additions and deletions leaves what a plain list of keys would hold.
TEST(Records, BehaveAsAListOfKeys) {
    std::mt19937 random(7);
    URLDatas records;
    std::vector<std::string> model;
    int counter = 0;
    for (int step = 0; step < 20000; ++step) {
        const auto roll = random() % 100;
        if (model.empty() || roll < (step / 5000 % 2 == 0 ? 60U : 35U)) {
            std::string key = std::to_string(++counter);
            key.insert(0, 5 - key.size(), '0');
            EXPECT_EQ(records.Add("", "", 0).ID(), key);
            model.push_back(key);
        } else {
            const auto at = static_cast<std::ptrdiff_t>(random() % model.size());
            const auto position = static_cast<std::int32_t>(at) + 1;
            const std::string key = model[static_cast<std::size_t>(at)];
            EXPECT_EQ(records.Item(position).ID(), key);
            EXPECT_EQ(&records.Item(key), &records.Item(position));
            if (roll % 2 == 0) {
                records.Delete(position);
            } else {
                records.Delete(key);
            }
            model.erase(model.begin() + at);
            if (model.empty()) counter = 0;
        }
        ASSERT_EQ(records.Count(), static_cast<std::int32_t>(model.size()));
    }
    EXPECT_EQ(keysOf(records), model);
}

}  // namespace
}  // namespace magpie
