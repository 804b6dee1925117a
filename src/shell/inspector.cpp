#include "shell/inspector.h"

#include "matching/matching_outlets.h"
#include "matching/placing.h"
#include "outlets/pointer_script.h"
#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/date.h"
#include "platform/translation.h"
#include "saving/renaming.h"
#include "shell/preview.h"
#include "store/calendar_formats.h"
#include "store/degrees.h"
#include "store/image_data.h"
#include "store/library_arrays.h"
#include "store/offset.h"
#include "store/track_part.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace pinmora {

Inspector::Inspector(Context &context, NotificationCentre &notifications, LibraryArrays &arrays,
                     InspectorOutlets &outlets, MatchingOutlets &matching,
                     RenamingOutlets &renaming, Preview &preview, TellMissing tellMissing)
    : context_(context), notifications_(notifications), arrays_(arrays), outlets_(outlets),
      matching_(matching), renaming_(renaming), preview_(preview),
      tellMissing_(std::move(tellMissing)), endOfTurn_([this] { catchUp(); }) {
    context.addObserver(*this, {.entity = &image::description()});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    for (Button *button : {&outlets.removePictButton, &outlets.removePictButton2}) {
        connections_.push_back(button->pressed.connect([this] { removePict(); }));
    }
    connections_.push_back(arrays.pictureArray.selectionChanged.connect([this] {
        selectionStale_ = true;
        endOfTurn_.ask();
    }));
    renaming.newFileName.tag = renaming.newFileName2.tag = renaming.newFileName3.tag = nameFieldTag;
    enableChangeButtons(false);
    enableOffsetButtons(false);
}

Inspector::~Inspector() {
    context_.removeObserver(*this);
}

void Inspector::tableSelectionChanged() {
    selectionStale_ = false;
    const std::vector<image *> selected = arrays_.pictureArray.selectedObjects();
    matching_.offsetText.text.set("");
    matching_.offsetText2.text.set("");
    matching_.matchButton.enabled.set(!selected.empty() && hasTrackData());
    if (selected.size() == 1) {
        showOne(*selected.front());
    } else {
        showNoneOrSeveral(selected);
    }
}

void Inspector::showOne(image &photo) {
    showTitle();
    showCorrectedTime(photo);
    showPosition(photo);
    outlets_.addRemoveMarker.enabled.set(true);
    outlets_.addRemoveMarker2.enabled.set(true);
    showOnMap(photo);
    if (image_data *const current = outlets_.theCurrImage.content()) {
        current->setName(photo.original_name());
    }
    preview_.dealWithPict(photo.full_file_path().string());
    enableNameFields(true);
    offerRemoval(translated("shell", "Remove Picture"), true);
}

void Inspector::showNoneOrSeveral(const std::vector<image *> &photos) {
    if (image_data *const current = outlets_.theCurrImage.content()) {
        current->setName("");
        current->setImage_data(std::nullopt);
    }
    showTitle();
    activeMap().evaluate("removePointer()");
    showMarkersOf(photos);
    preview_.noPict();
    enableNameFields(!photos.empty());
    offerRemoval(photos.empty() ? translated("shell", "Remove Picture")
                                : translated("shell", "Remove Pictures"),
                 !photos.empty());
}

/// What several photos, or none, let the marker buttons do.
void Inspector::showMarkersOf(const std::vector<image *> &photos) {
    if (photos.empty()) {
        showMarkerButtons(translated("shell", "Add Marker"), 0);
    } else if (std::any_of(photos.begin(), photos.end(),
                           [](const image *photo) { return photo->lat_and_lon(); })) {
        showMarkerButtons(translated("shell", "Remove Markers"), 1);
    } else {
        showMarkerButtons(translated("shell", "Add Markers"), 0);
    }
}

std::string Inspector::window_title() const {
    const std::vector<image *> &selected = arrays_.pictureArray.selectedObjects();
    if (selected.size() != 1) {
        return "Pinmora";
    }
    const image &photo = *selected.front();
    return "Pinmora - " + photo.image_name().string() + " - " + photo.theDateString();
}

void Inspector::showTitle() {
    const std::string title = window_title();
    outlets_.window.title.set(title);
    outlets_.wizardWindow.title.set(title);
    outlets_.fullView.title.set(title);
}

/// The offset as the steppers show it.
void Inspector::showCorrectedTime(const image &photo) {
    const offset *const stored = matching_.offsetObj.content();
    std::string text;
    if (hasTrackData() && photo.date() && stored) {
        LocalZone zone;
        text = localizedTextFromDate(*correctedTime(photo, *stored), shownTimeFormat, zone);
    }
    matching_.offsetText.text.set(text);
    matching_.offsetText2.text.set(text);
}

void Inspector::showPosition(const image &photo) {
    const bool placed = photo.lat_and_lon();
    showMarkerButtons(placed ? translated("shell", "Remove Marker")
                             : translated("shell", "Add Marker"),
                      placed ? 1 : 0);
    if (degrees *const shown = outlets_.degreeObj.content()) {
        shown->showPosition(placed ? photo.lat() : Text(), placed ? photo.lon() : Text());
    }
    enableOffsetButtons(placed && hasTrackData());
}

