// Help topics: the context numbers by which a Help button asks for its topic in PNSHelp.chm. The
// table is in help_topics.def, from which the help itself is built as well.
#pragma once

namespace magpie {

enum HelpTopic : int {
#define HELP_TOPIC(name, number, file) name = number,
#include "companion/help_topics.def"
#undef HELP_TOPIC
};

}  // namespace magpie
