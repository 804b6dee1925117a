// Importing a GPX file into records, against a pass of the bare XML parser over the same file.

#include "log_import.h"
#include "ratio.h"

#include <algorithm>
#include <expat.h>
#include <limits>
#include <memory>
#include <vector>

using namespace pinmora;

namespace {

/// What an import can at best come near to: Expat with handlers that do nothing, the file read in
/// the same blocks.
void parseBarely(const std::filesystem::path &path) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), XML_ParserFree);
    XML_SetElementHandler(
        parser.get(), [](void *, const XML_Char *, const XML_Char **) {},
        [](void *, const XML_Char *) {});
    XML_SetCharacterDataHandler(parser.get(), [](void *, const XML_Char *, int) {});
    LogFile file;
    if (file.open(path)) {
        return;
    }
    std::vector<char> buffer(logBlockSize);
    for (auto block = file.read(buffer); block && !block->empty(); block = file.read(buffer)) {
        XML_Parse(parser.get(), block->data(), static_cast<int>(block->size()), 0);
    }
    XML_Parse(parser.get(), nullptr, 0, 1);
}

} // namespace

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
        best.yardstick = std::min(best.yardstick, bench::seconds([&large] { parseBarely(large); }));
        smallBest = std::min(smallBest, bench::secondsOfImport(small, many / 10));
    }
    report.atMost("GPX import / bare Expat pass", best.ratio(), 2);
    report.atMost("GPX import, 10x the points", best.work / smallBest, 12);
    return report.exitStatus();
}
