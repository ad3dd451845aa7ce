// Clock: the present moment.
#pragma once

#include "platform/runtime/date.h"

namespace magpie {

// The local date and time, to the whole second.
Date now();

}  // namespace magpie
