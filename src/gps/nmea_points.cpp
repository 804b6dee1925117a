#include "gps/nmea_points.h"

#include "gps/nmea_values.h"
#include "platform/number_text.h"

namespace pinmora {

namespace {

constexpr std::int32_t trackId = 1;

/// The instant of a time of day whose day is not told: the first one after the instant `last`, but
/// not before it by more than an hour, as when sentences come out of order or a receiver sets its
/// clock.
Date instantAfter(Date last, std::chrono::seconds timeOfDay) {
    constexpr std::chrono::hours slack(1);
    const Date sameDay = std::chrono::floor<std::chrono::days>(last) + timeOfDay;
    if (sameDay < last - slack) {
        return sameDay + std::chrono::days(1);
    }
    return sameDay < last - slack + std::chrono::days(1) ? sameDay : sameDay - std::chrono::days(1);
}

} // namespace

NmeaPoints::NmeaPoints(TrackWriter &writer, LogReport &report, std::chrono::year currentYear)
    : writer_(writer), report_(report), policy_(policyOf(report.reading)),
      currentYear_(currentYear) {
    if (policy_.makesEmptyPoint) {
        track_ = &writer_.makeTrack(trackId, report_);
    }
}

NmeaPoints::Taken NmeaPoints::take(std::string_view line, std::size_t index) {
    sentence_.take(line, policy_);
    switch (sentence_.type()) {
    case SentenceType::Rmc:
    case SentenceType::Gga:
        return takeFix(line, index);
    case SentenceType::Gsa:
        return policy_.skipsUnusable || sentence_.fieldCount() >= gsaFieldCount ? Taken::Yes
                                                                                : Taken::Broken;
    case SentenceType::Zda:
        return takeDate();
    case SentenceType::Other:
        break;
    }
    return Taken::No;
}

/// The pending point is completed as soon as another time is seen, even if the sentence then turns
/// out to be broken.
NmeaPoints::Taken NmeaPoints::takeFix(std::string_view line, std::size_t index) {
    if (policy_.skipsUnusable && !(sentence_.isSound() && sentence_.hasUsableFix())) {
        return Taken::No;
    }
    const bool isRmc = sentence_.type() == SentenceType::Rmc;
    const FixFields &where = fixFieldsOf(sentence_.type());
    if (sentence_.fieldCount() <= where.time) {
        return Taken::Broken;
    }
    const std::string_view time = sentence_.field(where.time);
    if (pendingTime_ && *pendingTime_ != time) {
        completePoint(index);
    }
    if (sentence_.fieldCount() < fixFieldCount) {
        return Taken::Broken;
    }
    std::optional<std::string> lat =
        makeLat(sentence_.field(where.latitude), sentence_.field(where.latitudePart));
    std::optional<std::string> lon =
        makeLon(sentence_.field(where.longitude), sentence_.field(where.longitudePart));
    if (!lat || !lon ||
        (isRmc && !policy_.skipsUnusable && !isDateStamp(sentence_.field(rmcDateField), time))) {
        return Taken::Broken;
    }
    pendingTime_ = time;
    pending_.lat = Text(*lat);
    pending_.lon = Text(*lon);
    if (pending_.line.empty()) {
        pending_.line = line;
        pending_.index = index;
    }
    if (isRmc) {
        pending_.date = dateOfRmc();
    } else {
        pending_.alt = Text(makeEleString(sentence_.field(ggaAltitudeField)));
    }
    if (policy_.datesFromBefore) {
        dateFromBefore(time);
    }
    return Taken::Yes;
}

std::optional<Date> NmeaPoints::dateOfRmc() const {
    const std::string_view date = sentence_.field(rmcDateField);
    const std::string_view time = sentence_.field(fixFieldsOf(SentenceType::Rmc).time);
    return isDateStamp(date, time) ? makeDateStamp(date, time, currentYear_) : std::nullopt;
}

void NmeaPoints::dateFromBefore(std::string_view time) {
    const std::optional<std::chrono::seconds> timeOfDay = makeTimeOfDay(time);
    if (!pending_.date && lastKnown_ && timeOfDay) {
        pending_.date = instantAfter(*lastKnown_, *timeOfDay);
    }
    if (pending_.date) {
        lastKnown_ = pending_.date;
    }
}

/// ZDA: 1 time, 2 day, 3 month, 4 year in four digits.
NmeaPoints::Taken NmeaPoints::takeDate() {
    if (!policy_.datesFromBefore || !sentence_.isSound() || sentence_.fieldCount() < 5) {
        return Taken::No;
    }
    const auto part = [&](std::size_t field) { return leadingInt(sentence_.field(field)); };
    const std::chrono::year_month_day day(std::chrono::year(part(4)),
                                          std::chrono::month(static_cast<unsigned>(part(3))),
                                          std::chrono::day(static_cast<unsigned>(part(2))));
    const std::optional<std::chrono::seconds> timeOfDay = makeTimeOfDay(sentence_.field(1));
    if (!day.ok() || !timeOfDay || sentence_.field(1).size() < 6) {
        return Taken::No;
    }
    lastKnown_ = std::chrono::sys_days(day) + *timeOfDay;
    return Taken::Yes;
}

void NmeaPoints::completePoint(std::size_t pointId) {
    const bool isEmpty = pending_.line.empty();
    if (isEmpty && !policy_.makesEmptyPoint) {
        return;
    }
    if (!isEmpty && !pending_.date) {
        report_.addUnusable(pending_.line, pending_.index + 1);
    }
    if (!track_) {
        track_ = &writer_.makeTrack(trackId, report_);
    }
    writer_.makePoint(track_,
                      {std::move(pending_.lat), std::move(pending_.lon), std::move(pending_.alt),
                       pending_.date, static_cast<std::int32_t>(pointId)},
                      report_);
    pending_ = {};
}

void NmeaPoints::drop() {
    if (!pending_.line.empty()) {
        report_.addUnusable(pending_.line, pending_.index + 1);
    }
    pending_ = {};
}

} // namespace pinmora
