// Any bytes as a hex date, and any number as a date to spell: what the rules say of the texts'
// characters holds, and a spelling that is long enough always reads back.
#include "store/hex_date.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "platform/runtime/failure.h"

namespace {

using namespace magpie;

void require(bool holds) {
    if (!holds) std::abort();
}

void readText(std::string_view text) {
    Date date;
    try {
        date = ConvertHexDate(text);
    } catch (const Failure& failed) {
        require(failed.number == failure::typeMismatch && text.size() >= 8);
        return;
    }
    require(text.size() >= 8 || date.days == 0);
    require(date.days >= 0 && date.days < 65536);
}

void spell(double days) {
    std::string text;
    try {
        text = GetHexDate({days});
    } catch (const Failure&) {
        return;
    }
    require(text.find_first_not_of("0123456789ABCDEF") == std::string::npos);
    const Date back = ConvertHexDate(text);
    // Five-digit days from 1927 to 2079 keep their day.
    if (text.size() >= 8 && days >= 10000 && days < 65535) {
        require(static_cast<std::int64_t>(back.days) == static_cast<std::int64_t>(days));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    readText({reinterpret_cast<const char*>(data), size});
    double days = 0;
    if (size >= sizeof days) {
        std::memcpy(&days, data, sizeof days);
        spell(days);
        // Most bit patterns are far from any date: bring the number among the ordinary ones.
        std::uint64_t bits = 0;
        std::memcpy(&bits, data, sizeof bits);
        spell(static_cast<double>(bits >> 11) / 9007199254740992.0 * 80000);
    }
    return 0;
}
