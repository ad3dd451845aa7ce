// Dde: one question to another program by dynamic data exchange.
#pragma once

#include <string>

namespace magpie {

// Asks the program `service`, on `topic`, for `item`, and answers its text as far as the first
// NUL. The whole conversation has 5 seconds, of which every window of the program keeps being
// painted; no event of the user's enters. A program that takes longer is left to itself, and
// neither holds this one up nor its end.
//
// Raises 282 when nobody answers under that name (nobody does under an empty one), 285 when the
// request is refused, 286 when the time is over, and 5 for a text that can't travel: one of more
// than 255 bytes.
std::string ddeRequest(const std::string& service, const std::string& topic,
                       const std::string& item);

// True until the conversation under way is over. What another program sends to a window still
// arrives then; where it stands for something that the user did, it has to wait.
bool conversationWaits();

}  // namespace magpie
