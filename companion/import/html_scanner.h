// HTML scanner: the tags of a page, one after the other, with their attributes. It takes what
// stands there apart as browsers do and never fails: an attribute needs no quotes; a quote or a
// comment that is never closed ends at the next ">".
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace magpie {

struct HtmlAttribute {
    std::string_view name;
    std::string_view value;  // as it stands there, without its quotes
};

struct HtmlTag {
    std::string_view name;  // as it stands there; empty for a comment or a declaration
    bool closing = false;
    bool cut = false;       // the page ends inside it
    std::size_t begin = 0;  // of its "<"
    std::size_t end = 0;    // behind its ">"
    std::vector<HtmlAttribute> attributes;

    // `lower` is a name in small letters.
    [[nodiscard]] bool is(std::string_view lower) const;
    // The first attribute of the name; null where there is none.
    [[nodiscard]] const HtmlAttribute* find(std::string_view lower) const;
};

// Compares with a name in small letters.
[[nodiscard]] bool sameTagName(std::string_view name, std::string_view lower);

class HtmlScanner {
public:
    explicit HtmlScanner(std::string_view page) : page_(page) {}

    // The next tag, good until the next call; null behind the last one.
    const HtmlTag* next();

    // Passes over the text of an element that holds no tags, such as a script; does nothing when
    // its closing tag is missing. The name must outlive the scanner.
    void skipRawText(std::string_view lowerName);

private:
    bool readMarkup();
    void readTag(bool closing);
    void readAttribute();
    std::string_view readValue();
    std::string_view readQuoted(char quote);
    void skipDeclaration();
    void skipBlanks();
    bool atEnd() const { return at_ >= page_.size(); }

    std::string_view page_;
    std::size_t at_ = 0;
    // What was looked for in vain up to the end of the page is not looked for again.
    bool noCommentEnd_ = false;
    std::array<bool, 2> noQuote_{};          // of ' and of "
    std::vector<std::string_view> noEndOf_;  // elements
    HtmlTag tag_;
};

}  // namespace magpie
