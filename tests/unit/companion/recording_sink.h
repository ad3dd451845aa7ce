// RecordingSink: an import's events as lines, "+name" for a group and "title|address" for a link.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "companion/import/import_sink.h"

namespace magpie {

class RecordingSink : public ImportSink {
public:
    bool NewGroup(const std::string& name) override {
        if (events.size() >= room) return false;
        events.push_back("+" + name);
        return true;
    }
    bool BungURL(const std::string& title, const std::string& url) override {
        if (events.size() >= room) return false;
        events.push_back(std::string(title).append("|").append(url));
        return true;
    }
    void storeLastRootOwner() override { rootAt.push_back(events.size()); }

    std::vector<std::string> events;
    std::vector<std::size_t> rootAt;  // how many events were there at each storeLastRootOwner
    std::size_t room = std::numeric_limits<std::size_t>::max();
};

}  // namespace magpie
