#include "gps/nmea_reader.h"

#include "gps/nmea_lines.h"
#include "gps/nmea_points.h"

#include <optional>

namespace pinmora {

namespace {

bool isLog(std::string_view text, const ReadingPolicy &policy) {
    for (NmeaLines lines(text); lines.next();) {
        if (lines.line().starts_with(policy.sentenceStart)) {
            return !(policy.needsLineAfterStart && lines.isLast());
        }
    }
    return false;
}

} // namespace

LogReport readNmeaLog(const TextLog &log, TrackWriter &writer) {
    const ReadingPolicy &policy = policyOf(log.reading);
    LogReport report;
    report.path = log.path;
    report.reading = log.reading;
    std::optional<NmeaPoints> points;
    if (isLog(log.text, policy)) {
        points.emplace(writer, report, log.currentYear);
    } else {
        report.error = LogError::NotALog;
    }

    NmeaLines lines(log.text);
    while (lines.next()) {
        const auto taken =
            points ? points->take(lines.line(), lines.index()) : NmeaPoints::Taken::No;
        if (taken != NmeaPoints::Taken::Yes && isPositionSentence(lines.line())) {
            report.addUnusable(lines.line(), lines.index() + 1);
        }
        if (taken == NmeaPoints::Taken::Broken) {
            points->drop();
            points.reset();
        }
    }
    if (points) {
        points->finish(lines.count());
    }

    if (!policy.makesEmptyPoint && report.points == 0 && report.unusable == 0) {
        report.error = LogError::NotALog; // not one sentence of use, and none that is at fault
    }

    return report;
}

} // namespace pinmora
