#include "map/markers.h"

#include "outlets/pointer_script.h"
#include "persistence/undo_group.h"

#include <string>
#include <utility>

namespace pinmora {
namespace {

constexpr std::int32_t worldZoom = 2; ///< where no zoom level is known

void name(Button &button, const char *title, int tag) {
    button.title.set(title);
    button.tag = tag;
}

void takePositionAway(image &photo) {
    photo.setLat("");
    photo.setLon("");
    photo.setZoom(std::nullopt);
    photo.setProv("");
    photo.setCity("");
    photo.setCountry("");
    photo.setLat_ref("");
    photo.setLon_ref("");
    photo.setPosition_source({});
}

} // namespace

Markers::Markers(Context &context, Outlets outlets, LastPhoto lastPictObjectWithLatLon,
                 RunningApplyToAll runningApplyToAll)
    : context_(context), outlets_(outlets),
      lastPictObjectWithLatLon_(std::move(lastPictObjectWithLatLon)),
      runningApplyToAll_(std::move(runningApplyToAll)) {
    connections_.push_back(
        outlets.addRemoveMarker.pressed.connect([this] { addMarkerToMapCentre(); }));
    connections_.push_back(
        outlets.addRemoveMarker2.pressed.connect([this] { addMarkerToMapCentre2(); }));
}

void Markers::addMarkerToMapCentre() {
    outlets_.editing.takeOver();
    const Photos photos = outlets_.pictureArray.selectedObjects();
    Button &button = outlets_.addRemoveMarker;
    if (button.tag != 0) {
        removeFrom(photos, button);
        outlets_.webView1.evaluate("removePointer()");
        return;
    }
    name(button, photos.size() <= 1 ? "Remove Marker" : "Remove Markers", 1);
    outlets_.webView1.evaluate(newMarkerFor(photos));
}

void Markers::addMarkerToMapCentre2() {
    outlets_.editing.takeOver();
    const Photos photos = outlets_.pictureArray.selectedObjects();
    Button &button = outlets_.addRemoveMarker2;
    if (button.tag != 0) {
        removeFrom(photos, button);
        outlets_.offsetButton2.enabled.set(false);
        outlets_.webView2.evaluate("removePointer()");
        return;
    }
    name(button, photos.size() <= 1 ? "Remove Marker" : "Remove Markers", 1);
    const std::string script = newMarkerFor(photos);
    outlets_.editing.takeOver();
    outlets_.webView2.evaluate(script);
    outlets_.offsetButton2.enabled.set(true);
}

void Markers::removeFrom(const Photos &photos, Button &button) {
    const UndoGroup group(context_, photos.size() <= 1 ? "Remove Marker" : "Remove Markers");
    for (image *photo : photos) {
        takePositionAway(*photo);
    }
    name(button, "Add Marker", 0);
}

std::string Markers::newMarkerFor(const Photos &photos) {
    const image *const last = lastPictObjectWithLatLon_();
    if (!last) {
        return newMarkerScript();
    }
    const UnregisteredChanges programsOwn(context_);
    const std::int32_t zoom = last->zoom().value_or(worldZoom);
    for (image *photo : photos) {
        photo->setZoom(zoom);
        photo->setZoom_reset(1);
    }
    return newMarkerScript(last->lat().view(), last->lon().view(), zoom);
}

bool Markers::add_remove_marker() {
    const Photos &photos = outlets_.pictureArray.selectedObjects();
    if (photos.size() != 1) {
        return false;
    }
    const bool placed = photos.front()->lat_and_lon();
    for (Button *button : {&outlets_.addRemoveMarker, &outlets_.addRemoveMarker2}) {
        name(*button, placed ? "Remove Marker" : "Add Marker", placed ? 1 : 0);
    }
    return true;
}

void Markers::updateMap(const PositionTexts &position) {
    if (!runningApplyToAll_()) {
        MapView &map = outlets_.inWizard ? outlets_.webView2 : outlets_.webView1;
        map.evaluate(pointerScript(position[0], position[1]));
    }
}

} // namespace pinmora
