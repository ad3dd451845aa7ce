#include "config/version.h"

namespace magpie {

Version programVersion() {
    return {MAGPIE_VERSION};
}

}  // namespace magpie
