#include <array>
#include <cstddef>

#include "platform/runtime/date.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/split.h"

namespace magpie {

namespace {

// The form of the text: a digit of it stands where a 0 stands here, and the rest as it is.
constexpr std::string_view form = "0000-00-00 00:00:00";

// Where a number stands in the form, in bytes.
struct Place {
    std::size_t at;
    std::size_t size;
};
constexpr std::array<Place, 6> places{{{0, 4}, {5, 2}, {8, 2}, {11, 2}, {14, 2}, {17, 2}}};

void writeAt(Place place, int number, char* text) {
    for (std::size_t i = place.size; i > 0; --i, number /= 10) {
        text[place.at + i - 1] = static_cast<char>('0' + number % 10);
    }
}

int readAt(Place place, std::string_view text) {
    int number = 0;
    for (const char digit : text.substr(place.at, place.size)) number = number * 10 + (digit - '0');
    return number;
}

bool hasForm(std::string_view text) {
    if (text.size() != form.size()) return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool fits = form[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == form[i];
        if (!fits) return false;
    }
    return true;
}

}  // namespace

std::string_view dateText(Date date, NumberBuffer& buffer) {
    const CivilTime civil = civilOf(date);
    const std::array numbers{civil.year, civil.month,  civil.day,
                             civil.hour, civil.minute, civil.second};
    form.copy(buffer.data(), form.size());
    for (std::size_t i = 0; i < places.size(); ++i) writeAt(places[i], numbers[i], buffer.data());
    return {buffer.data(), form.size()};
}

std::string dateText(Date date) {
    NumberBuffer buffer;
    return std::string(dateText(date, buffer));
}

Date readDateText(std::string_view text) {
    const std::optional<Date> date = dateIfText(text);
    if (!date) throw Failure{failure::typeMismatch};
    return *date;
}

std::optional<Date> dateIfText(std::string_view text) {
    text = trimBlanks(text);
    if (!hasForm(text)) return {};
    std::array<int, places.size()> numbers{};
    for (std::size_t i = 0; i < places.size(); ++i) numbers[i] = readAt(places[i], text);
    try {
        return dateFromCivil(numbers[0], numbers[1], numbers[2], numbers[3], numbers[4],
                             numbers[5]);
    } catch (const Failure&) {
        // Its digits spell no moment of the calendar, so the text is no date.
        return {};
    }
}

}  // namespace magpie
