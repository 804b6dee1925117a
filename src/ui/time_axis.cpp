#include "ui/time_axis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace pinmora {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::microseconds;
using std::chrono::seconds;

constexpr microseconds shortest = 20s;
constexpr microseconds longest = days(400 * 365);
constexpr std::array<seconds, 21> steps{1s,   2s,    5s,      10s,     30s,     1min,    2min,
                                        5min, 10min, 15min,   30min,   1h,      2h,      3h,
                                        6h,   12h,   days(1), days(2), days(4), days(7), days(14)};
/// Those that a calendar makes uneven.
constexpr std::array<int, 9> months{1, 3, 6, 12, 24, 60, 120, 240, 600};

QString textOf(Date instant, const char *format, LocalZone &zone) {
    return QString::fromStdString(localizedTextFromDate(instant, format, zone)).trimmed();
}

std::vector<TimeAxis::Mark> evenMarks(const TimeAxis &axis, seconds step) {
    LocalZone zone;
    std::vector<TimeAxis::Mark> marks;
    const seconds begin = zone.wallClockAt(axis.from()).time_since_epoch();
    std::chrono::local_days lastDay{};
    for (WallClock wall(begin - begin % step - step);; wall += step) {
        const Date instant = zone.instantOf(wall);
        const double x = axis.xOf(instant);
        if (x > axis.width()) {
            return marks;
        }
        if (x < 0 || (!marks.empty() && x <= marks.back().x)) { // clocks are set back and forward
            continue;
        }
        const auto day = std::chrono::floor<days>(wall);
        const QString time = textOf(instant, step < 1min ? "%H:%M:%S" : "%H:%M", zone);
        const QString date = textOf(instant, "%e %b", zone);
        const bool isNew = std::exchange(lastDay, day) != day;
        marks.push_back({x, step >= days(1) || wall == day ? date
                            : isNew                        ? date + QLatin1Char(' ') + time
                                                           : time});
    }
}

std::vector<TimeAxis::Mark> monthMarks(const TimeAxis &axis, int step) {
    LocalZone zone;
    std::vector<TimeAxis::Mark> marks;
    const std::chrono::year_month_day first(
        std::chrono::floor<days>(zone.wallClockAt(axis.from())));
    int month = static_cast<int>(first.year()) * 12 +
                static_cast<int>(static_cast<unsigned>(first.month())) - 1;
    for (month -= month % step;; month += step) {
        const std::chrono::local_days begin(std::chrono::year(month / 12) / (month % 12 + 1) / 1);
        const Date instant = zone.instantOf(begin);
        const double x = axis.xOf(instant);
        if (x > axis.width()) {
            return marks;
        }
        if (x >= 0) {
            marks.push_back({x, textOf(instant, step < 12 ? "%b %Y" : "%Y", zone)});
        }
    }
}

} // namespace

TimeAxis::TimeAxis(Date from, Date to, double width)
    : from_(from), to_(to), width_(std::max(width, 1.0)) {
    const microseconds span = std::clamp<microseconds>(to - from, shortest, longest);
    if (span != to - from) {
        from_ = from + (to - from) / 2 - span / 2;
        to_ = from_ + span;
    }
}

double TimeAxis::xOf(Date instant) const {
    return width_ * static_cast<double>((instant - from_).count()) /
           static_cast<double>((to_ - from_).count());
}

Date TimeAxis::at(double x) const {
    const double share = x / width_ * static_cast<double>((to_ - from_).count());
    return from_ + microseconds(std::llround(share));
}

seconds TimeAxis::spanOf(double pixels) const {
    return std::chrono::round<seconds>(at(pixels) - from_);
}

TimeAxis TimeAxis::zoomed(double x, double factor) const {
    const double wanted =
        std::clamp(static_cast<double>((to_ - from_).count()) * factor,
                   static_cast<double>(shortest.count()), static_cast<double>(longest.count()));
    const Date begin = at(x) - microseconds(std::llround(wanted * x / width_));
    return {begin, begin + microseconds(std::llround(wanted)), width_};
}

TimeAxis TimeAxis::panned(double pixels) const {
    const microseconds by = at(pixels) - from_;
    return {from_ + by, to_ + by, width_};
}

std::vector<TimeAxis::Mark> TimeAxis::marks(double room) const {
    const auto least = std::chrono::ceil<seconds>(at(room) - from_);
    const auto *const step = std::lower_bound(steps.begin(), steps.end(), least);
    if (step != steps.end()) {
        return evenMarks(*this, *step);
    }
    const auto inMonths = static_cast<int>(least / days(28)) + 1;
    const auto *const calendar = std::lower_bound(months.begin(), months.end(), inMonths);
    return monthMarks(*this, calendar == months.end() ? months.back() : *calendar);
}

} // namespace pinmora
