// Platform code pages: the conversions that Windows knows, for an import.
#pragma once

#include "companion/import/code_page.h"

namespace magpie {

[[nodiscard]] unsigned programCodePage();
[[nodiscard]] CodePageCalls platformCodePages();

}  // namespace magpie
