#pragma once

#include "matching/apply_outcome.h"
#include "matching/nearest_points.h"
#include "outlets/signal.h"

#include <cstddef>
#include <vector>

namespace pinmora {

class ClockOffset;
class NotificationCentre;
class image;
class track_part;
struct Button;
struct MatchingOutlets;

/// Gives photos the places of the track points nearest in time to when they were taken, one photo
/// or all; and finds the point at a known position, from which the clock offset follows.
class Matcher {
public:
    /// All must outlive it. Steps of the clock offset match the selected photo anew.
    Matcher(Context &context, NotificationCentre &notifications, ClockOffset &clockOffset,
            MatchingOutlets &outlets);

    /// The point nearest in time to the photo's corrected time (NearestPoints), however far away;
    /// null for a photo without a date and when there is no point.
    track_part *getLatLonAlt(const image &photo);

    /// Matches the first selected photo: shows its corrected time, makes the nearest point the one
    /// in `bestGPS`, and sets the offset anew. Nothing happens without a photo with a date; without
    /// a point it is left with the time.
    void gpsMatcher(bool updateFields);
    /// Takes half-typed input over, then gpsMatcher() with the offset's fields rewritten. Like the
    /// other actions of a person it does nothing when some of that input is unfit.
    void startGPSMatch();

    /// Takes half-typed input over, then sets the offset by the first selected photo and the point
    /// nearest to the position in `knownLat` and `knownLon`. Nothing happens unless both hold
    /// such a number and nothing else; the field that does not tells why.
    void guessFromLatLon();

    /// Sets the offset by the first selected photo and the point, or the point nearest to the
    /// place, and places the photo there. Nothing happens without a photo with a date.
    void setFromPoint(track_part &point);
    void setFromPlace(Position place);
    /// Sets the offset so that the first selected photo was taken at that time; its position stays.
    void setFromTrueTime(Date taken);

    /// Gives all photos, in arranged order, latitude, longitude and altitude of their points; one
    /// without a point stays as it is. The progress sheet counts them.
    void applyToAllPictures();
    /// The same for the selected photos, and for those that have no position yet. Photos that do
    /// not tell when they were taken are left as they are.
    void applyToSelected();
    void applyToPhotosWithoutPosition();
    /// Sent at the end of each of the three.
    Signal<const ApplyOutcome &> applied;
    /// Whether that is at work: the photos' notices of new positions are then not worth following.
    const bool &runningApplyToAll() const { return runningApplyToAll_; }

private:
    image *photoInHand() const;
    void guessFromSelectedPhoto();
    void applyToTimed(std::vector<image *> photos);
    ApplyOutcome applyTo(const std::vector<image *> &photos);
    void place(image &photo, ApplyOutcome &outcome);
    void postSelectedPosition() const;

    Context &context_;
    NotificationCentre &notifications_;
    ClockOffset &clockOffset_;
    MatchingOutlets &outlets_;
    NearestPoints points_;
    bool runningApplyToAll_ = false;
    std::vector<Connection> connections_;
};

} // namespace pinmora
