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
#include "store/image.h"
#include "store/offset.h"

namespace pinmora {

namespace {

constexpr std::string_view matchAction = "Match Photo";

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

void Matcher::gpsMatcher(bool updateFields) {
    const image *const photo = outlets_.pictureArray.firstSelectedObject();
    const offset *const clockOffset = outlets_.offsetObj.content();
    if (!photo || !clockOffset || !photo->date()) {
        return;
    }
    const UndoGroup group(context_, matchAction);
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
    const image *const photo = outlets_.pictureArray.firstSelectedObject();
    if (!lat || !lon || !photo || !photo->date()) {
        return;
    }
    const UndoGroup group(context_, matchAction);
    if (track_part *const point = points_.inPlace({.lat = *lat, .lon = *lon})) {
        outlets_.bestGPS.setContent(point);
        clockOffset_.setNewOffset(true);
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
    const bool placedAny = applyTo(std::vector(outlets_.pictureArray.arrangedObjects()));
    context_.commitEditing();
    outlets_.offsetText.text.set("");
    outlets_.offsetText2.text.set("");
    postSelectedPosition();
    if (placedAny) {
        outlets_.nextButtonAppliedAll.enabled.set(true);
        outlets_.congrats1.visible.set(true);
        outlets_.congrats2.visible.set(true);
    }
}

/// Whether any photo got a place.
bool Matcher::applyTo(const std::vector<image *> &photos) {
    const UndoGroup group(context_, "Apply GPS Data to Photos");
    const ScopedFlag running(runningApplyToAll_);
    const std::string total = std::to_string(photos.size());
    outlets_.progress.showProgressWindow("Applying to GPS data to photos", "",
                                         static_cast<double>(photos.size()));
    bool placedAny = false;
    std::size_t number = 0;
    for (image *photo : photos) {
        const track_part *const point = getLatLonAlt(*photo);
        outlets_.progress.advance("Processing " + std::to_string(++number) + " of " + total);
        if (point) {
            placeAtWithAltitude(*photo, *point);
            placedAny = true;
        }
    }
    outlets_.progress.closeProgress();
    return placedAny;
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
