// Importing an NMEA log, by the byte, against importing a GPX file.

#include "log_import.h"
#include "ratio.h"

#include <algorithm>
#include <limits>

using namespace pinmora;

int main() {
    constexpr std::size_t many = 1'000'000;
    const bench::LogFiles files;
    const auto gpx = files.gpx(many);
    const auto large = files.nmea(many);
    const auto small = files.nmea(many / 10);

    constexpr double never = std::numeric_limits<double>::infinity();
    bench::Pair best{never, never};
    double tolerant = never;
    double smallBest = never;
    for (int run = 0; run < 5; ++run) {
        best.work = std::min(best.work, bench::secondsOfImport(large, many));
        best.yardstick = std::min(best.yardstick, bench::secondsOfImport(gpx, many));
        tolerant = std::min(tolerant, bench::secondsOfImport(large, many, LogReading::Tolerant));
        smallBest = std::min(smallBest, bench::secondsOfImport(small, many / 10));
    }
    const double bytes = static_cast<double>(std::filesystem::file_size(large)) /
                         static_cast<double>(std::filesystem::file_size(gpx));
    bench::Report report;
    report.atMost("NMEA import / GPX import, by byte", best.ratio() / bytes, 1);
    report.atMost("the same, tolerant reading", tolerant / bytes / best.yardstick, 1);
    report.atMost("NMEA import, 10x the points", best.work / smallBest, 12);
    return report.exitStatus();
}
