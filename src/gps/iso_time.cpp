#include "gps/iso_time.h"

#include "platform/number_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace pinmora {

namespace {

/// Reads a text from left to right; once something is missing, all of it has failed.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    bool ok() const { return ok_; }
    bool atEnd() const { return rest_.empty(); }
    bool startsWithDigit() const { return !rest_.empty() && isDigit(rest_.front()); }

    /// Takes one of the characters if it comes next, and says which; NUL if none does.
    char takeOneOf(std::string_view characters) {
        if (rest_.empty() || characters.find(rest_.front()) == std::string_view::npos) {
            return '\0';
        }
        const char taken = rest_.front();
        rest_.remove_prefix(1);
        return taken;
    }

    /// Takes exactly `count` digits.
    int digits(int count) {
        int value = 0;
        for (int i = 0; i < count; ++i) {
            if (!startsWithDigit()) {
                ok_ = false;
                return 0;
            }
            value = value * 10 + (rest_.front() - '0');
            rest_.remove_prefix(1);
        }
        return value;
    }

    /// How many digits come next.
    std::size_t digitsAhead() const {
        return std::min(rest_.find_first_not_of("0123456789"), rest_.size());
    }

    /// Takes the digits of a fraction, at least one, and tells what it makes of `unit`.
    std::chrono::microseconds fractionOf(std::chrono::seconds unit) {
        ok_ = ok_ && startsWithDigit();
        std::int64_t value = 0;
        std::int64_t place = 100'000;
        for (; startsWithDigit(); rest_.remove_prefix(1), place /= 10) {
            value += place * (rest_.front() - '0');
        }
        return std::chrono::microseconds(value) * unit.count();
    }

    void fail() { ok_ = false; }

private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    std::string_view rest_;
    bool ok_ = true;
};

using std::chrono::days;
using std::chrono::sys_days;

/// The day of a week date: week 1 holds 4 January, days count from Monday.
sys_days weekDate(Scanner &scan, std::chrono::year year, bool extended) {
    const auto mondayOfWeek1 = [](std::chrono::year of) {
        const sys_days inWeek1 = of / std::chrono::January / 4;
        return inWeek1 - (std::chrono::weekday(inWeek1) - std::chrono::Monday);
    };
    const int week = scan.digits(2);
    if (extended && scan.takeOneOf("-") == '\0') {
        scan.fail();
    }
    const int dayOfWeek = scan.digits(1);
    const sys_days day = mondayOfWeek1(year) + days((week - 1) * 7 + dayOfWeek - 1);
    if (week < 1 || dayOfWeek < 1 || dayOfWeek > 7 ||
        day >= mondayOfWeek1(year + std::chrono::years(1))) {
        scan.fail();
    }
    return day;
}

sys_days ordinalDate(Scanner &scan, std::chrono::year year) {
    const int dayOfYear = scan.digits(3);
    if (dayOfYear < 1 || dayOfYear > (year.is_leap() ? 366 : 365)) {
        scan.fail();
    }
    return sys_days(year / std::chrono::January / 1) + days(dayOfYear - 1);
}

sys_days calendarDate(Scanner &scan, std::chrono::year year, bool extended) {
    const std::chrono::month month(static_cast<unsigned>(scan.digits(2)));
    if (extended && scan.takeOneOf("-") == '\0') {
        scan.fail();
    }
    const std::chrono::year_month_day day(year, month,
                                          std::chrono::day(static_cast<unsigned>(scan.digits(2))));
    if (!day.ok()) {
        scan.fail();
        return {};
    }
    return day;
}

sys_days date(Scanner &scan, bool &extended) {
    const std::chrono::year year(scan.digits(4));
    extended = scan.takeOneOf("-") != '\0';
    if (scan.takeOneOf("W") != '\0') {
        return weekDate(scan, year, extended);
    }
    return scan.digitsAhead() == 3 ? ordinalDate(scan, year) : calendarDate(scan, year, extended);
}

/// The last of hour, minute and second may have a fraction. 24:00:00 is the end of the day, and a
/// leap second the second after it.
std::chrono::microseconds timeOfDay(Scanner &scan, bool extended) {
    const auto separated = [&] {
        return extended ? scan.takeOneOf(":") != '\0' : scan.startsWithDigit();
    };
    std::chrono::seconds unit = std::chrono::hours(1);
    const int hour = scan.digits(2);
    int minute = 0;
    int second = 0;
    if (separated()) {
        unit = std::chrono::minutes(1);
        minute = scan.digits(2);
        if (separated()) {
            unit = std::chrono::seconds(1);
            second = scan.digits(2);
        }
    }
    std::chrono::microseconds time =
        std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
    if (scan.takeOneOf(".,") != '\0') {
        time += scan.fractionOf(unit);
    }
    if (minute > 59 || second > 60 || hour > 24 || (hour == 24 && time > days(1))) {
        scan.fail();
    }
    return time;
}

/// How far the zone is ahead of universal time.
std::chrono::minutes zoneOffset(Scanner &scan) {
    if (scan.atEnd() || scan.takeOneOf("Zz") != '\0') {
        return {};
    }
    const char sign = scan.takeOneOf("+-");
    const int hour = scan.digits(2);
    const bool separated = scan.takeOneOf(":") != '\0';
    const int minute = separated || scan.startsWithDigit() ? scan.digits(2) : 0;
    if (sign == '\0' || hour > 23 || minute > 59) {
        scan.fail();
    }
    const std::chrono::minutes offset = std::chrono::hours(hour) + std::chrono::minutes(minute);
    return sign == '-' ? -offset : offset;
}

} // namespace

std::optional<Date> instantFromIsoText(std::string_view text) {
    Scanner scan(trimmed(text));
    bool extended = false;
    const std::chrono::sys_days day = date(scan, extended);
    if (scan.takeOneOf("Tt ") == '\0') {
        return std::nullopt;
    }
    const std::chrono::microseconds time = timeOfDay(scan, extended);
    const std::chrono::minutes offset = zoneOffset(scan);
    return scan.ok() && scan.atEnd() ? std::optional<Date>(day + time - offset) : std::nullopt;
}

} // namespace pinmora
