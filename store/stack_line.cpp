#include "store/stack_line.h"

#include <array>
#include <cstddef>

#include "core/state.h"
#include "platform/runtime/number_text.h"
#include "platform/runtime/split.h"
#include "platform/services/clock.h"
#include "store/groups.h"
#include "store/hex_date.h"

namespace magpie {

namespace {

constexpr char groupMark = '+';
constexpr std::string_view lineEnd = "\r\n";

// The order of the fields in an entry line, which is not that of the record.
enum Field : std::size_t { url, name, lastAccesed, created, visited, catagory, rated, fields };

using Parts = std::array<std::string_view, fields>;

void parseGroupLine(std::string_view line) {
    if (line.empty() || line.front() != groupMark) return;
    line.remove_prefix(1);
    NewCatagory(line.substr(0, line.find(groupMark)));
}

// An entry that has lost its creation date was created now, and its last visit goes with it.
void repairDates(URLData& record) {
    if (record.Created.days != 0) return;
    record.Created = now();
    record.LastAccesed = {};
}

// The numbers as the writer prints them, up to nine plain digits, are read on the spot; any other
// spelling takes the road of a general number.
double numberIn(std::string_view text) {
    constexpr std::size_t mostDigits = 9;
    if (text.empty() || text.size() > mostDigits) return numberOf(text);
    std::int32_t number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return numberOf(text);
        number = number * 10 + (digit - '0');
    }
    return number;
}

void readFields(URLData& record, const Parts& parts) {
    record.LastAccesed = ConvertHexDate(parts[lastAccesed]);
    record.Created = ConvertHexDate(parts[created]);
    repairDates(record);
    record.Visited = numberIn(parts[visited]);
    record.Catagory = numberIn(parts[catagory]);
    record.Rated = numberIn(parts[rated]);
}

void appendNumber(std::string& text, std::int32_t number) {
    NumberBuffer buffer;
    text += stackSeparator;
    text += integerText(number, buffer);
}

}  // namespace

void ParseStackLine(std::string_view line) {
    Parts parts;
    const std::size_t count = splitInto(parts, line, stackSeparator);
    if (count < 2) {
        parseGroupLine(line);
        return;
    }
    URLData& record = uBlock.URLDatas().Add(parts[name], parts[url], IDXList.uBound() - 1);
    if (count == fields) {
        readFields(record, parts);
    } else {
        repairDates(record);
    }
}

void appendGroupLine(std::string& text, const IDXEntry& group) {
    text += groupMark;
    text += group.Name;
    text += lineEnd;
}

void appendEntryLine(std::string& text, const URLData& record) {
    NumberBuffer lastAccesedBuffer;
    NumberBuffer createdBuffer;
    const std::string_view lastAccesedText = GetHexDate(record.LastAccesed, lastAccesedBuffer);
    const std::string_view createdText = GetHexDate(record.Created, createdBuffer);

    text += record.URL();
    text += stackSeparator;
    text += record.Name();
    text += stackSeparator;
    text += lastAccesedText;
    text += stackSeparator;
    text += createdText;
    appendNumber(text, record.Visited);
    appendNumber(text, record.Catagory);
    appendNumber(text, record.Rated);
    text += lineEnd;
}

}  // namespace magpie
