#include "platform/memory/clock.h"

#include <chrono>

#include "platform/api/kernel32.h"
#include "platform/memory/ticks.h"

namespace win {

namespace memory {
namespace {

using std::chrono::milliseconds;

constexpr LocalTime atStart() {
    constexpr std::chrono::local_days day{std::chrono::year{2001} / 3 / 14};
    return milliseconds(day.time_since_epoch() + std::chrono::hours(9)).count();
}

}  // namespace

LocalTime& timeAtTickZero() {
    static LocalTime time = atStart();
    return time;
}

}  // namespace memory

using namespace memory;

void GetLocalTime(SYSTEMTIME* time) {
    namespace chr = std::chrono;
    const chr::local_time<milliseconds> now{
        milliseconds(timeAtTickZero() + static_cast<LocalTime>(ticks()))};
    const auto day = chr::floor<chr::days>(now);
    const chr::year_month_day date(day);
    const chr::hh_mm_ss clock(now - day);
    *time = {static_cast<WORD>(static_cast<int>(date.year())),
             static_cast<WORD>(static_cast<unsigned>(date.month())),
             static_cast<WORD>(chr::weekday(day).c_encoding()),
             static_cast<WORD>(static_cast<unsigned>(date.day())),
             static_cast<WORD>(clock.hours().count()),
             static_cast<WORD>(clock.minutes().count()),
             static_cast<WORD>(clock.seconds().count()),
             static_cast<WORD>(clock.subseconds().count())};
}

DWORD GetTickCount() {
    return static_cast<DWORD>(ticks());
}

}  // namespace win
