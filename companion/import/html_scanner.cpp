#include "companion/import/html_scanner.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace magpie {

namespace {

constexpr std::size_t npos = std::string_view::npos;

// NUL and the other control characters stand between the parts of a tag like a blank.
bool isBlank(char byte) {
    return static_cast<unsigned char>(byte) <= ' ';
}

bool isLetter(char byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// Of an attribute's name.
bool isOfName(char byte) {
    return isLetter(byte) || (byte >= '0' && byte <= '9') || byte == '_' || byte == '-' ||
           byte == ':' || byte == '.';
}

char lowerCase(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

// As std::string_view::find, which is slow at single bytes.
std::size_t findByte(std::string_view text, char byte, std::size_t from) {
    if (from >= text.size()) return npos;
    const void* const found = std::memchr(text.data() + from, byte, text.size() - from);
    return found == nullptr
               ? npos
               : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

constexpr std::string_view script = "javascript:";

std::size_t placeOf(char quote) {
    return quote == '"' ? 1 : 0;
}

constexpr std::string_view attributeNames[] = {"add_date",   "alt",  "charset", "content",
                                               "feedurl",    "href", "id",      "last_modified",
                                               "last_visit", "name", "title"};
static_assert(std::size(attributeNames) == static_cast<std::size_t>(HtmlAttribute::count));

}  // namespace

bool sameTagName(std::string_view name, std::string_view lower) {
    return name.size() == lower.size() &&
           std::equal(name.begin(), name.end(), lower.begin(),
                      [](char a, char b) { return lowerCase(a) == b; });
}

void HtmlAttributes::add(std::string_view name, std::string_view value) {
    if (name.empty()) return;
    const char first = lowerCase(name.front());
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view known = attributeNames[i];
        if (known.front() != first || !sameTagName(name, known)) continue;
        const std::uint32_t bit = 1U << i;
        if ((present_ & bit) == 0) values_[i] = value;
        present_ |= bit;
        return;
    }
}

const std::string_view* HtmlAttributes::find(HtmlAttribute attribute) const {
    const auto at = static_cast<std::size_t>(attribute);
    return (present_ >> at & 1U) != 0 ? &values_[at] : nullptr;
}

const HtmlTag* HtmlScanner::next() {
    while (!atEnd()) {
        at_ = findByte(page_, '<', at_);
        if (at_ == npos) at_ = page_.size();
        if (!atEnd() && readMarkup()) return &tag_;
    }
    return nullptr;
}

// Stands at a "<"; false when it is a part of the text.
bool HtmlScanner::readMarkup() {
    tag_.begin = at_++;
    if (atEnd()) return false;
    const bool closing = page_[at_] == '/';
    const std::size_t name = at_ + (closing ? 1 : 0);
    if (name < page_.size() && isLetter(page_[name])) {
        at_ = name;
        readTag(closing);
        return true;
    }
    if (!closing && page_[at_] != '!' && page_[at_] != '?') return false;
    skipDeclaration();
    tag_.name = {};
    tag_.attributes.clear();
    tag_.closing = tag_.cut = false;
    tag_.end = at_;
    return true;
}

void HtmlScanner::readTag(bool closing) {
    const std::size_t name = at_;
    while (!atEnd() && !isBlank(page_[at_]) && page_[at_] != '/' && page_[at_] != '>') ++at_;
    tag_.name = page_.substr(name, at_ - name);
    tag_.closing = closing;
    tag_.attributes.clear();
    for (;;) {
        while (!atEnd() && (isBlank(page_[at_]) || page_[at_] == '/')) ++at_;
        if (atEnd() || page_[at_] == '>') break;
        readAttribute();
    }
    tag_.cut = atEnd();
    tag_.end = tag_.cut ? at_ : ++at_;
}

void HtmlScanner::readAttribute() {
    const std::size_t name = at_++;  // a "=" here belongs to the name
    while (!atEnd() && !isBlank(page_[at_]) && page_[at_] != '/' && page_[at_] != '>' &&
           page_[at_] != '=') {
        ++at_;
    }
    const std::string_view attribute = page_.substr(name, at_ - name);
    std::string_view value;
    skipBlanks();
    if (!atEnd() && page_[at_] == '=') {
        ++at_;
        skipBlanks();
        value = readValue();
    }
    tag_.attributes.add(attribute, value);
}

std::string_view HtmlScanner::readValue() {
    if (atEnd()) return {};
    const char first = page_[at_];
    if (first == '"' || first == '\'') return readQuoted(first);
    const std::size_t begin = at_;
    while (!atEnd() && !isBlank(page_[at_]) && page_[at_] != '>') ++at_;
    return page_.substr(begin, at_ - begin);
}

std::string_view HtmlScanner::readQuoted(char quote) {
    const std::size_t begin = ++at_;
    bool& none = noQuote_[placeOf(quote)];
    std::size_t end = npos;
    if (sameTagName(page_.substr(begin, script.size()), script)) end = scriptEnd(begin, quote);
    if (end == npos && !none) end = findByte(page_, quote, begin);
    if (end != npos) {
        at_ = end + 1;
        return page_.substr(begin, end - begin);
    }
    none = true;
    while (!atEnd() && page_[at_] != '>' && page_[at_] != '\n' && page_[at_] != '\r') ++at_;
    return page_.substr(begin, at_ - begin);
}

// The first quote in the line behind which the tag goes on; npos where there is none.
std::size_t HtmlScanner::scriptEnd(std::size_t begin, char quote) {
    std::size_t& none = noScriptEnd_[placeOf(quote)];
    if (begin < none) return npos;
    std::size_t at = begin;
    for (; at < page_.size() && page_[at] != '\n' && page_[at] != '\r'; ++at) {
        if (page_[at] == quote && endsValue(at + 1)) return at;
    }
    none = at;
    return npos;
}

// Whether the tag ends here, or goes on with attributes, of which those ahead of the first with a
// value may have none.
bool HtmlScanner::endsValue(std::size_t behindQuote) const {
    constexpr std::size_t farEnough = 256;
    std::string_view rest = page_.substr(behindQuote, farEnough);
    const auto skip = [&rest](auto passes) {
        const std::size_t before = rest.size();
        while (!rest.empty() && passes(rest.front())) rest.remove_prefix(1);
        return before != rest.size();
    };
    for (;;) {
        const bool apart = skip(isBlank);
        skip([](char byte) { return byte == '/'; });
        skip(isBlank);
        if (rest.starts_with('>')) return true;
        if (!skip(isOfName)) return false;
        if (rest.starts_with('=')) return true;
        if (!apart) return false;
    }
}

// Stands behind the "<".
void HtmlScanner::skipDeclaration() {
    if (page_.substr(at_).starts_with("!--")) {
        at_ += 3;
        // Two of the hyphens that open a comment may close it.
        const std::size_t end = noCommentEnd_ ? npos : commentEnd(at_ - 2);
        if (end != npos) {
            at_ = end;
            return;
        }
        noCommentEnd_ = true;
    }
    const std::size_t end = findByte(page_, '>', at_);
    at_ = end == npos ? page_.size() : end + 1;
}

// Behind the next "-->", or what has been one as well: "--!>" and "-- >". The hyphens at `from` are
// those that opened the comment.
std::size_t HtmlScanner::commentEnd(std::size_t from) const {
    for (std::size_t at = page_.find("--", from); at != npos; at = page_.find("--", at)) {
        const bool opening = at == from;
        while (at < page_.size() && page_[at] == '-') ++at;
        std::size_t end = at;
        if (!opening && end < page_.size() && page_[end] == '!') ++end;
        while (!opening && end < page_.size() && isBlank(page_[end])) ++end;
        if (end < page_.size() && page_[end] == '>') return end + 1;
    }
    return npos;
}

// Whether a DT or a DL stands at a "<".
bool HtmlScanner::beginsEntry(std::size_t at) const {
    const std::string_view name = page_.substr(at + 1, 2);
    if (!sameTagName(name, "dt") && !sameTagName(name, "dl")) return false;
    return at + 3 >= page_.size() || !isLetter(page_[at + 3]);
}

bool HtmlScanner::skipRawText(std::string_view lowerName) {
    auto known = std::ranges::find(noEndOf_, lowerName, &NoEnd::element);
    if (known != noEndOf_.end() && at_ < known->upTo) return false;
    std::size_t at = findByte(page_, '<', at_);
    for (; at != npos && !beginsEntry(at); at = findByte(page_, '<', at + 1)) {
        const std::string_view rest = page_.substr(at + 1);
        if (rest.starts_with('/') && sameTagName(rest.substr(1, lowerName.size()), lowerName)) {
            at_ = at;
            return true;
        }
    }
    if (known == noEndOf_.end()) known = noEndOf_.insert(known, {lowerName, 0});
    known->upTo = std::min(at, page_.size());
    return false;
}

void HtmlScanner::skipBlanks() {
    while (!atEnd() && isBlank(page_[at_])) ++at_;
}

}  // namespace magpie
