#pragma once

#include "persistence/record.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace pinmora {

class track_part;

/// One imported track: a GPX segment or an NMEA log. Deleting it deletes its points.
class track : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    /// The number of the track. GPX: counted over all segments since start-up, from 1; NMEA: 1.
    const std::optional<std::int32_t> &track_id() const { return read("track_id", track_id_); }
    void setTrack_id(std::optional<std::int32_t> id) { change("track_id", track_id_, id); }

    /// The full path of the log it came from.
    const Text &log_path() const { return read("log_path", log_path_); }
    void setLog_path(Text path) { change("log_path", log_path_, std::move(path)); }

    /// The reading that made it: "exact" or "tolerant".
    const Text &log_reading() const { return read("log_reading", log_reading_); }
    void setLog_reading(Text reading) { change("log_reading", log_reading_, std::move(reading)); }

    /// The points, in no order.
    const std::vector<pinmora::track_part *> &points() const {
        return read("track_part", track_part_);
    }
    /// Adds a point to the set; a member stays one member, one of another track moves here.
    void addTrack_partObject(pinmora::track_part &point);
    /// Takes a point out of the set; nothing happens when it is not a member.
    void removeTrack_partObject(pinmora::track_part &point);

private:
    friend class track_part;
    RecordList pointList() const;

    std::optional<std::int32_t> track_id_;
    Text log_path_;
    Text log_reading_;
    std::vector<pinmora::track_part *> track_part_;
};

} // namespace pinmora
