#include "shell/log_intake_adapter.h"

#include "gps/gps.h"
#include "gps/log_head.h"

namespace pinmora {

bool LogIntakeAdapter::isGPS(std::string_view path) const {
    return gps_.isGPS(path);
}

void LogIntakeAdapter::readLog(const std::string &path) {
    reports_.push_back(gps_.loadLog(path));
}

/// Looked at with the reading that takes more: what only that one can read is read all the same,
/// and its message leads to the offer to read it so.
bool LogIntakeAdapter::readLogFoundByScan(const std::string &path) {
    if (!looksLikeLog(path, LogReading::Tolerant)) {
        return false;
    }
    readLog(path);
    return true;
}

} // namespace pinmora
