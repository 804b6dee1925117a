#include "gps/gps.h"

#include "gps/log_head.h"
#include "platform/text_encoding.h"

#include <array>
#include <string>
#include <vector>

namespace pinmora {

namespace {

std::chrono::year currentYear() {
    LocalZone zone;
    const Date now = std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
    const auto day = std::chrono::floor<std::chrono::days>(zone.wallClockAt(now));
    return std::chrono::year_month_day(day).year();
}

} // namespace

Gps::Gps(Context &context, ProgressSheet &progress, ErrorSheet &errors)
    : errors_(errors), gpx_(context, progress, errors), nmea_(context, progress, errors) {}

void Gps::beginLoad() {
    gpx_.elements().setInTrack(false);
    gpx_.elements().setActiveLog(false);
    gpx_.elements().setGpxFile(false);
}

LogReport Gps::loadLog(const std::filesystem::path &path) {
    LogFile file;
    if (const std::error_code reason = file.open(path)) {
        return reportUnreadable(path, reason);
    }
    std::string bytes(logBlockSize, '\0');
    const auto firstBlock = file.read(bytes);
    if (firstBlock && beginsWithXml(firstBlock->substr(0, logHeadSize), policyOf(reading_))) {
        gpx_.elements().setInTrack(false);
        gpx_.elements().setActiveLog(true);
        return readGpx(file, *firstBlock, path);
    }
    if (firstBlock) {
        bytes.resize(firstBlock->size());
    }
    if (!firstBlock || !file.readRest(bytes)) {
        return reportUnreadable(path, file.lastFailure());
    }
    const std::string text = utf8OrLatin1(std::move(bytes));
    return readNmea(withoutByteOrderMark(text), path);
}

LogReport Gps::parseXMLFile(const std::filesystem::path &path) {
    LogFile file;
    if (const std::error_code reason = file.open(path)) {
        return reportUnreadable(path, reason);
    }
    return readGpx(file, {}, path);
}

/// A system error within the file is a document that ends too early, and is told as such.
LogReport Gps::readGpx(LogFile &file, std::string_view firstBlock,
                       const std::filesystem::path &path) {
    gpx_.begin(std::filesystem::absolute(path), reading_);
    std::vector<char> buffer(logBlockSize);
    bool wantsMore = gpx_.feed(firstBlock);
    while (wantsMore) {
        const auto block = file.read(buffer);
        if (!block || block->empty()) {
            break;
        }
        wantsMore = gpx_.feed(*block);
    }
    return gpx_.finish();
}

LogReport Gps::readNmea(std::string_view text, const std::filesystem::path &path) {
    return nmea_.read(text, path.empty() ? path : std::filesystem::absolute(path), reading_,
                      currentYear());
}

LogReport Gps::reportUnreadable(const std::filesystem::path &path, std::error_code reason) {
    LogReport report;
    report.path = path;
    report.reading = reading_;
    report.error = LogError::Unreadable;
    report.message = path.string() + " could not be read: " + reason.message() + ".";
    errors_.present("Error!", report.message);
    return report;
}

} // namespace pinmora
