// Host text: a title, a group's name or an address in the form in which the program keeps it: in
// its code page, and without anything that the stack file would take for something else.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "companion/import/code_page.h"

namespace magpie {

class HostText {
public:
    explicit HostText(unsigned codePage, CodePageCalls calls = {});

    // A title: a letter with its mark behind it becomes one. A character that the code page does
    // not hold becomes the letter and the mark that it is made of, or the nearest letter, or "?";
    // one that nobody sees goes. A control character becomes a blank; blanks at the ends go.
    [[nodiscard]] std::string title(std::string_view utf8) const;

    // A group's name: the same with "&" for "+", at which the stack file cuts names.
    [[nodiscard]] std::string groupName(std::string_view utf8) const;

    // An address: what is not printable ASCII becomes its bytes in UTF-8 behind percent signs.
    // Blanks and control characters at the ends go; tabs and line breaks inside go as well, as
    // they do in a browser, unless the address is a script, to which they may matter.
    [[nodiscard]] static std::string address(std::string_view utf8);

private:
    struct LetterParts;

    void append(std::string& text, char32_t character, int depth) const;
    bool appendInParts(std::string& text, char32_t letter) const;
    bool appendWithMarks(std::string& text, const LetterParts& parts, std::size_t with) const;
    void appendAlike(std::string& text, char32_t character, int depth) const;

    CodePageWriter writer_;
};

}  // namespace magpie
