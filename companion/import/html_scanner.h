// HTML scanner: the tags of a page, one after the other, with their attributes. It takes what
// stands there apart as browsers do and never fails: an attribute needs no quotes; a quote that
// closes nowhere in the page ends at the next ">" or with its line, a comment at the next ">".
// Other than browsers it finds the end of a script in which quotes were not escaped.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace magpie {

// The attributes that anything is asked of.
enum class HtmlAttribute : std::uint8_t {
    addDate,
    alt,
    charset,
    content,
    feedUrl,
    href,
    id,
    lastModified,
    lastVisit,
    name,
    title,
    count
};

// Values as they stand there, without their quotes.
class HtmlAttributes {
public:
    void clear() { present_ = 0; }

    // The first one of a name stays. Others than those above are not kept.
    void add(std::string_view name, std::string_view value);

    // Null where there is none.
    [[nodiscard]] const std::string_view* find(HtmlAttribute attribute) const;
    [[nodiscard]] bool has(HtmlAttribute attribute) const { return find(attribute) != nullptr; }

private:
    static constexpr std::size_t count = static_cast<std::size_t>(HtmlAttribute::count);

    std::uint32_t present_ = 0;  // a bit for each
    std::array<std::string_view, count> values_;
};

// Compares with a name in small letters.
[[nodiscard]] bool sameTagName(std::string_view name, std::string_view lower);

struct HtmlTag {
    std::string_view name;  // as it stands there; empty for a comment or a declaration
    bool closing = false;
    bool cut = false;       // the page ends inside it
    std::size_t begin = 0;  // of its "<"
    std::size_t end = 0;    // behind its ">"
    HtmlAttributes attributes;

    // `lower` is a name in small letters.
    [[nodiscard]] bool is(std::string_view lower) const {
        return name.size() == lower.size() && sameTagName(name, lower);
    }
};

class HtmlScanner {
public:
    explicit HtmlScanner(std::string_view page) : page_(page) {}

    // The next tag, good until the next call; null behind the last one.
    const HtmlTag* next();

    // Passes over the text of an element that holds no tags, such as a script, up to its closing
    // tag. False, with nothing passed over, when there is none ahead of the next DT or DL: that
    // such a word stands in a title must not cost the entries behind it. The name must outlive
    // the scanner.
    bool skipRawText(std::string_view lowerName);

private:
    bool readMarkup();
    void readTag(bool closing);
    void readAttribute();
    std::string_view readValue();
    std::string_view readQuoted(char quote);
    std::size_t scriptEnd(std::size_t begin, char quote);
    bool endsValue(std::size_t behindQuote) const;
    void skipDeclaration();
    std::size_t commentEnd(std::size_t from) const;
    bool beginsEntry(std::size_t at) const;
    void skipBlanks();
    bool atEnd() const { return at_ >= page_.size(); }

    std::string_view page_;
    std::size_t at_ = 0;
    struct NoEnd {
        std::string_view element;
        std::size_t upTo;
    };

    // What was looked for in vain is not looked for again: up to the end of the page, or, of the
    // closing tags of elements, up to a place in it.
    bool noCommentEnd_ = false;
    std::array<bool, 2> noQuote_{};             // of ' and of "
    std::array<std::size_t, 2> noScriptEnd_{};  // the same of one behind a script
    std::vector<NoEnd> noEndOf_;
    HtmlTag tag_;
};

}  // namespace magpie
