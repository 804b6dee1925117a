#pragma once

#include "outlets/array_controller.h"
#include "outlets/editing.h"
#include "outlets/map_view.h"
#include "outlets/object_controller.h"
#include "persistence/context.h"
#include "store/degrees.h"
#include "store/image.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace pinmora {

/// What map page and program say to each other, in both map views.
///
/// The page calls functions of the one published object; what it says is taken for what it is, the
/// word of somebody unknown, and checked here.
class MapBridge {
public:
    struct Outlets {
        MapView &webView1;
        MapView &webView2; ///< the wizard's
        const bool &inWizard;
        ArrayController<image> &pictureArray;
        ObjectController<degrees> &degreeObj;
        const Editing &editing;
    };

    /// Context and outlets must outlive it.
    MapBridge(Context &context, Outlets outlets);
    MapBridge(const MapBridge &) = delete;
    MapBridge &operator=(const MapBridge &) = delete;
    ~MapBridge() = default;

    /// A frame of either view has been loaded. From the second on, both pages are told to show
    /// their map.
    void didFinishLoadForFrame();

    /// "LATITUDE:LONGITUDE:ZOOM": the selected photos take this position and zoom level. Anything
    /// else is ignored. Half-typed text is taken over before, or the position would be written over
    /// by it later; where it is unfit it stays, and the photos are placed all the same.
    void latLonJavascript(const std::string &position);
    /// The one selected photo keeps this zoom level if it has a position.
    void zoomChangeJavascript(const std::string &level);
    void newMarker() {}

    /// Asked first what it makes of a position that a page tells; true: nothing is placed then.
    void setClickTaker(std::function<bool(const std::string &position)> taker) {
        clickTaker_ = std::move(taker);
    }

    /// The active view's pointer is to be sent to it again: its page is new.
    Signal<> pointerWanted;

private:
    void called(const PageCall &call);
    void showMap();

    Context &context_;
    Outlets outlets_;
    std::function<bool(const std::string &)> clickTaker_;
    int loadCount_ = 0; ///< completed loads, of either view
    std::vector<Connection> connections_;
};

} // namespace pinmora
