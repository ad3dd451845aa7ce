// Import checks: what holds for everything that an import hands over, whatever it has read.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include "companion/import/import_sink.h"
#include "companion/import/unicode.h"

namespace magpie::fuzz {

inline void require(bool holds) {
    if (!holds) std::abort();
}

inline bool hasControl(std::string_view text) {
    for (const char byte : text) {
        if (static_cast<unsigned char>(byte) < ' ' || byte == '\x7F') return true;
    }
    return false;
}

inline bool isPrintableAscii(std::string_view text) {
    for (const char byte : text) {
        if (byte < ' ' || byte > '~') return false;
    }
    return true;
}

// Nothing that the stack file would cut; a link always in a group, with title and address.
class CheckingSink : public ImportSink {
public:
    bool NewGroup(const std::string& name) override {
        require(!name.empty() && !hasControl(name) && name.find('+') == std::string::npos);
        require(!full_ && (groups == 0 || linksInGroup != 0));
        if (utf8) require(isUtf8(name) && name.size() <= 4096);
        ++groups;
        linksInGroup = 0;
        return true;
    }
    bool BungURL(const std::string& title, const std::string& url) override {
        require(!full_ && groups != 0 && !title.empty() && !hasControl(title));
        require(!url.empty() && isPrintableAscii(url) && url.front() != ' ');
        if (utf8) require(isUtf8(title));
        full_ = links == room;
        if (full_) return false;
        if (linksInGroup == 0) ++groupsWithLinks;
        ++linksInGroup;
        ++links;
        return true;
    }
    void storeLastRootOwner() override { require(groups == 1 && linksInGroup == 0); }

    std::size_t room = static_cast<std::size_t>(-1);  // for so many links
    bool utf8 = false;                                // what is handed over must be that
    std::size_t groups = 0;
    std::size_t groupsWithLinks = 0;
    std::size_t links = 0;
    std::size_t linksInGroup = 0;

private:
    bool full_ = false;
};

}  // namespace magpie::fuzz
