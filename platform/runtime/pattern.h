// Pattern: a text with wildcards that a whole other text matches or does not. Comparison is exact,
// byte by byte; who wants letters to match in either case brings both texts to capitals first.
//
//   ?       any one byte
//   #       any one digit, 0 to 9
//   *       any run of bytes, also none
//   [list]  any one byte of the list; a "-" between two bytes of it stands for all from one to
//           the other, counted unsigned
//   [!list] any one byte that is not in the list
//   []      nothing: matches the empty text
//
// In a list "?", "#", "*" and "[" are themselves, so are "!" anywhere but first, and "-" first
// (after the "!", if any), last, or after a range: it may end a range but begins none. [!] is any
// one byte. A "]" outside a list is itself.
//
// A "[" without its "]", and a range that descends, make the pattern invalid: Failure 93, raised
// whatever the text is.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace magpie {

// For a pattern that is used once. Allocates nothing. Takes time in proportion to the two lengths
// multiplied, at worst, however many stars there are.
[[nodiscard]] bool matchesPattern(std::string_view text, std::string_view pattern);

// For a pattern that is used on many texts: read once, and its literal stretches looked for as
// substrings. Answers exactly what matchesPattern answers.
class Pattern {
public:
    explicit Pattern(std::string_view pattern);

    [[nodiscard]] bool matches(std::string_view text) const;

private:
    // One byte of the text to match.
    struct Token {
        enum class Kind : std::uint8_t { literal, any, digit, list } kind = Kind::literal;
        char byte = 0;         // of a literal
        std::size_t list = 0;  // of a list, index into lists_
    };

    // What stands between two stars: tokens that match as many bytes in a row. Where all are
    // literal, their bytes stand in `literal` as well.
    struct Stretch {
        std::vector<Token> tokens;
        std::string literal;

        [[nodiscard]] bool isLiteral() const { return literal.size() == tokens.size(); }
    };

    [[nodiscard]] bool tokenMatches(const Token& token, char byte) const;
    [[nodiscard]] bool stretchMatches(const Stretch& stretch, std::string_view bytes) const;
    [[nodiscard]] std::size_t find(const Stretch& stretch, std::string_view text) const;

    std::vector<Stretch> stretches_;  // one more than there are stars
    std::vector<std::bitset<256>> lists_;
};

}  // namespace magpie
