#include "gps/gps.h"

#include "gps/import_telling.h"
#include "gps/log_head.h"
#include "persistence/undo_group.h"
#include "platform/external_entity.h"
#include "platform/text_encoding.h"
#include "platform/translation.h"
#include "platform/zone_scope.h"

#include <string>

namespace pinmora {

namespace {

std::chrono::year currentYear() {
    LocalZone zone;
    const Date now = std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
    const auto day = std::chrono::floor<std::chrono::days>(zone.wallClockAt(now));
    return std::chrono::year_month_day(day).year();
}

std::string stepName() {
    return translated("gps", "Load GPS Data");
}

} // namespace

Gps::Gps(Context &context, ProgressSheet &progress, ErrorSheet &errors, TextLogFormats formats)
    : context_(context), progress_(progress), errors_(errors), formats_(formats),
      gpx_(context, progress, errors), writer_(context) {}

void Gps::beginLoad() {
    gpx_.elements().setInTrack(false);
    gpx_.elements().setActiveLog(false);
    gpx_.elements().setGpxFile(false);
}

LogReport Gps::loadLog(const std::filesystem::path &path) {
    const UndoGroup group(context_, stepName());
    InputFile file;
    if (const std::error_code reason = file.open(path)) {
        return reportUnreadable(path, reason);
    }
    std::string bytes(inputBlockSize, '\0');
    const auto firstBlock = file.read(bytes);
    if (!firstBlock) {
        return reportUnreadable(path, file.lastFailure());
    }
    bytes.resize(firstBlock->size());
    if (beginsWithXml(std::string_view(bytes).substr(0, logHeadSize), policyOf(reading_))) {
        gpx_.elements().setInTrack(false);
        gpx_.elements().setActiveLog(true);
        return readGpx(file, std::move(bytes), path);
    }
    if (!file.readRest(bytes)) {
        return reportUnreadable(path, file.lastFailure());
    }
    return readText(std::move(bytes), path);
}

LogReport Gps::parseXMLFile(const std::filesystem::path &path) {
    const UndoGroup group(context_, stepName());
    InputFile file;
    if (const std::error_code reason = file.open(path)) {
        return reportUnreadable(path, reason);
    }
    return readGpx(file, {}, path);
}

LogReport Gps::processNMEAData(std::string_view text) {
    const UndoGroup group(context_, stepName());
    const ImportFacts facts = factsOf(ImportFacts::Format::Nmea, {});
    const ImportTelling telling(journal_, facts);
    LogReport report = readText(formatOf(facts.format, formats_), text, facts);
    std::string bytes(text);
    telling.give(bytes);
    return report;
}

/// A system error within the file is a document that ends too early, and is told as such.
LogReport Gps::readGpx(InputFile &file, std::string firstBlock, const std::filesystem::path &path) {
    const std::filesystem::path full = std::filesystem::absolute(path);
    const ImportTelling telling(journal_, factsOf(ImportFacts::Format::Gpx, full));
    const auto besideTheLog = [folder = full.parent_path()](std::string_view name) {
        return readEntityBeside(folder, name);
    };
    gpx_.begin(full, reading_, telling.listenedTo(besideTheLog));
    std::string block = std::move(firstBlock);
    while (gpx_.feed(block)) {
        telling.exchange(block);
        const auto read = file.read(block);
        block.resize(read ? read->size() : 0);
        if (block.empty()) {
            break;
        }
    }
    telling.give(block);
    return gpx_.finish();
}

LogReport Gps::readText(std::string bytes, const std::filesystem::path &path) {
    const std::string decoded = isUtf8(bytes) ? std::string() : utf8FromLatin1(bytes);
    const std::string_view text = withoutByteOrderMark(decoded.empty() ? bytes : decoded);
    const TextLogFormat &format = formatOf(text, formats_);
    const ImportFacts facts = factsOf(format.number, std::filesystem::absolute(path));
    const ImportTelling telling(journal_, facts);
    LogReport report = readText(format, text, facts);
    telling.give(bytes);
    return report;
}

LogReport Gps::readText(const TextLogFormat &format, std::string_view text,
                        const ImportFacts &facts) {
    LogReport report = format.read({.text = text,
                                    .path = facts.path,
                                    .reading = reading_,
                                    .currentYear = std::chrono::year(facts.currentYear)},
                                   writer_);
    progress_.closeProgress();
    if (report.failed()) {
        report.message = translated(
            "gps", "There was an error parsing the GPS data file. File is not GPX or NMEA");
        errors_.present(translated("gps", "Error!"), report.message);
    }
    return report;
}

ImportFacts Gps::factsOf(ImportFacts::Format format, const std::filesystem::path &path) const {
    ImportFacts facts;
    facts.format = format;
    facts.path = path.native();
    facts.reading = policyOf(reading_).name;
    facts.zone = computerZone();
    facts.currentYear = static_cast<int>(currentYear());
    gpx_.elements().tell(facts);
    return facts;
}

LogReport Gps::reportUnreadable(const std::filesystem::path &path, std::error_code reason) {
    LogReport report;
    report.path = path;
    report.reading = reading_;
    report.error = LogError::Unreadable;
    report.message =
        filled(translated("gps", "%1 could not be read: %2."), {path.string(), reason.message()});
    errors_.present(translated("gps", "Error!"), report.message);
    return report;
}

} // namespace pinmora
