// InputBox: a small modal form that asks for one line of text.
#pragma once

#include <string>

namespace magpie {

// Shows `prompt` above a text box that starts as `text`, with its upper left
// corner at (left, top) twips of the screen. OK answers what stands in the box,
// Cancel and the close box answer an empty text.
std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text,
                     double left, double top);

}  // namespace magpie
