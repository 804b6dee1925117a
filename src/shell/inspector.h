#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/map_view.h"
#include "outlets/object_controller.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"
#include "platform/notification_centre.h"

#include "outlets/window.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class Context;
class Preview;
class degrees;
class image;
class image_data;
struct LibraryArrays;
struct MatchingOutlets;
struct RenamingOutlets;

/// Posted when the selection of a table has become another one.
inline constexpr std::string_view tableSelectionDidChange = "TableSelectionDidChange";
/// Posted when typing into a field begins, and after each change of its text; the object is a
/// `const TextField *`.
inline constexpr std::string_view controlTextDidBeginEditing = "ControlTextDidBeginEditing";
inline constexpr std::string_view controlTextDidChange = "ControlTextDidChange";
/// The tag of the fields that take photos' new names.
inline constexpr int nameFieldTag = 99;

/// What the inspector writes besides the outlets of others.
struct InspectorOutlets {
    Window &window;
    Window &wizardWindow;
    Window &fullView;
    ObjectController<degrees> &degreeObj;
    Button &addRemoveMarker; ///< its tag: 1 when a click removes the marker
    Button &addRemoveMarker2;

    ObjectController<image_data> theCurrImage{};
    Button removePictButton{};
    Button removePictButton2{};
};

/// Keeps the windows in step with the selected photos: titles, corrected time, coordinates,
/// preview, map pointer, and what the controls offer. What is written to a selected photo later,
/// also by undo, shows at the end of the turn.
class Inspector : private ChangeObserver {
public:
    /// Full view of a photo whose file is gone: what is done about it.
    using TellMissing = std::function<void()>;

    /// All must outlive it.
    Inspector(Context &context, NotificationCentre &notifications, LibraryArrays &arrays,
              InspectorOutlets &outlets, MatchingOutlets &matching, RenamingOutlets &renaming,
              Preview &preview, TellMissing tellMissing);
    ~Inspector() override;
    Inspector(const Inspector &) = delete;
    Inspector &operator=(const Inspector &) = delete;

    /// Brings everything up to date for the photos that are selected now.
    void tableSelectionChanged();
    /// "Pinmora", with the name and the time of the one selected photo.
    std::string window_title() const;
    /// To be called after logs have been loaded.
    void logsLoaded();
    /// Sends the pointer to the active map once more: its page knows of none.
    void sendPointer();

    /// Typing a photo's new name makes the buttons that give it available.
    void textDidBeginEditing(const TextField &field);
    void textDidChange(const TextField &field);

    /// Whether there is a photo.
    bool change_enabled_text() const;
    bool change_enabled() const { return false; }
    bool canSave() const { return true; }

    /// Removes the selected photos from the library; the files stay.
    void removePict();
    /// Shows the first selected photo at full size.
    void imageFullView();

    /// The photo whose position the map showed last; null when it has gone.
    image *lastPictObjectWithLatLon() const { return lastPictObjectWithLatLon_; }

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &record) override;
    void didDelete(Record &record) override;
    void pointsChanged();

    void catchUp();
    void showOne(image &photo);
    void showNoneOrSeveral(const std::vector<image *> &photos);
    void showTitle();
    void showCorrectedTime(const image &photo);
    void showPosition(const image &photo);
    void showMarkersOf(const std::vector<image *> &photos);
    void showMarkerButtons(const std::string &title, int tag);
    void showOnMap(image &photo);
    void showWhereAllAre(const std::vector<image *> &photos);
    void enableOffsetButtons(bool yes);
    void enableNameFields(bool yes);
    void enableChangeButtons(bool yes);
    void offerRemoval(const std::string &title, bool enabled);
    bool hasTrackData() const;
    MapView &activeMap() const;

    Context &context_;
    NotificationCentre &notifications_;
    LibraryArrays &arrays_;
    InspectorOutlets &outlets_;
    MatchingOutlets &matching_;
    RenamingOutlets &renaming_;
    Preview &preview_;
    TellMissing tellMissing_;
    image *lastPictObjectWithLatLon_ = nullptr;
    bool selectionStale_ = false; ///< it has changed and nobody has said so yet
    bool pictureStale_ = false;   ///< the selected photo has another file
    bool pointerStale_ = false;   ///< a selected photo has another position
    bool hadTrackData_ = false;   ///< when the controls were last set
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
