#include "map/point_picking.h"

#include "map/placement.h"
#include "persistence/context.h"
#include "store/image.h"
#include "store/track_part.h"

#include <utility>

namespace pinmora {

PointPicking::PointPicking(Context &context, MapBridge &bridge, Outlets outlets, Picked picked)
    : context_(context), bridge_(bridge), outlets_(outlets), picked_(std::move(picked)),
      endOfTurn_([this] { pickPoint.enabled.set(canArm()); }) {
    pickPoint.enabled.set(false);
    bridge.setClickTaker([this](const std::string &position) { return take(position); });
    connections_.push_back(pickPoint.pressed.connect([this] {
        if (armed.get()) {
            disarm();
        } else {
            arm();
        }
    }));
    connections_.push_back(outlets.pictureArray.selectionChanged.connect([this] {
        disarm();
        offer();
    }));
    offer();
    for (MapView *view : {&outlets.webView1, &outlets.webView2}) {
        connections_.push_back(armed.onChange([this, view](bool) { tell(*view); }));
        connections_.push_back(view->loaded.connect([this, view] {
            if (armed.get()) {
                tell(*view);
            }
        }));
    }
}

PointPicking::~PointPicking() {
    bridge_.setClickTaker(nullptr);
}

bool PointPicking::canArm() const {
    const std::vector<image *> &selected = outlets_.pictureArray.selectedObjects();
    return selected.size() == 1 && selected.front()->captureTime() &&
           context_.count<track_part>() > 0;
}

/// Whatever else a page tells, a placement or that the person has given it up, ends it. A second
/// click that comes too late is not to place the photo.
bool PointPicking::take(const std::string &position) {
    const bool wasArmed = armed.get();
    disarm();
    if (!position.ends_with(":pick")) {
        return false;
    }
    const std::optional<Placement> placement = placementFrom(position);
    if (wasArmed && placement && context_.commitEditing()) {
        const auto &[lat, lon] = placement->position;
        picked_(*degreesWithin(lat, 90), *degreesWithin(lon, 180));
    }
    return true;
}

void PointPicking::tell(MapView &view) const {
    view.feed(armed.get() ? R"({"kind":"pick","on":true})" : R"({"kind":"pick","on":false})");
}

} // namespace pinmora
