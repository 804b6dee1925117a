#include "gps/nmea_reader.h"

#include "gps/nmea_lines.h"
#include "gps/nmea_points.h"
#include "platform/translation.h"

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

NmeaReader::NmeaReader(Context &context, ProgressSheet &progress, ErrorSheet &errors)
    : progress_(progress), errors_(errors), writer_(context) {}

LogReport NmeaReader::read(std::string_view text, const std::filesystem::path &path,
                           LogReading reading, std::chrono::year currentYear) {
    LogReport report;
    report.path = path;
    report.reading = reading;
    std::optional<NmeaPoints> points;
    if (isLog(text, policyOf(reading))) {
        points.emplace(writer_, report, currentYear);
    } else {
        report.error = LogError::NotALog;
    }

    NmeaLines lines(text);
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

    if (!policyOf(reading).makesEmptyPoint && report.points == 0 && report.unusable == 0) {
        report.error = LogError::NotALog; // not one sentence of use, and none that is at fault
    }

    progress_.closeProgress();
    if (report.failed()) {
        report.message = translated(
            "gps", "There was an error parsing the GPS data file. File is not GPX or NMEA");
        errors_.present(translated("gps", "Error!"), report.message);
    }
    return report;
}

} // namespace pinmora
