#include "matching/matcher.h"

#include "matching/clock_offset.h"
#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "matching/pointer_script.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/notification_centre.h"
#include "platform/number_text.h"
#include "store/image.h"
#include "store/offset.h"

namespace pinmora {

namespace {

constexpr std::string_view matchAction = "Match Photo";

/// While it lives, the flag is set.
class Running {
public:
    explicit Running(bool &flag) : flag_(flag) { flag_ = true; }
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;
    ~Running() { flag_ = false; }

private:
    bool &flag_;
};

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
    context_.commitEditing();
    gpsMatcher(true);
}

void Matcher::guessFromLatLon() {
    context_.commitEditing();
    const auto lat = plainDecimal(outlets_.knownLat.text.get());
    const auto lon = plainDecimal(outlets_.knownLon.text.get());
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
    context_.commitEditing();
    const image *const photo = outlets_.pictureArray.firstSelectedObject();
    if (photo && photo->lat_and_lon()) {
        outlets_.knownLat.text.set(photo->lat().string());
        outlets_.knownLon.text.set(photo->lon().string());
        guessFromLatLon();
    }
}

void Matcher::applyToAllPictures() {
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
    const Running running(runningApplyToAll_);
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
