#include "map/markers.h"

#include "outlets/pointer_script.h"
#include "persistence/undo_group.h"
#include "platform/translation.h"

#include <string>
#include <utility>

namespace pinmora {
namespace {

constexpr std::int32_t worldZoom = 2; ///< where no zoom level is known

void offerAdding(Button &button, std::size_t photos = 1) {
    button.title.set(photos <= 1 ? translated("map", "Add Marker")
                                 : translated("map", "Add Markers"));
    button.tag = 0;
}

std::string removalOf(std::size_t photos) {
    return photos <= 1 ? translated("map", "Remove Marker") : translated("map", "Remove Markers");
}

void offerRemoval(Button &button, std::size_t photos) {
    button.title.set(removalOf(photos));
    button.tag = 1;
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
    connections_.push_back(
        outlets.pictureArray.selectionChanged.connect([this] { adding.set(false); }));
    const auto endWithPage = [this](MapView &view,
                                    const Button &button) { // the marker is drawn there
        connections_.push_back(view.loaded.connect([this, &button] {
            if (addedBy_ == &button) {
                giveUpAdding();
            }
        }));
    };
    endWithPage(outlets.webView1, outlets.addRemoveMarker);
    endWithPage(outlets.webView2, outlets.addRemoveMarker2);
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
    offerRemoval(button, photos.size());
    outlets_.webView1.evaluate(newMarkerFor(photos));
    addedBy_ = &button;
    adding.set(true);
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
    offerRemoval(button, photos.size());
    const std::string script = newMarkerFor(photos);
    outlets_.editing.takeOver();
    outlets_.webView2.evaluate(script);
    outlets_.offsetButton2.enabled.set(true);
    addedBy_ = &button;
    adding.set(true);
}

void Markers::giveUpAdding() {
    if (!adding.get()) {
        return;
    }
    adding.set(false);
    Button &button = *addedBy_;
    offerAdding(button, outlets_.pictureArray.selectedObjects().size());
    const bool isWizards = &button == &outlets_.addRemoveMarker2;
    if (isWizards) {
        outlets_.offsetButton2.enabled.set(false);
    }
    (isWizards ? outlets_.webView2 : outlets_.webView1).evaluate("removePointer()");
}

void Markers::removeFrom(const Photos &photos, Button &button) {
    const UndoGroup group(context_, removalOf(photos.size()));
    for (image *photo : photos) {
        takePositionAway(*photo);
    }
    adding.set(false);
    offerAdding(button);
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
        if (placed) {
            offerRemoval(*button, 1);
        } else {
            offerAdding(*button);
        }
    }
    return true;
}

void Markers::updateMap(const PositionTexts &position) {
    adding.set(false);
    if (!runningApplyToAll_()) {
        MapView &map = outlets_.inWizard ? outlets_.webView2 : outlets_.webView1;
        map.evaluate(pointerScript(position[0], position[1]));
    }
}

} // namespace pinmora
