// Host text: a title, a group's name or an address in the form in which the program keeps it: in
// its code page, and without anything that the stack file would take for something else.
#pragma once

#include <string>
#include <string_view>

#include "companion/import/code_page.h"

namespace magpie {

class HostText {
public:
    explicit HostText(unsigned codePage, CodePageCalls calls = {});

    // A title: a character that the code page does not hold becomes the nearest letter, or "?";
    // a letter with its mark behind it becomes one; characters that nobody sees go; a control
    // character becomes a blank; blanks at the ends go.
    [[nodiscard]] std::string title(std::string_view utf8) const;

    // A group's name: the same with "&" for "+", at which the stack file cuts names.
    [[nodiscard]] std::string groupName(std::string_view utf8) const;

    // An address: what is not printable ASCII becomes its bytes in UTF-8 behind percent signs.
    // Blanks and control characters at the ends go; tabs and line breaks inside go as well, as
    // they do in a browser, unless the address is a script, to which they may matter.
    [[nodiscard]] static std::string address(std::string_view utf8);

private:
    void append(std::string& text, char32_t character, int depth) const;
    void appendAlike(std::string& text, char32_t character, int depth) const;

    CodePageWriter writer_;
};

}  // namespace magpie
