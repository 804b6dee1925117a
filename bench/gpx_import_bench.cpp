// Importing a GPX file into records, against a pass of the bare XML parser over the same file.

#include "bare_expat.h"
#include "log_import.h"
#include "ratio.h"

#include <algorithm>
#include <limits>

using namespace pinmora;

int main() {
    constexpr std::size_t many = 1'000'000;
    const bench::LogFiles files;
    const auto large = files.gpx(many);
    const auto small = files.gpx(many / 10);

    bench::Report report;
    const bench::Memory memory = bench::memoryOfImport(large, many);
    report.atMost("GPX import, peak bytes a point", memory.peak, 300);
    report.atMost("GPX import, settled bytes a point", memory.settled, 250);

    constexpr double never = std::numeric_limits<double>::infinity();
    bench::Pair best{never, never};
    double smallBest = never;
    for (int run = 0; run < 5; ++run) {
        best.work = std::min(best.work, bench::secondsOfImport(large, many));
        best.yardstick =
            std::min(best.yardstick, bench::seconds([&large] { bench::parseBarely(large); }));
        smallBest = std::min(smallBest, bench::secondsOfImport(small, many / 10));
    }
    report.atMost("GPX import / bare Expat pass", best.ratio(), 2);
    report.atMost("GPX import, 10x the points", best.work / smallBest, 12);
    return report.exitStatus();
}
