#include "gps/csv_log.h"

#include "gps/iso_time.h"
#include "gps/track_writer.h"
#include "platform/number_text.h"

#include <array>
#include <cmath>
#include <utility>

namespace pinmora::test {

namespace {

constexpr std::string_view heading = "time,latitude,longitude";

/// Takes the text up to the next separator, or all of it, out of `rest`.
std::string_view takeUntil(char separator, std::string_view &rest) {
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

bool isDegrees(std::string_view text, double largest) {
    const std::optional<double> degrees = plainDecimal(text);
    return degrees && std::abs(*degrees) <= largest;
}

/// Nothing for a line that is no point. The texts stay as they are: a position is never turned into
/// a number and back.
std::optional<PointValues> pointFrom(std::string_view line) {
    const std::optional<Date> time = instantFromIsoText(takeUntil(',', line));
    const std::string_view lat = takeUntil(',', line);
    const std::string_view lon = takeUntil(',', line);
    if (!time || !isDegrees(lat, 90) || !isDegrees(lon, 180)) {
        return std::nullopt;
    }
    PointValues values;
    values.lat = Text(lat);
    values.lon = Text(lon);
    values.alt = plainDecimal(line) ? Text(line) : Text();
    values.time = time;
    return values;
}

} // namespace

bool beginsCsvLog(std::string_view head) {
    return head.starts_with(heading);
}

LogReport readCsvLog(const TextLog &log, TrackWriter &writer) {
    LogReport report;
    report.path = log.path;
    report.reading = log.reading;
    track &made = writer.makeTrack(1, report);
    std::string_view rest = log.text;
    takeUntil('\n', rest); // the heading
    for (std::size_t number = 2; !rest.empty(); ++number) {
        std::string_view line = takeUntil('\n', rest);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (std::optional<PointValues> values = pointFrom(line)) {
            values->point_id = static_cast<std::int32_t>(report.points + 1);
            writer.makePoint(&made, std::move(*values), report);
        } else if (!line.empty()) {
            report.addUnusable(line, number);
        }
    }
    return report;
}

} // namespace pinmora::test
