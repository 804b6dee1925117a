#pragma once

#include "map/map_bridge.h"
#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/map_view.h"
#include "outlets/observable.h"
#include "platform/end_of_turn.h"

#include <array>
#include <functional>
#include <vector>

namespace pinmora {

class Context;
class image;

/// Lets a person show on the map at which point of the track the selected photo was taken: while
/// it is armed, the next click on the map is that and places nothing.
///
/// It can be armed with exactly one photo selected, one that tells when it was taken, and a track
/// there. Another selection ends it.
class PointPicking {
public:
    struct Outlets {
        MapView &webView1;
        MapView &webView2; ///< the wizard's
        ArrayController<image> &pictureArray;
    };
    /// Gets the place of the click, in signed decimal degrees.
    using Picked = std::function<void(double lat, double lon)>;

    /// All must outlive it; it takes the bridge's clicks while it is armed.
    PointPicking(Context &context, MapBridge &bridge, Outlets outlets, Picked picked);
    ~PointPicking();
    PointPicking(const PointPicking &) = delete;
    PointPicking &operator=(const PointPicking &) = delete;

    /// Arms it and disarms it again; enabled while there is something to arm it for.
    Button pickPoint;

    /// Whether the next click is the one; written here alone.
    Observable<bool> armed;
    bool canArm() const;
    /// Nothing where it cannot be.
    void arm() { armed.set(canArm()); }
    void disarm() { armed.set(false); }
    /// Photos or tracks have come or gone: offers the button anew once all is at rest.
    void offer() { endOfTurn_.ask(); }

private:
    bool take(const std::string &position);
    void tell(MapView &view) const;

    Context &context_;
    MapBridge &bridge_;
    Outlets outlets_;
    Picked picked_;
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
