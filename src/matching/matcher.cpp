#include "matching/matcher.h"

#include "coords/degree_text.h"
#include "matching/clock_offset.h"
#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "outlets/pointer_script.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/notification_centre.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"
#include "store/image.h"
#include "store/offset.h"

#include <chrono>
#include <utility>

namespace pinmora {

namespace {

std::string matchAction() {
    return translated("matching", "Match Photo");
}

} // namespace

Matcher::Matcher(Context &context, NotificationCentre &notifications, ClockOffset &clockOffset,
                 MatchingOutlets &outlets)
    : context_(context), notifications_(notifications), clockOffset_(clockOffset),
      outlets_(outlets), points_(context) {
    connections_.push_back(clockOffset.stepped.connect([this] { gpsMatcher(false); }));
    connections_.push_back(outlets.matchButton.pressed.connect([this] { startGPSMatch(); }));
    for (Button *button : {&outlets.offsetButton, &outlets.offsetButton2}) {
        connections_.push_back(button->pressed.connect([this] { guessFromSelectedPhoto(); }));
    }
}

track_part *Matcher::getLatLonAlt(const image &photo) {
    const offset *const clockOffset = outlets_.offsetObj.content();
    const std::optional<Date> corrected =
        clockOffset ? correctedTime(photo, *clockOffset) : std::nullopt;
    return corrected ? points_.inTime(*corrected) : nullptr;
}

/// Null unless there is one whose time can be compared.
image *Matcher::photoInHand() const {
    image *const photo = outlets_.pictureArray.firstSelectedObject();
    return photo && photo->date() ? photo : nullptr;
}

void Matcher::gpsMatcher(bool updateFields) {
    const image *const photo = photoInHand();
    const offset *const clockOffset = outlets_.offsetObj.content();
    if (!photo || !clockOffset) {
        return;
    }
    const UndoGroup group(context_, matchAction());
    clockOffset_.showCorrectedTime(*correctedTime(*photo, *clockOffset));
    if (track_part *const point = getLatLonAlt(*photo)) {
        outlets_.bestGPS.setContent(point);
        clockOffset_.setNewOffset(updateFields);
    }
}

void Matcher::startGPSMatch() {
    if (context_.commitEditing()) {
        gpsMatcher(true);
    }
}

void Matcher::guessFromLatLon() {
    if (!context_.commitEditing()) {
        return;
    }
    const std::optional<double> lat = readDegrees(outlets_.knownLat, latitudeKind);
    const std::optional<double> lon = readDegrees(outlets_.knownLon, longitudeKind);
    if (lat && lon) {
        setFromPlace({.lat = *lat, .lon = *lon});
    }
}

void Matcher::setFromPlace(Position place) {
    if (track_part *const point = photoInHand() ? points_.inPlace(place) : nullptr) {
        setFromPoint(*point);
    }
}

void Matcher::setFromPoint(track_part &point) {
    if (photoInHand()) {
        const UndoGroup group(context_, matchAction());
        outlets_.bestGPS.setContent(&point);
        clockOffset_.setNewOffset(true);
    }
}

void Matcher::setFromTrueTime(Date taken) {
    if (const image *const photo = photoInHand()) {
        using std::chrono::seconds;
        const auto apart = std::chrono::round<seconds>(taken - *photo->date());
        clockOffset_.setClock(clockOffset_.clockOf(*photo), apart);
    }
}

/// The photo's position may still be half typed.
void Matcher::guessFromSelectedPhoto() {
    if (!context_.commitEditing()) {
        return;
    }
    const image *const photo = outlets_.pictureArray.firstSelectedObject();
    if (photo && photo->lat_and_lon()) {
        outlets_.knownLat.text.set(photo->lat().string());
        outlets_.knownLon.text.set(photo->lon().string());
        guessFromLatLon();
    }
}

void Matcher::applyToAllPictures() {
    if (!context_.commitEditing()) {
        return; // what is half typed would be taken over later, on top of the matched positions
    }
    // A copy: handlers of the progress sheet may change what is arranged.
    const ApplyOutcome outcome = applyTo(std::vector(outlets_.pictureArray.arrangedObjects()));
    context_.commitEditing();
    outlets_.offsetText.text.set("");
    outlets_.offsetText2.text.set("");
    postSelectedPosition();
    if (outcome.placed > 0) {
        outlets_.nextButtonAppliedAll.enabled.set(true);
        outlets_.congrats1.visible.set(true);
        outlets_.congrats2.visible.set(true);
    }
    applied.emit(outcome);
}

void Matcher::applyToSelected() {
    if (context_.commitEditing()) {
        applyToTimed(outlets_.pictureArray.selectedObjects());
    }
}

void Matcher::applyToPhotosWithoutPosition() {
    if (context_.commitEditing()) {
        std::vector photos(outlets_.pictureArray.arrangedObjects());
        std::erase_if(photos, [](const image *photo) { return photo->lat_and_lon(); });
        applyToTimed(std::move(photos));
    }
}

void Matcher::applyToTimed(std::vector<image *> photos) {
    ApplyOutcome untimed;
    std::erase_if(photos, [&untimed](const image *photo) {
        const bool isTimed = photo->captureTime().has_value();
        if (!isTimed) {
            untimed.untimed.push_back(photo->serial());
        }
        return !isTimed;
    });
    ApplyOutcome outcome = applyTo(photos);
    outcome.untimed = std::move(untimed.untimed);
    postSelectedPosition();
    applied.emit(outcome);
}

ApplyOutcome Matcher::applyTo(const std::vector<image *> &photos) {
    const UndoGroup group(context_, translated("matching", "Apply GPS Data to Photos"));
    const ScopedFlag running(runningApplyToAll_);
    const std::string total = std::to_string(photos.size());
    outlets_.progress.showProgressWindow(translated("matching", "Applying to GPS data to photos"),
                                         "", static_cast<double>(photos.size()));
    const std::string words = translated("matching", "Processing %1 of %2");
    ApplyOutcome outcome;
    std::size_t number = 0;
    for (image *photo : photos) {
        outlets_.progress.advance(filled(words, {std::to_string(++number), total}));
        place(*photo, outcome);
    }
    outlets_.progress.closeProgress();
    return outcome;
}

void Matcher::place(image &photo, ApplyOutcome &outcome) {
    const bool isTimed = photo.captureTime().has_value();
    if (!isTimed) {
        outcome.untimed.push_back(photo.serial());
    }
    const track_part *const point = getLatLonAlt(photo);
    if (!point) {
        return;
    }
    const std::optional<Date> corrected = correctedTime(photo, *outlets_.offsetObj.content());
    if (isTimed && !points_.coverage().covers(*corrected)) {
        outcome.far.push_back(photo.serial());
    }
    const bool hadItsOwn =
        photo.lat_and_lon() && photo.position_source().view() != PositionSource::log;
    const Text lat = photo.lat();
    const Text lon = photo.lon();
    placeAtWithAltitude(photo, *point, corrected);
    ++outcome.placed;
    outcome.moved += hadItsOwn && (photo.lat() != lat || photo.lon() != lon) ? 1 : 0;
}

/// So that the map shows where the one photo that is looked at has come to.
void Matcher::postSelectedPosition() const {
    const auto &selected = outlets_.pictureArray.selectedObjects();
    if (selected.size() == 1 && selected.front()->lat_and_lon()) {
        const image &photo = *selected.front();
        notifications_.post(locationChange,
                            PositionTexts{photo.lat().string(), photo.lon().string()});
    }
}

} // namespace pinmora
