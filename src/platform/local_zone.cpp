#include "platform/date.h"

#include <algorithm>
#include <ctime>

namespace pinmora {

using std::chrono::floor;
using std::chrono::hours;
using std::chrono::seconds;
using std::chrono::sys_seconds;

namespace {

/// Offsets are compared at the ends of slots of this length. Of all the zones of the time zone
/// database, past and to come, the closest two changes are 95 hours apart (Africa/Freetown, 1939),
/// so that one slot holds at most one.
constexpr seconds slotLength = hours{48};

/// No offset is larger: POSIX allows up to 24:59:59 in the TZ variable.
constexpr seconds largestOffset = hours{25};

seconds offsetAt(sys_seconds instant) {
    const std::time_t time = instant.time_since_epoch().count();
    std::tm local{};
    return seconds{localtime_r(&time, &local) != nullptr ? local.tm_gmtoff : 0};
}

/// The first instant after `begin` and at most `last` whose offset is not that of `begin`.
sys_seconds changeBetween(sys_seconds begin, sys_seconds last, seconds before) {
    while (last - begin > seconds{1}) {
        const sys_seconds middle = begin + (last - begin) / 2;
        (offsetAt(middle) == before ? begin : last) = middle;
    }
    return last;
}

} // namespace

LocalZone::LocalZone() {
    tzset(); // localtime_r() alone keeps the zone of its first use
}

const LocalZone::Stretch &LocalZone::stretchAt(sys_seconds instant) {
    if (stretch_.begin <= instant && instant < stretch_.end) {
        return stretch_;
    }
    const sys_seconds slot{
        floor<std::chrono::duration<std::int64_t, std::ratio<slotLength.count()>>>(
            instant.time_since_epoch())};
    Stretch found{slot, slot + slotLength, offsetAt(slot)};
    const sys_seconds last = found.end - seconds{1};
    if (const seconds after = offsetAt(last); after != found.offset) {
        const sys_seconds change = changeBetween(slot, last, found.offset);
        found = instant < change ? Stretch{slot, change, found.offset}
                                 : Stretch{change, found.end, after};
    }
    if (found.offset == stretch_.offset && found.begin == stretch_.end) {
        stretch_.end = found.end;
    } else if (found.offset == stretch_.offset && found.end == stretch_.begin) {
        stretch_.begin = found.begin;
    } else {
        stretch_ = found;
    }
    return stretch_;
}

/// A change at the instant T from offset a to b parts the wall-clock times at T + max(a, b): clocks
/// set back repeat the times from T + b to T + a, and the earlier ones count; clocks set forward
/// leave out those from T + a to T + b, and the offset before the change counts.
LocalZone::Reading LocalZone::readingOf(WallClock wallClock) {
    const sys_seconds asUniversal{wallClock.time_since_epoch()};
    const auto wall = [](sys_seconds instant) { return WallClock{instant.time_since_epoch()}; };

    Stretch stretch = stretchAt(asUniversal - largestOffset);
    Reading reading{wall(stretch.begin) + largestOffset, {}, stretch.offset};
    for (;;) {
        const Stretch next = stretchAt(stretch.end);
        reading.end = wall(stretch.end) + std::max(stretch.offset, next.offset);
        if (wallClock < reading.end) {
            return reading;
        }
        if (next.offset != stretch.offset) {
            reading.begin = reading.end;
            reading.offset = next.offset;
        }
        stretch = next;
    }
}

Date LocalZone::instantOf(WallClock wallClock) {
    if (wallClock < reading_.begin || wallClock >= reading_.end) {
        reading_ = readingOf(wallClock);
    }
    return Date{wallClock.time_since_epoch() - reading_.offset};
}

WallClock LocalZone::wallClockAt(Date instant) {
    const sys_seconds second = floor<seconds>(instant);
    return WallClock{second.time_since_epoch() + stretchAt(second).offset};
}

} // namespace pinmora
