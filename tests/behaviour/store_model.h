// StoreModel: what the store has to hold after what a user has done, written down in the
// plainest way beside the program. Groups keep their positions: whoever removes one loads the
// file again before making another.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/runtime/date.h"

namespace magpie {

class StoreModel {
public:
    struct Entry {
        std::string key;
        std::string name;
        std::string url;
        int group = 0;
        int rated = 0;
        int catagory = 0;
        int visited = 0;
        Date created;
        Date accessed;
    };

    std::vector<std::string> groups;
    int groupsMade = 0;          // since the last load
    std::vector<Entry> entries;  // in collection order
    int changes = 0;             // not saved yet

    // The entry is the newest one then.
    Entry& add(const std::string& name, const std::string& url, int group, Date created);
    Entry& at(const std::string& key);
    bool holds(const std::string& key) const;
    void remove(const std::string& key);

    void addGroup(const std::string& name);
    // With its entries; those of later groups move down with them.
    void removeGroup(int group);

    // What a save writes, as far as the file can tell, and what loading it again makes of the
    // store. Saving an empty store does nothing.
    void save();
    void load();

    // Fails the test where the program's store is another.
    void expectStore() const;

private:
    struct Saved {
        std::string group;
        std::vector<Entry> entries;
    };

    std::string nextKey();

    int keys_ = 0;
    std::vector<Saved> saved_;
};

}  // namespace magpie
