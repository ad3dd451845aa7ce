// Hand-over: what an import finds goes to the sink through here, group by group. A group begins
// with its first link, so that folders without links make none; the first thing that the sink
// does not take is the last that it is asked.
#pragma once

#include <string>
#include <string_view>

#include "companion/import/host_text.h"
#include "companion/import/import_counts.h"
#include "companion/import/import_sink.h"

namespace magpie {

inline constexpr std::string_view betweenFolders = " - ";

class HandOver {
public:
    HandOver(ImportSink& sink, const HostText& texts) : sink_(sink), texts_(texts) {}

    // The links from now on lie in a folder, or, at the root, in none. Names are UTF-8.
    // The name must stay good until the last link of it.
    void enterRoot(std::string_view groupName) { enter(groupName, true); }
    void enterFolder(std::string_view groupName) { enter(groupName, false); }

    // A link; one without a title is called by its address. One whose address is blank is counted
    // as without.
    void link(std::string_view title, std::string_view address);

    void skipWithoutAddress() { ++counts_.withoutAddress; }
    void skipUnreadable() { ++counts_.unreadable; }

    [[nodiscard]] const ImportCounts& counts() const { return counts_; }

private:
    void enter(std::string_view groupName, bool root);
    void skipWithoutRoom() { ++counts_.withoutRoom; }
    bool beginGroup();

    ImportSink& sink_;
    const HostText& texts_;
    std::string_view groupName_;
    bool root_ = true;
    bool begun_ = false;    // the sink has the group
    bool counted_ = false;  // and a link of it
    bool full_ = false;
    ImportCounts counts_;
};

// The name of a folder's group: those of the folders around it and its own. A folder without a
// name is given one. Of very long names the ends are left out, as the names of folders in folders
// would be longer than all the file.
[[nodiscard]] std::string nameInFolder(std::string_view outer, std::string_view inner);
void appendFolder(std::string& name, std::string_view inner);

}  // namespace magpie
