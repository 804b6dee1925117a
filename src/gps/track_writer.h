#pragma once

#include "gps/log_report.h"
#include "persistence/context.h"

#include <cstdint>
#include <filesystem>
#include <optional>

namespace pinmora {

class track;

/// The values of a point as a reader has found them.
struct PointValues {
    Text lat;
    Text lon;
    Text alt;
    std::optional<Date> time;
    std::int32_t point_id = 0;
};

/// Makes the records that the readers find and counts them in the report of the log. Values are
/// written by key, so that the record classes' own setters run; the keys are looked up once.
class TrackWriter {
public:
    explicit TrackWriter(Context &context);

    track &makeTrack(std::int32_t id, LogReport &report);
    /// `track` may be null: then the point belongs to none.
    void makePoint(track *track, PointValues values, LogReport &report);

    /// Whether a track that was made once, with that number and from that log, has not been deleted
    /// since. Its address alone does not tell: another one may have come there.
    bool stillHolds(const track *track, std::int32_t id, const std::filesystem::path &log) const;

private:
    Context &context_;
    const Property &track_id_;
    const Property &log_path_;
    const Property &log_reading_;
    const Property &lat_;
    const Property &lon_;
    const Property &alt_;
    const Property &timeWithDate_;
    const Property &point_id_;
};

} // namespace pinmora
