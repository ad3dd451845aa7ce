// failureOf: the number of the failure that a call raises, 0 where it raises none.
#pragma once

#include "platform/runtime/failure.h"

namespace magpie {

template <class Call>
int failureOf(Call&& call) {
    try {
        static_cast<void>(call());
        return 0;
    } catch (const Failure& failed) {
        return failed.number;
    }
}

}  // namespace magpie
