#include "shell/reading_verdict.h"

#include "matching/reading_comparison.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace pinmora {

namespace {

using Why = ReadingVerdict::Why;

/// What a log has to say for the other reading.
struct Evidence {
    const ComparedLog *log;
    std::size_t photosGained = 0; ///< near its points under the other reading, and near none now
    std::size_t textsGained = 0;  ///< that the reading in force leaves out and the other one uses
    bool unread = false;          ///< only the other one can read it

    bool speaksFor() const { return photosGained + textsGained > 0 || unread; }
};

Evidence textsOf(const ComparedLog &log) {
    const LogReport &now = log.inForce->report;
    const LogReport &then = log.other->report;
    Evidence evidence{.log = &log};
    evidence.unread = now.failed() && !then.failed() && !log.other->times.empty();
    if (!now.failed() && now.unusable > then.unusable &&
        log.other->times.size() > log.inForce->times.size()) {
        evidence.textsGained = now.unusable - then.unusable;
    }
    return evidence;
}

/// How many more photos the other reading places than the one in force.
std::int64_t weighPhotos(std::span<const Date> photos, std::vector<Evidence> &evidence) {
    std::int64_t gained = 0;
    for (const Date photo : photos) {
        const auto isNear = [photo](const LogTimes *ComparedLog::*reading) {
            return [photo, reading](const Evidence &one) {
                return isNearPoint(photo, (one.log->*reading)->times);
            };
        };
        const bool now =
            std::any_of(evidence.begin(), evidence.end(), isNear(&ComparedLog::inForce));
        bool then = false;
        for (Evidence &one : evidence) {
            if (isNear(&ComparedLog::other)(one)) {
                one.photosGained += now ? 0U : 1U;
                then = true;
            }
        }
        gained += static_cast<std::int64_t>(then) - static_cast<std::int64_t>(now);
    }
    return gained;
}

std::chrono::seconds shiftOf(const ComparedLog &log) {
    const std::vector<Date> &now = log.inForce->times;
    const std::vector<Date> &then = log.other->times;
    return now.empty() || now.size() != then.size()
               ? std::chrono::seconds(0)
               : std::chrono::round<std::chrono::seconds>(
                     std::chrono::abs(then.front() - now.front()));
}

void setReason(const Evidence &evidence, ReadingVerdict &verdict) {
    const ComparedLog &log = *evidence.log;
    const LogReport &now = log.inForce->report;
    verdict.by = shiftOf(log);
    if (evidence.unread) {
        verdict.why = Why::Unread;
        verdict.count = log.other->times.size();
    } else if (evidence.textsGained > 0) {
        verdict.why = Why::LeftOut;
        verdict.count = evidence.textsGained;
        const bool areSentences = now.sample && now.sample->text.starts_with('$');
        verdict.of = areSentences ? 0 : log.other->report.points + log.other->report.unusable;
    } else if (verdict.by.count() != 0) {
        verdict.why = Why::Shifted;
    } else {
        verdict.why = Why::MoreFits;
        verdict.count = evidence.photosGained;
    }
}

} // namespace

std::optional<ReadingVerdict> judgeReadings(std::span<const Date> photos,
                                            std::span<const ComparedLog> logs) {
    std::vector<Evidence> evidence;
    std::transform(logs.begin(), logs.end(), std::back_inserter(evidence), textsOf);
    const std::int64_t gained = weighPhotos(photos, evidence);
    std::erase_if(evidence, [](const Evidence &one) { return !one.speaksFor(); });
    if (gained < 0 || evidence.empty()) {
        return std::nullopt;
    }
    ReadingVerdict verdict{.better = evidence.front().log->other->report.reading, .log = {}};
    // That the exact reading takes what the tolerant one leaves out (no fix, a wrong checksum)
    // speaks for it only where photos do.
    if (gained == 0 && (verdict.better == LogReading::Exact ||
                        std::none_of(evidence.begin(), evidence.end(), [](const Evidence &one) {
                            return one.unread || one.textsGained > 0;
                        }))) {
        return std::nullopt;
    }
    const auto most = std::max_element(evidence.begin(), evidence.end(),
                                       [](const Evidence &a, const Evidence &b) {
                                           return std::pair(a.photosGained, a.textsGained) <
                                                  std::pair(b.photosGained, b.textsGained);
                                       });
    verdict.log = std::filesystem::path(most->log->path).filename().native();
    setReason(*most, verdict);
    verdict.otherLogs = evidence.size() - 1;
    return verdict;
}

} // namespace pinmora
