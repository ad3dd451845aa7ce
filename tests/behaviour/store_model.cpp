#include "tests/behaviour/store_model.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "core/state.h"
#include "platform/services/clock.h"
#include "store/hex_date.h"
#include "store/records.h"

namespace magpie {

namespace {

Date throughTheFile(Date date) {
    return date.days == 0 ? Date{} : ConvertHexDate(GetHexDate(date));
}

StoreModel::Entry seen(const URLData& record) {
    return {record.ID(),          record.Name(),           record.URL(),   0,
            record.Rated.value(), record.Catagory.value(), record.Visited, record.Created,
            record.LastAccesed};
}

void expectSame(const StoreModel::Entry& wanted, const URLData& record) {
    const StoreModel::Entry found = seen(record);
    SCOPED_TRACE("entry " + wanted.key);
    EXPECT_EQ(found.key, wanted.key);
    EXPECT_EQ(found.name, wanted.name);
    EXPECT_EQ(found.url, wanted.url);
    EXPECT_EQ(record.Owner, wanted.group);
    EXPECT_EQ(found.rated, wanted.rated);
    EXPECT_EQ(found.catagory, wanted.catagory);
    EXPECT_EQ(found.visited, wanted.visited);
    EXPECT_EQ(found.created.days, wanted.created.days);
    EXPECT_EQ(found.accessed.days, wanted.accessed.days);
}

}  // namespace

StoreModel::Entry& StoreModel::add(const std::string& name, const std::string& url, int group,
                                   Date created) {
    Entry& entry = entries.emplace_back();
    entry.key = nextKey();
    entry.name = name;
    entry.url = url;
    entry.group = group;
    entry.created = created;
    return entry;
}

StoreModel::Entry& StoreModel::at(const std::string& key) {
    return *std::find_if(entries.begin(), entries.end(),
                         [&](const Entry& entry) { return entry.key == key; });
}

bool StoreModel::holds(const std::string& key) const {
    return std::any_of(entries.begin(), entries.end(),
                       [&](const Entry& entry) { return entry.key == key; });
}

// The keys begin anew with an empty store.
void StoreModel::remove(const std::string& key) {
    std::erase_if(entries, [&](const Entry& entry) { return entry.key == key; });
    if (entries.empty()) keys_ = 0;
}

void StoreModel::addGroup(const std::string& name) {
    groups.push_back(name);
    ++groupsMade;
}

void StoreModel::removeGroup(int group) {
    const bool anyGoes =
        std::erase_if(entries, [&](const Entry& entry) { return entry.group == group; }) > 0;
    if (anyGoes && entries.empty()) keys_ = 0;
    for (Entry& entry : entries)
        if (entry.group > group) --entry.group;
    groups.erase(groups.begin() + group);
}

// A "+" inside a group's name ends it when the line is read.
void StoreModel::save() {
    if (entries.empty()) return;
    saved_.clear();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        Saved& saved = saved_.emplace_back();
        saved.group = groups[group].substr(0, groups[group].find('+'));
        for (Entry entry : entries) {
            if (entry.group != static_cast<int>(group)) continue;
            entry.created = throughTheFile(entry.created);
            entry.accessed = throughTheFile(entry.accessed);
            saved.entries.push_back(entry);
        }
    }
    changes = 0;
}

// An entry whose date the file has lost was made now.
void StoreModel::load() {
    groups.clear();
    entries.clear();
    groupsMade = 0;
    keys_ = 0;
    changes = 0;
    for (const Saved& saved : saved_) {
        addGroup(saved.group);
        for (Entry entry : saved.entries) {
            entry.key = nextKey();
            entry.group = static_cast<int>(groups.size()) - 1;
            if (entry.created.days == 0) {
                entry.created = now();
                entry.accessed = {};
            }
            entries.push_back(entry);
        }
    }
}

void StoreModel::expectStore() const {
    EXPECT_EQ(urlsDirty, changes);
    EXPECT_EQ(IDXCount, groupsMade);
    ASSERT_EQ(IDXList.uBound(), static_cast<int>(groups.size()));
    for (std::int32_t i = 0; i < IDXList.uBound(); ++i) {
        EXPECT_EQ(IDXList[i].Name, groups[static_cast<std::size_t>(i)]);
        EXPECT_EQ(IDXList[i].GroupID, i);
    }
    ASSERT_EQ(uBlock.URLDatas().Count(), static_cast<int>(entries.size()));
    std::size_t at = 0;
    for (const URLData& record : uBlock.URLDatas()) expectSame(entries[at++], record);
}

std::string StoreModel::nextKey() {
    const std::string digits = std::to_string(++keys_);
    return std::string(5 - digits.size(), '0') + digits;
}

}  // namespace magpie
