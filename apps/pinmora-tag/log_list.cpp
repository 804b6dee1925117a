#include "log_list.h"

#include "gps/gps.h"
#include "gps/log_file_types.h"
#include "gps/log_head.h"
#include "platform/translation.h"

#include <filesystem>
#include <system_error>

namespace pinmora::tag {

bool LogList::isGPS(std::string_view path) const {
    return namesGpsLog(path);
}

bool LogList::readLogFoundByScan(const std::string &path) {
    // The tolerant reading takes all that the exact one takes, and more.
    if (!looksLikeLog(path, LogReading::Tolerant)) {
        return false;
    }
    add(path, true);
    return true;
}

void LogList::add(const std::string &path, bool foundByScan) {
    for (Log &log : logs_) {
        std::error_code error;
        if (std::filesystem::equivalent(log.path, path, error) && !error) {
            log.foundByScan = log.foundByScan && foundByScan;
            return;
        }
    }
    logs_.push_back({path, foundByScan});
}

LogList::Outcome LogList::load(Gps &gps, LogReading reading,
                               const Surroundings &surroundings) const {
    Outcome outcome;
    gps.setReading(reading);
    gps.beginLoad();
    for (std::size_t i = 0; i < logs_.size(); ++i) {
        const Log &log = logs_[i];
        surroundings.progress(filled(translated("tag", "Reading log %1 of %2"),
                                     {std::to_string(i + 1), std::to_string(logs_.size())}));
        if (log.foundByScan && !looksLikeLog(log.path, reading)) {
            outcome.passedOver.push_back(log.path);
        } else {
            outcome.reports.push_back(gps.loadLog(log.path));
        }
    }
    return outcome;
}

} // namespace pinmora::tag
