#include "map/map_bridge.h"

#include "map/placement.h"
#include "persistence/undo_group.h"
#include "platform/number_text.h"
#include "platform/translation.h"

#include <cstdint>

namespace pinmora {

MapBridge::MapBridge(Context &context, Outlets outlets) : context_(context), outlets_(outlets) {
    for (MapView *view : {&outlets.webView1, &outlets.webView2}) {
        connections_.push_back(view->loaded.connect([this] { didFinishLoadForFrame(); }));
        connections_.push_back(
            view->called.connect([this](const PageCall &call) { called(call); }));
    }
}

void MapBridge::didFinishLoadForFrame() {
    ++loadCount_;
    showMap();
    pointerWanted.emit();
}

void MapBridge::showMap() {
    if (loadCount_ > 1) {
        outlets_.webView1.evaluate("show_map()");
        outlets_.webView2.evaluate("show_map()");
    }
}

void MapBridge::called(const PageCall &call) {
    const auto *const text = std::get_if<std::string>(&call.argument);
    const auto *const number = std::get_if<double>(&call.argument);
    if (call.function == "latLonJavascript" && text) {
        latLonJavascript(*text);
    } else if (call.function == "zoomChangeJavascript" && number) {
        zoomChangeJavascript(decimalText(*number));
    } else if (call.function == "newMarker") {
        newMarker();
    }
}

void MapBridge::latLonJavascript(const std::string &position) {
    if (clickTaker_ && clickTaker_(position)) {
        return;
    }
    const std::optional<Placement> placement = placementFrom(position);
    if (!placement || outlets_.pictureArray.selectedObjects().empty()) {
        return;
    }
    outlets_.editing.takeOver();
    const std::vector<image *> photos = outlets_.pictureArray.selectedObjects();
    const UndoGroup group(context_, translated("map", "Place on Map"));
    for (image *photo : photos) {
        photo->updateLatAndLon(placement->position);
        photo->setZoom(placement->zoom);
        photo->setPosition_source(PositionSource::map);
    }
    if (degrees *const shown = outlets_.degreeObj.content()) {
        shown->showPosition(placement->position[0], placement->position[1]);
    }
}

void MapBridge::zoomChangeJavascript(const std::string &level) {
    const std::vector<image *> &photos = outlets_.pictureArray.selectedObjects();
    const std::optional<std::int32_t> zoom = zoomFrom(level);
    if (!zoom || photos.size() != 1 || !photos.front()->lat_and_lon()) {
        return;
    }
    const UnregisteredChanges mapsOwn(context_);
    photos.front()->setZoom(zoom);
    photos.front()->setZoom_reset(1);
}

} // namespace pinmora
