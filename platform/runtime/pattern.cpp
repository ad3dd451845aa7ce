#include "platform/runtime/pattern.h"

#include "platform/runtime/pattern_list.h"

namespace magpie {

namespace {

std::bitset<256> bytesOf(const PatternList& list) {
    std::bitset<256> bytes;
    list.eachRange([&](PatternRange range) {
        for (unsigned byte = range.first; byte <= range.last; ++byte) bytes.set(byte);
        return true;
    });
    return list.negated() ? ~bytes : bytes;
}

}  // namespace

Pattern::Pattern(std::string_view pattern) : stretches_(1) {
    std::size_t at = 0;
    while (at < pattern.size()) {
        const char byte = pattern[at];
        if (byte == '*') {
            stretches_.emplace_back();
            ++at;
            continue;
        }
        Stretch& stretch = stretches_.back();
        if (byte == '[') {
            const PatternList list(pattern, at);
            at = list.end();
            if (list.empty()) continue;
            stretch.tokens.push_back({Token::Kind::list, 0, lists_.size()});
            lists_.push_back(bytesOf(list));
            continue;
        }
        if (byte == '?') {
            stretch.tokens.push_back({Token::Kind::any});
        } else if (byte == '#') {
            stretch.tokens.push_back({Token::Kind::digit});
        } else {
            stretch.tokens.push_back({Token::Kind::literal, byte});
            stretch.literal += byte;
        }
        ++at;
    }
}

bool Pattern::tokenMatches(const Token& token, char byte) const {
    switch (token.kind) {
        case Token::Kind::literal: return token.byte == byte;
        case Token::Kind::any: return true;
        case Token::Kind::digit: return byte >= '0' && byte <= '9';
        case Token::Kind::list: return lists_[token.list].test(static_cast<unsigned char>(byte));
    }
    return false;
}

// The bytes are as many as the stretch has tokens.
bool Pattern::stretchMatches(const Stretch& stretch, std::string_view bytes) const {
    if (stretch.isLiteral()) return bytes == stretch.literal;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (!tokenMatches(stretch.tokens[i], bytes[i])) return false;
    }
    return true;
}

// Where in the text the stretch matches first, or npos.
std::size_t Pattern::find(const Stretch& stretch, std::string_view text) const {
    if (stretch.isLiteral()) return text.find(stretch.literal);
    const std::size_t size = stretch.tokens.size();
    for (std::size_t at = 0; at + size <= text.size(); ++at) {
        if (stretchMatches(stretch, text.substr(at, size))) return at;
    }
    return std::string_view::npos;
}

// The first and the last stretch stand at the ends of the text. Each one between goes to the
// first place that it matches, which leaves the most room for those behind it.
bool Pattern::matches(std::string_view text) const {
    const Stretch& head = stretches_.front();
    const std::size_t headSize = head.tokens.size();
    if (stretches_.size() == 1) return text.size() == headSize && stretchMatches(head, text);

    const Stretch& tail = stretches_.back();
    const std::size_t tailSize = tail.tokens.size();
    if (text.size() < headSize + tailSize) return false;
    if (!stretchMatches(head, text.substr(0, headSize))) return false;
    if (!stretchMatches(tail, text.substr(text.size() - tailSize))) return false;

    text = text.substr(headSize, text.size() - headSize - tailSize);
    for (std::size_t i = 1; i + 1 < stretches_.size(); ++i) {
        const std::size_t at = find(stretches_[i], text);
        if (at == std::string_view::npos) return false;
        text.remove_prefix(at + stretches_[i].tokens.size());
    }
    return true;
}

}  // namespace magpie
