#pragma once

#include "matching/point_index.h"
#include "persistence/change_observer.h"
#include "platform/date.h"

#include <cstdint>
#include <optional>

namespace pinmora {

class Context;
class image;
class offset;
class track_part;

/// The map zoom level of a photo that has been placed at a track point.
inline constexpr std::int32_t placedZoom = 10;

/// Gives photos the places of the track points nearest in time to when they were taken.
///
/// The arranged order of the points is the order in which they came into the context. The first
/// search indexes them. From then on the matcher observes the context, so that the index goes as
/// soon as a point comes, goes or changes; the next search makes a new one.
class Matcher : private ChangeObserver {
public:
    /// The clock offset is read anew for each photo. Both must outlive the matcher.
    Matcher(Context &context, const offset &clockOffset);
    ~Matcher() override;
    Matcher(const Matcher &) = delete;
    Matcher &operator=(const Matcher &) = delete;

    /// The photo's date with the clock offset applied; nothing for a photo without a date. No
    /// four-digit year and no offset are too large for it.
    std::optional<Date> correctedTime(const image &photo) const;

    /// The point nearest to the photo's corrected time (see PointIndex), however far away; null
    /// for a photo without a date and when there is no point.
    track_part *getLatLonAlt(const image &photo);

    /// Gives the photo the latitude, longitude and altitude of its nearest point, texts as they
    /// are, and returns that point. Null: there is none, and the photo stays as it was.
    track_part *placeAtNearestPoint(image &photo);

    /// Forgets the index and stops observing until the next search. Never needed for right answers;
    /// called before logs are imported it spares each of their points the notices, which would
    /// take several times as long as filling the records. Not for use inside a notice.
    void dropIndex();

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &record) override;
    void didDelete(Record &record) override;
    void forgetIndexOver(const Record &record);

    Context &context_;
    const offset &offset_;
    std::optional<PointIndex> index_;
    bool observing_ = false;
};

} // namespace pinmora
