#include "gps/track_writer.h"

#include "store/track.h"
#include "store/track_part.h"

#include <algorithm>

namespace pinmora {

TrackWriter::TrackWriter(Context &context)
    : context_(context), track_id_(track::description().property("track_id")),
      log_path_(track::description().property("log_path")),
      log_reading_(track::description().property("log_reading")),
      lat_(track_part::description().property("lat")),
      lon_(track_part::description().property("lon")),
      alt_(track_part::description().property("alt")),
      timeWithDate_(track_part::description().property("timeWithDate")),
      point_id_(track_part::description().property("point_id")) {}

track &TrackWriter::makeTrack(std::int32_t id, LogReport &report) {
    auto &made = context_.insert<track>();
    track_id_.set(made, Value(id));
    log_path_.set(made, report.path.empty() ? Value() : Value(report.path.string()));
    log_reading_.set(made, Value(policyOf(report.reading).name));
    ++report.tracks;
    return made;
}

void TrackWriter::makePoint(track *track, PointValues values, LogReport &report) {
    auto &point = context_.insert<track_part>();
    lat_.set(point, Value(std::move(values.lat)));
    lon_.set(point, Value(std::move(values.lon)));
    alt_.set(point, Value(std::move(values.alt)));
    timeWithDate_.set(point, Value(values.time));
    point_id_.set(point, Value(values.point_id));
    point.setTrack(track);
    ++report.points;
}

bool TrackWriter::stillHolds(const pinmora::track *track, std::int32_t id,
                             const std::filesystem::path &log) const {
    const auto tracks = context_.fetch<pinmora::track>();
    return std::any_of(tracks.begin(), tracks.end(), [&](const pinmora::track *one) {
        return one == track && one->track_id() == id && one->log_path().view() == log.native();
    });
}

} // namespace pinmora
