#include "platform/date.h"

#include <QLocale>

#include <array>

namespace pinmora {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

struct Fields {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    int *named(char letter) {
        switch (letter) {
        case 'Y':
            return &year;
        case 'm':
            return &month;
        case 'd':
            return &day;
        case 'H':
            return &hour;
        case 'M':
            return &minute;
        case 'S':
            return &second;
        default:
            return nullptr;
        }
    }
};

std::size_t widthOf(char letter) {
    return letter == 'Y' ? 4 : 2;
}

/// Reads exactly `text`, digits only; -1 for anything else.
int digits(std::string_view text) {
    int value = 0;
    bool wrong = false;
    for (const char c : text) {
        const int digit = c - '0';
        wrong |= digit < 0 || digit > 9;
        value = value * 10 + digit;
    }
    return wrong ? -1 : value;
}

std::optional<WallClock> wallClockOf(const Fields &fields) {
    const std::chrono::year_month_day day{std::chrono::year{fields.year},
                                          std::chrono::month{static_cast<unsigned>(fields.month)},
                                          std::chrono::day{static_cast<unsigned>(fields.day)}};
    if (!day.ok() || fields.hour > 23 || fields.minute > 59 || fields.second > 59) {
        return std::nullopt;
    }
    return std::chrono::local_days{day} + hours{fields.hour} + minutes{fields.minute} +
           seconds{fields.second};
}

struct Names {
    std::string (*month)(unsigned month);     ///< 1 is January
    std::string (*weekday)(unsigned weekday); ///< 1 is Monday
};

const Names englishNames{
    [](unsigned month) {
        constexpr std::array<const char *, 12> names{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
        return std::string{names.at(month - 1)};
    },
    [](unsigned weekday) {
        constexpr std::array<const char *, 7> names{"Mon", "Tue", "Wed", "Thu",
                                                    "Fri", "Sat", "Sun"};
        return std::string{names.at(weekday - 1)};
    },
};

const Names ownNames{
    [](unsigned month) {
        const auto number = static_cast<int>(month);
        return QLocale::system().monthName(number, QLocale::ShortFormat).toStdString();
    },
    [](unsigned weekday) {
        const auto number = static_cast<int>(weekday);
        return QLocale::system().dayName(number, QLocale::ShortFormat).toStdString();
    },
};

std::string padded(int value, std::size_t width) {
    std::string text = std::to_string(value);
    return text.size() < width ? text.insert(0, width - text.size(), '0') : text;
}

std::string written(WallClock wallClock, std::string_view format, const Names &names) {
    const auto midnight = floor<days>(wallClock);
    const std::chrono::year_month_day day{midnight};
    const std::chrono::hh_mm_ss time{wallClock - midnight};
    Fields fields{static_cast<int>(day.year()),
                  static_cast<int>(static_cast<unsigned>(day.month())),
                  static_cast<int>(static_cast<unsigned>(day.day())),
                  static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count())};
    std::string text;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char letter = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
        if (const int *field = fields.named(letter)) {
            text += padded(*field, widthOf(letter));
        } else if (letter == 'e') {
            text += std::to_string(fields.day);
        } else if (letter == 'b') {
            text += names.month(static_cast<unsigned>(day.month()));
        } else if (letter == 'a') {
            text += names.weekday(std::chrono::weekday{midnight}.iso_encoding());
        } else {
            text += format[i];
            continue;
        }
        ++i;
    }
    return text;
}

} // namespace

std::optional<WallClock> wallClockFromText(std::string_view text, std::string_view format) {
    Fields fields;
    std::size_t at = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            if (at >= text.size() || text[at] != format[i]) {
                return std::nullopt;
            }
            ++at;
            continue;
        }
        const char letter = ++i < format.size() ? format[i] : '\0';
        int *const field = fields.named(letter);
        const std::size_t width = widthOf(letter);
        if (field == nullptr || text.size() - at < width) {
            return std::nullopt;
        }
        *field = digits(text.substr(at, width));
        if (*field < 0) {
            return std::nullopt;
        }
        at += width;
    }
    return at == text.size() ? wallClockOf(fields) : std::nullopt;
}

std::optional<Date> dateFromText(std::string_view text, std::string_view format, LocalZone &zone) {
    const std::optional<WallClock> wallClock = wallClockFromText(text, format);
    return wallClock ? std::optional{zone.instantOf(*wallClock)} : std::nullopt;
}

std::string textFromWallClock(WallClock wallClock, std::string_view format) {
    return written(wallClock, format, englishNames);
}

std::string textFromDate(Date date, std::string_view format, LocalZone &zone) {
    return written(zone.wallClockAt(date), format, englishNames);
}

std::string localizedTextFromDate(Date date, std::string_view format, LocalZone &zone) {
    return written(zone.wallClockAt(date), format, ownNames);
}

} // namespace pinmora
