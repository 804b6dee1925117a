#pragma once

#include "persistence/record.h"
#include "store/camera_offsets.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace pinmora {

/// The camera clock offset: what is added to a photo's capture time before it is compared with
/// track points. A fresh record has no values and is a zero offset.
class offset : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    /// 1 (any number but 0): the offset is added; 0 or absent: it is subtracted.
    const std::optional<std::int32_t> &plus() const { return read("plus", plus_); }
    void setPlus(std::optional<std::int32_t> plus) { change("plus", plus_, plus); }
    const std::optional<std::int32_t> &hours() const { return read("hours", hours_); }
    void setHours(std::optional<std::int32_t> hours) { change("hours", hours_, hours); }
    const std::optional<std::int32_t> &minutes() const { return read("minutes", minutes_); }
    void setMinutes(std::optional<std::int32_t> minutes) { change("minutes", minutes_, minutes); }
    const std::optional<std::int32_t> &seconds() const { return read("seconds", seconds_); }
    void setSeconds(std::optional<std::int32_t> seconds) { change("seconds", seconds_, seconds); }
    /// 1 once the offset has been derived from a photo and a track point.
    const std::optional<std::int32_t> &offset_set() const {
        return read("offset_set", offset_set_);
    }
    void setOffset_set(std::optional<std::int32_t> set) { change("offset_set", offset_set_, set); }

    /// The cameras that have an offset of their own instead (CameraOffsets); no value: none has.
    const Text &camera_offsets() const { return read("camera_offsets", camera_offsets_); }
    void setCamera_offsets(Text offsets) {
        change("camera_offsets", camera_offsets_, std::move(offsets));
    }

    bool not_enabled() const { return false; }

    /// Sign, hours, minutes and seconds, in one.
    ClockParts parts() const;
    void setParts(const ClockParts &parts);

    /// The sum of the three fields, which are not normalised against each other (75 minutes are 75
    /// minutes), negated when it is to be subtracted.
    std::chrono::seconds signedOffset() const;
    /// That of the camera, where it has its own, else signedOffset().
    std::chrono::seconds signedOffsetFor(std::string_view camera) const;
    const CameraOffsets &cameraOffsets() const;

private:
    std::optional<std::int32_t> plus_;
    std::optional<std::int32_t> hours_;
    std::optional<std::int32_t> minutes_;
    std::optional<std::int32_t> seconds_;
    std::optional<std::int32_t> offset_set_;
    Text camera_offsets_;
    /// What the text says, read when it has become another one: undo writes it without a setter.
    mutable Text readFrom_;
    mutable CameraOffsets cameraOffsets_;
};

} // namespace pinmora
