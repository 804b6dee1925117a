#include "store/track_part_best.h"

#include "persistence/property.h"
#include "store/track.h"

namespace pinmora {

const EntityDescription &track_part_best::description() {
    using P = track_part_best;
    static const EntityDescription entity(
        "track_part_best", []() -> std::unique_ptr<Record> { return std::make_unique<P>(); },
        {
            toOne<&P::track, &P::setTrack, &P::track_, &P::link>("track"),
            attribute<&P::time, &P::setTimeWithDate, &P::time_>("time"),
            attribute<&P::lat, &P::setLat, &P::lat_>("lat"),
            attribute<&P::lon, &P::setLon, &P::lon_>("lon"),
            attribute<&P::alt, &P::setAlt, &P::alt_>("alt"),
            attribute<&P::point_id, &P::setPoint_id, &P::point_id_>("point_id"),
            derived<&P::bestTrackSet>("bestTrackSet", {"point_id"}),
        });
    return entity;
}

} // namespace pinmora
