#include "platform/services/clock.h"

#include "platform/api/kernel32.h"

namespace magpie {

Date now() {
    win::SYSTEMTIME time{};
    win::GetLocalTime(&time);
    return dateFromCivil(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute,
                         time.wSecond);
}

}  // namespace magpie
