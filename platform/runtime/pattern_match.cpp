// The match of a pattern that is used once, read as it goes.
#include "platform/runtime/pattern.h"
#include "platform/runtime/pattern_list.h"

namespace magpie {

namespace {

void requireValid(std::string_view pattern) {
    std::size_t at = 0;
    while ((at = pattern.find('[', at)) != std::string_view::npos) {
        const PatternList list(pattern, at);
        list.eachRange([](PatternRange) { return true; });
        at = list.end();
    }
}

// `at` moved past lists that stand for nothing.
std::size_t skipEmptyLists(std::string_view pattern, std::size_t at) {
    while (pattern.substr(at).starts_with("[]")) at += 2;
    return at;
}

// Whether the byte matches what stands at `at`, which is not a star; `at` moves behind it then.
bool takes(std::string_view pattern, std::size_t& at, char byte) {
    std::size_t next = at + 1;
    bool taken = false;
    switch (pattern[at]) {
        case '?': taken = true; break;
        case '#': taken = byte >= '0' && byte <= '9'; break;
        case '[': {
            const PatternList list(pattern, at);
            next = list.end();
            taken = list.matches(static_cast<unsigned char>(byte));
            break;
        }
        default: taken = pattern[at] == byte;
    }
    if (taken) at = next;
    return taken;
}

}  // namespace

bool matchesPattern(std::string_view text, std::string_view pattern) {
    requireValid(pattern);

    // Where to go on when what follows the last star fails: the star takes one byte more. An
    // earlier star need never take more, since the last one can take all that it would leave.
    std::size_t behindStar = std::string_view::npos;
    std::size_t starTakesTo = 0;

    std::size_t at = skipEmptyLists(pattern, 0);
    std::size_t byte = 0;
    while (byte < text.size()) {
        if (at < pattern.size() && pattern[at] == '*') {
            behindStar = at = skipEmptyLists(pattern, at + 1);
            starTakesTo = byte;
        } else if (at < pattern.size() && takes(pattern, at, text[byte])) {
            at = skipEmptyLists(pattern, at);
            ++byte;
        } else if (behindStar != std::string_view::npos) {
            at = behindStar;
            byte = ++starTakesTo;
        } else {
            return false;
        }
    }
    while (at < pattern.size() && pattern[at] == '*') at = skipEmptyLists(pattern, at + 1);
    return at == pattern.size();
}

}  // namespace magpie
