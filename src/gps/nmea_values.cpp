#include "gps/nmea_values.h"

#include "platform/number_text.h"
#include "platform/text_encoding.h"

#include <algorithm>

namespace pinmora {

namespace {

/// The bytes that the first `count` characters of a UTF-8 text take; nothing when it has fewer.
std::optional<std::size_t> bytesOf(std::string_view text, std::size_t count) {
    if (text.size() >= count && isAscii(text.substr(0, count))) {
        return count;
    }
    std::size_t at = 0;
    for (; count > 0; --count) {
        if (at == text.size()) {
            return std::nullopt;
        }
        do {
            ++at;
        } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80);
    }
    return at;
}

std::optional<std::string> makeDegrees(std::string_view text, std::size_t degreeCharacters,
                                       char sign) {
    const std::optional<std::size_t> split = bytesOf(text, degreeCharacters);
    if (!split || sign == '\0') {
        return std::nullopt;
    }
    const float degrees = leadingFloat(text.substr(0, *split));
    const float minutes = leadingFloat(text.substr(*split));
    return sign + fixedText(minutes / 60.0F + degrees, 6);
}

char signOf(std::string_view part, std::string_view positive, std::string_view negative) {
    return part == positive ? '+' : part == negative ? '-' : '\0';
}

/// The number in the `index`-th pair of characters.
int pairAt(std::string_view text, std::size_t index) {
    if (text.size() >= 2 * index + 2 &&
        std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(2 * index + 2),
                    isDigit)) {
        return (text[2 * index] - '0') * 10 + (text[2 * index + 1] - '0');
    }
    const std::size_t begin = bytesOf(text, 2 * index).value_or(text.size());
    text.remove_prefix(begin);
    return leadingInt(text.substr(0, bytesOf(text, 2).value_or(text.size())));
}

} // namespace

std::optional<std::string> makeLat(std::string_view latitude, std::string_view part) {
    return makeDegrees(latitude, 2, signOf(part, "N", "S"));
}

std::optional<std::string> makeLon(std::string_view longitude, std::string_view part) {
    return makeDegrees(longitude, 3, signOf(part, "E", "W"));
}

std::string makeEleString(std::string_view altitude) {
    return altitude.empty() ? std::string() : fixedText(leadingFloat(altitude), 5);
}

bool isDateStamp(std::string_view date, std::string_view time) {
    return bytesOf(date, 6) && bytesOf(time, 6);
}

std::optional<Date> makeDateStamp(std::string_view date, std::string_view time,
                                  std::chrono::year currentYear) {
    const int twoDigits = pairAt(date, 2);
    std::chrono::year year(2000 + twoDigits);
    if (year > currentYear) {
        year = std::chrono::year(1900 + twoDigits);
    }
    const std::chrono::year_month_day day(
        year, std::chrono::month(static_cast<unsigned>(pairAt(date, 1))),
        std::chrono::day(static_cast<unsigned>(pairAt(date, 0))));
    const std::optional<std::chrono::seconds> timeOfDay = makeTimeOfDay(time);
    if (!day.ok() || !timeOfDay) {
        return std::nullopt;
    }
    return std::chrono::sys_days(day) + *timeOfDay;
}

std::optional<std::chrono::seconds> makeTimeOfDay(std::string_view time) {
    const int hour = pairAt(time, 0);
    const int minute = pairAt(time, 1);
    const int second = pairAt(time, 2);
    const auto within = [](int value, int limit) { return value >= 0 && value < limit; };
    if (!within(hour, 24) || !within(minute, 60) || !within(second, 60)) {
        return std::nullopt;
    }
    return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

} // namespace pinmora
