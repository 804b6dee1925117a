#include "log_list.h"

#include "gps/gps.h"
#include "gps/log_file_types.h"
#include "gps/log_head.h"

namespace pinmora::tag {

bool LogList::isGPS(std::string_view path) const {
    return namesGpsLog(path);
}

bool LogList::readLogFoundByScan(const std::string &path) {
    // The tolerant reading takes all that the exact one takes, and more.
    if (!looksLikeLog(path, LogReading::Tolerant)) {
        return false;
    }
    logs_.push_back({path, true});
    return true;
}

LogList::Outcome LogList::load(Gps &gps, LogReading reading) const {
    Outcome outcome;
    gps.setReading(reading);
    gps.beginLoad();
    for (const Log &log : logs_) {
        if (log.foundByScan && !looksLikeLog(log.path, reading)) {
            outcome.passedOver.push_back(log.path);
        } else {
            outcome.reports.push_back(gps.loadLog(log.path));
        }
    }
    return outcome;
}

} // namespace pinmora::tag
