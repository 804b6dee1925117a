#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/editing.h"
#include "outlets/map_view.h"
#include "outlets/observable.h"
#include "persistence/context.h"
#include "store/image.h"

#include <functional>
#include <vector>

namespace pinmora {

/// The buttons that place the selected photos on the map or take their position away, and the
/// pointer that follows a photo's position.
class Markers {
public:
    struct Outlets {
        MapView &webView1;
        MapView &webView2; ///< the wizard's
        const bool &inWizard;
        Button &addRemoveMarker; ///< its tag: 1 when a click removes the marker
        Button &addRemoveMarker2;
        Button &offsetButton2;
        ArrayController<image> &pictureArray;
        const Editing &editing;
    };
    /// The photo whose position the map showed last; null when there is none, or no longer.
    using LastPhoto = std::function<image *()>;
    using RunningApplyToAll = std::function<bool()>;

    /// Context and outlets must outlive it.
    Markers(Context &context, Outlets outlets, LastPhoto lastPictObjectWithLatLon,
            RunningApplyToAll runningApplyToAll);
    Markers(const Markers &) = delete;
    Markers &operator=(const Markers &) = delete;
    ~Markers() = default;

    /// A click on the main window's button. What is half typed is taken over before.
    void addMarkerToMapCentre();
    /// A click on the wizard's.
    void addMarkerToMapCentre2();
    /// Whether a new marker waits on a map for its place; written here alone. Another selection and
    /// a position end it.
    Observable<bool> adding;
    /// Takes the waiting marker back; the button offers it again.
    void giveUpAdding();
    /// Whether just one photo is selected; the buttons then say what a click does with it.
    bool add_remove_marker();
    /// A photo has got a position: the pointer of the active map goes there, unless positions are
    /// being applied to all photos.
    void updateMap(const PositionTexts &position);

private:
    using Photos = std::vector<image *>;
    void removeFrom(const Photos &photos, Button &button);
    /// The script that has the page offer a marker where one was last; the photos take over the
    /// zoom level that is shown there.
    std::string newMarkerFor(const Photos &photos);

    Context &context_;
    Outlets outlets_;
    LastPhoto lastPictObjectWithLatLon_;
    RunningApplyToAll runningApplyToAll_;
    Button *addedBy_ = nullptr; ///< the button that the waiting marker comes from
    std::vector<Connection> connections_;
};

} // namespace pinmora
