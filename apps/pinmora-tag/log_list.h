#pragma once

#include "surroundings.h"

#include "gps/log_reading.h"
#include "gps/log_report.h"
#include "photos/log_intake.h"

#include <string>
#include <string_view>
#include <vector>

namespace pinmora {
class Gps;
}

namespace pinmora::tag {

/// Gathers the logs that come along with the photos, so that they can be read once it is known how:
/// which reading is right depends on the photos' times.
class LogList : public LogIntake {
public:
    bool isGPS(std::string_view path) const override;
    /// A log that is reached twice, say by name and in its folder, is one log.
    void readLog(const std::string &path) override { add(path, false); }
    bool readLogFoundByScan(const std::string &path) override;

    bool empty() const { return logs_.empty(); }

    /// What reading all of them has come to.
    struct Outcome {
        std::vector<LogReport> reports;
        std::vector<std::string> passedOver; ///< found in a folder, but no logs under this reading
    };
    Outcome load(Gps &gps, LogReading reading, const Surroundings &surroundings) const;

private:
    struct Log {
        std::string path;
        bool foundByScan;
    };
    void add(const std::string &path, bool foundByScan);

    std::vector<Log> logs_;
};

} // namespace pinmora::tag
