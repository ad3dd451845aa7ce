// Every number of constants.def against the SDK. The numbers are kept under other names
// first, because many of the SDK's names are macros.
#include "platform/api/types.h"

namespace {

namespace declared {
using namespace win;
#define MAGPIE_CONSTANT(type, name, value) constexpr type name##_ = static_cast<type>(value);
#include "platform/api/constants.def"
#undef MAGPIE_CONSTANT
}  // namespace declared

}  // namespace

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <ddeml.h>
#include <htmlhelp.h>
#include <oleauto.h>
#include <olectl.h>
#include <ras.h>
#include <raserror.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on

namespace {

template <class Declared, class Known>
constexpr bool same(Declared declared, Known known) {
    return declared == static_cast<Declared>(known);
}

// The cursors' numbers, which the SDK hides in pointers.
#undef MAKEINTRESOURCE
#define MAKEINTRESOURCE(number) number
#define IDC_ARROW_NUMBER IDC_ARROW
#define IDC_WAIT_NUMBER IDC_WAIT
#define IDC_SIZEALL_NUMBER IDC_SIZEALL

#define MAGPIE_CONSTANT(type, name, value) \
    static_assert(same(declared::name##_, name), "constants.def differs from the SDK");
#include "platform/api/constants.def"
#undef MAGPIE_CONSTANT

}  // namespace
