#pragma once

#include "gps/log_report.h"
#include "photos/log_intake.h"

#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class Gps;

/// Reads the logs that come along with photos, by the one rule for all logs, and keeps what became
/// of them.
class LogIntakeAdapter : public LogIntake {
public:
    /// `gps` must outlive it.
    explicit LogIntakeAdapter(Gps &gps) : gps_(gps) {}

    bool isGPS(std::string_view path) const override;
    void readLog(const std::string &path) override;
    bool readLogFoundByScan(const std::string &path) override;

    /// Forgets the reports; the readers stay in the state that they are in.
    void beginLoad() { reports_.clear(); }
    /// Of the logs read since, one each.
    const std::vector<LogReport> &reports() const { return reports_; }

private:
    Gps &gps_;
    std::vector<LogReport> reports_;
};

} // namespace pinmora