void Inspector::showMarkerButtons(const std::string &title, int tag) {
    for (Button *button : {&outlets_.addRemoveMarker, &outlets_.addRemoveMarker2}) {
        button->tag = tag;
        button->title.set(title);
    }
}

/// A photo that is seen on the map for the first time takes over the zoom level of the one before
/// it, and keeps it from then on.
void Inspector::showOnMap(image &photo) {
    const UnregisteredChanges programsOwn(context_);
    const std::string_view lat = photo.lat().view();
    const std::string_view lon = photo.lon().view();
    if (lat.empty() || lon.empty()) {
        photo.setZoom(1);
        activeMap().evaluate("removePointer()");
        return;
    }
    if (photo.zoom_reset().value_or(0) == 0) {
        const int before =
            lastPictObjectWithLatLon_ ? lastPictObjectWithLatLon_->zoom().value_or(0) : 0;
        photo.setZoom(before != 0 ? before : photo.zoom().value_or(0));
        photo.setZoom_reset(1);
    }
    lastPictObjectWithLatLon_ = &photo;
    activeMap().evaluate(
        pointerScript(lat, lon, photo.zoom().value_or(0), photo.original_name().view()));
}

/// Several photos that have been placed together have one pointer, until one of them goes elsewhere
/// (or all go back by undo).
void Inspector::showWhereAllAre(const std::vector<image *> &photos) {
    const auto elsewhere = [&photos](const image *photo) {
        return !photo->lat_and_lon() || photo->lat() != photos.front()->lat() ||
               photo->lon() != photos.front()->lon();
    };
    const bool together =
        photos.size() > 1 && std::none_of(photos.begin(), photos.end(), elsewhere);
    activeMap().evaluate(
        together ? pointerScript(photos.front()->lat().view(), photos.front()->lon().view())
                 : "removePointer()");
}

void Inspector::sendPointer() {
    const std::vector<image *> selected = arrays_.pictureArray.selectedObjects();
    if (selected.size() == 1) {
        showOnMap(*selected.front());
    } else {
        showWhereAllAre(selected);
    }
}

void Inspector::logsLoaded() {
    const std::vector<image *> &selected = arrays_.pictureArray.selectedObjects();
    if (selected.size() == 1) {
        enableOffsetButtons(selected.front()->lat_and_lon());
    }
    tableSelectionChanged();
}

void Inspector::didChange(Record &record, std::string_view key) {
    static constexpr std::string_view shown[] = {"image_name", "lat", "lon"};
    const bool isPath = key == "full_file_path";
    if (!isPath && std::find(std::begin(shown), std::end(shown), key) == std::end(shown)) {
        return;
    }
    const std::vector<image *> &selected = arrays_.pictureArray.selectedObjects();
    if (selected.size() != 1 || selected.front() == &record) {
        pictureStale_ = pictureStale_ || isPath;
        pointerStale_ = pointerStale_ || key == "lat" || key == "lon";
        endOfTurn_.ask();
    }
}

void Inspector::didInsert(Record &record) {
    if (&record.entity() == &track_part::description()) {
        pointsChanged();
    }
}

/// Points come and go by the million: only the first and the last matter.
void Inspector::pointsChanged() {
    if (hadTrackData_ != hasTrackData()) {
        hadTrackData_ = !hadTrackData_;
        endOfTurn_.ask();
    }
}

void Inspector::didDelete(Record &record) {
    if (&record.entity() == &track_part::description()) {
        endOfTurn_.ask();
    }
    if (&record == lastPictObjectWithLatLon_) {
        lastPictObjectWithLatLon_ = nullptr;
    }
}

void Inspector::catchUp() {
    const bool movePointer = std::exchange(pointerStale_, false);
    if (selectionStale_ || std::exchange(pictureStale_, false)) {
        tableSelectionChanged();
        return;
    }
    const std::vector<image *> &selected = arrays_.pictureArray.selectedObjects();
    showTitle();
    hadTrackData_ = hasTrackData();
    matching_.matchButton.enabled.set(!selected.empty() && hasTrackData());
    if (selected.size() != 1) {
        showMarkersOf(selected);
        if (movePointer) {
            showWhereAllAre(selected);
        }
        return;
    }
    showCorrectedTime(*selected.front());
    image &photo = *selected.front();
    const bool placed = photo.lat_and_lon();
    showMarkerButtons(placed ? translated("shell", "Remove Marker")
                             : translated("shell", "Add Marker"),
                      placed ? 1 : 0);
    enableOffsetButtons(placed && hasTrackData());
    if (movePointer) {
        activeMap().evaluate(placed ? pointerScript(photo.lat().view(), photo.lon().view())
                                    : "removePointer()");
    }
}

} // namespace pinmora
