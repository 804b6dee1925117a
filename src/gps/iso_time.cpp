#include "gps/iso_time.h"

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

    /// Takes the digits of a fraction of a second, at least one.
    std::chrono::microseconds fraction() {
        ok_ = ok_ && startsWithDigit();
        std::int64_t value = 0;
        std::int64_t unit = 100'000;
        for (; startsWithDigit(); rest_.remove_prefix(1), unit /= 10) {
            value += unit * (rest_.front() - '0');
        }
        return std::chrono::microseconds(value);
    }

    void fail() { ok_ = false; }

private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    std::string_view rest_;
    bool ok_ = true;
};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::chrono::sys_days date(Scanner &scan, bool &extended) {
    const std::chrono::year year(scan.digits(4));
    extended = scan.takeOneOf("-") != '\0';
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

std::chrono::microseconds timeOfDay(Scanner &scan, bool extended) {
    const auto separated = [&] {
        return extended ? scan.takeOneOf(":") != '\0' : scan.startsWithDigit();
    };
    const int hour = scan.digits(2);
    if (!separated()) {
        scan.fail();
    }
    const int minute = scan.digits(2);
    int second = 0;
    std::chrono::microseconds fraction(0);
    if (separated()) {
        second = scan.digits(2);
        if (scan.takeOneOf(".,") != '\0') {
            fraction = scan.fraction();
        }
    }
    if (hour > 23 || minute > 59 || second > 59) {
        scan.fail();
    }
    return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second) +
           fraction;
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
