// comdlg32 answered by Windows.
#include "platform/api/comdlg32.h"

#include <cstddef>

#include <windows.h>

namespace win {

namespace {

static_assert(sizeof(OPENFILENAMEA) == sizeof(::OPENFILENAMEA));
static_assert(offsetof(OPENFILENAMEA, lpstrFile) == offsetof(::OPENFILENAMEA, lpstrFile));
static_assert(offsetof(OPENFILENAMEA, lpstrTitle) == offsetof(::OPENFILENAMEA, lpstrTitle));
static_assert(offsetof(OPENFILENAMEA, Flags) == offsetof(::OPENFILENAMEA, Flags));
static_assert(offsetof(OPENFILENAMEA, lpfnHook) == offsetof(::OPENFILENAMEA, lpfnHook));
static_assert(offsetof(OPENFILENAMEA, FlagsEx) == offsetof(::OPENFILENAMEA, FlagsEx));

}  // namespace

BOOL GetOpenFileNameA(OPENFILENAMEA* dialog) {
    return ::GetOpenFileNameA(reinterpret_cast<::OPENFILENAMEA*>(dialog));
}

BOOL GetSaveFileNameA(OPENFILENAMEA* dialog) {
    return ::GetSaveFileNameA(reinterpret_cast<::OPENFILENAMEA*>(dialog));
}

}  // namespace win
