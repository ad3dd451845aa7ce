// BookmarkFixture: a bookmark file's bytes and what an import makes of them.
#pragma once

#include <string>
#include <vector>

#include "companion/import/import.h"
#include "tests/unit/companion/memory_files.h"
#include "tests/unit/companion/recording_sink.h"

namespace magpie {

struct Imported {
    std::vector<std::string> events;
    ImportCounts counts;
};

inline Imported importPage(const std::string& bytes, const ImportOptions& options = {}) {
    MemoryFiles files;
    files.file("/page.htm", bytes);
    RecordingSink sink;
    const ImportCounts counts = importBookmarkFile(files, "/page.htm", options, sink);
    return {sink.events, counts};
}

// The events of a page in one line.
inline std::string eventsOf(const std::string& bytes) {
    std::string text;
    for (const std::string& event : importPage(bytes).events) {
        if (!text.empty()) text += "; ";
        text += event;
    }
    return text;
}

}  // namespace magpie
