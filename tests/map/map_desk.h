#pragma once

#include "map/map_bridge.h"
#include "map/map_feed.h"
#include "map/markers.h"
#include "matching/library.h"
#include "outlets/editing.h"
#include "persistence/undo_manager.h"
#include "store/degrees.h"
#include "store/entity_array.h"
#include "store/image.h"
#include "store/track.h"

#include <QCoreApplication>

namespace pinmora {

/// A library, both map views and what stands around them. Scripts are noted as "1:" or "2:" (the
/// view) and the script.
struct MapDesk : PointLibrary {
    UndoManager undo{context};
    degrees &shown = context.insert<degrees>();
    EntityArray<image> pictureArray{context};
    ObjectController<degrees> degreeObj;
    MapView webView1;
    MapView webView2;
    bool inWizard = false;
    Editing editing;
    Button addRemoveMarker;
    Button addRemoveMarker2;
    Button offsetButton2;
    image *last = nullptr;
    bool applying = false;
    MapFeed feed{context,
                 {.webView1 = webView1, .webView2 = webView2, .pictureArray = pictureArray}};
    MapBridge bridge{context,
                     {.webView1 = webView1,
                      .webView2 = webView2,
                      .inWizard = inWizard,
                      .pictureArray = pictureArray,
                      .degreeObj = degreeObj,
                      .editing = editing}};
    Markers markers{context,
                    {.webView1 = webView1,
                     .webView2 = webView2,
                     .inWizard = inWizard,
                     .addRemoveMarker = addRemoveMarker,
                     .addRemoveMarker2 = addRemoveMarker2,
                     .offsetButton2 = offsetButton2,
                     .pictureArray = pictureArray,
                     .editing = editing},
                    [this] { return last; },
                    [this] { return applying; }};

    std::string scripts;
    std::vector<Connection> listening{
        webView1.scripts.connect([this](auto &script) { scripts += "1:" + script + " "; }),
        webView2.scripts.connect([this](auto &script) { scripts += "2:" + script + " "; })};

    MapDesk() {
        degreeObj.setContent(&shown);
        settle();
    }

    image &addPhoto(const char *lat = "", const char *lon = "", const char *name = "a") {
        auto &photo = context.insert<image>();
        photo.setLoading(true);
        photo.setImage_name(name);
        photo.setLat(lat);
        photo.setLon(lon);
        photo.setLoading(false);
        photo.setHasChangesFalse();
        return photo;
    }
    /// Takes what has been done for granted: nothing to undo, nothing changed.
    void settle() {
        QCoreApplication::processEvents();
        undo.removeAllActions();
        context.commitChanges();
        scripts.clear();
    }
    /// "LAT LON ZOOM RESET SOURCE" of a photo, "-" for no value.
    static std::string stateOf(const image &photo) {
        const auto number = [](std::optional<std::int32_t> value) {
            return value ? std::to_string(*value) : "-";
        };
        return photo.lat().string() + " " + photo.lon().string() + " " + number(photo.zoom()) +
               " " + number(photo.zoom_reset()) + " " +
               (photo.position_source().hasValue() ? photo.position_source().string() : "-");
    }
};

} // namespace pinmora
