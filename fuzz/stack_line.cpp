// Any bytes as the lines of a stack file: no line may do more than add one record or one group,
// and what is written back reads as the same.
#include "store/stack_line.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/state.h"
#include "platform/runtime/failure.h"

namespace {

using namespace magpie;

void require(bool holds) {
    if (!holds) std::abort();
}

void parse(std::string_view line) {
    try {
        ParseStackLine(line);
    } catch (const Failure&) {
    }
}

void parseWatched(std::string_view line) {
    const std::int32_t records = uBlock.URLDatas().Count();
    const std::int32_t groups = IDXList.uBound();
    parse(line);
    const std::int32_t added = uBlock.URLDatas().Count() - records + (IDXList.uBound() - groups);
    require(added == 0 || added == 1);
    require((uBlock.URLDatas().Count() > records) ==
            (line.find(stackSeparator) != std::string_view::npos));
}

// A record that was written comes back with its texts and numbers. Its dates may not: the
// spelling loses.
void writeAndReadBack() {
    std::string lines;
    const std::int32_t records = uBlock.URLDatas().Count();
    for (std::int32_t i = 1; i <= records; ++i) {
        const URLData& record = uBlock.URLDatas().Item(i);
        lines.clear();
        try {
            appendEntryLine(lines, record);
        } catch (const Failure&) {
            require(lines.empty());
            continue;
        }
        parse(std::string_view(lines).substr(0, lines.size() - 2));
        const URLData& back = uBlock.URLDatas().Item(uBlock.URLDatas().Count());
        require(back.Name() == record.Name() && back.URL() == record.URL());
        require(back.Visited == record.Visited && back.Rated == record.Rated &&
                back.Catagory == record.Catagory);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    uBlock.URLDatas().Clear();
    IDXList.reset();
    IDXCount = 0;
    std::string_view text(reinterpret_cast<const char*>(data), size);
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        parseWatched(line);
        text.remove_prefix(line.size() == text.size() ? line.size() : line.size() + 1);
        if (uBlock.URLDatas().Count() > 10000) break;
    }
    writeAndReadBack();
    return 0;
}
