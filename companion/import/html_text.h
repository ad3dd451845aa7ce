// HTML text: what a piece of a page reads as: entities replaced, tags gone, blanks run together.
// Text in and out is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace magpie {

// Whether an ampersand may begin something else, as "?a=1&copy=2" in an address does.
enum class HtmlPlace { text, attribute };

// Replaces entities: named, decimal, hexadecimal, with or without their semicolon. What is none
// stays as it is.
void appendWithoutEntities(std::string& result, std::string_view text, HtmlPlace place);

// The text of a heading or of a link: tags and comments in it are left out, runs of blanks and
// line ends become one blank, those at the ends go.
void appendReadable(std::string& result, std::string_view html);

}  // namespace magpie
