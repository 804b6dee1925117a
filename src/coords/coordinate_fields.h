#pragma once

#include "coords/axis_fields.h"
#include "outlets/array_controller.h"
#include "outlets/editing.h"
#include "outlets/object_controller.h"
#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "platform/end_of_turn.h"
#include "store/degrees.h"
#include "store/image.h"

#include <string_view>
#include <vector>

namespace pinmora {

/// The coordinate fields of the main window: they show the coordinate record while one photo is
/// selected, and give the selected photos the position that a person types.
///
/// Each axis is taken over by itself, as one step of undo. With several photos selected the fields
/// are empty and only decimal degrees can be typed; with none, nothing can. The record follows
/// whatever changes the position of the one selected photo.
class CoordinateFields : private ChangeObserver {
public:
    /// All of them must outlive the fields.
    CoordinateFields(Context &context, ObjectController<degrees> &degreeObj,
                     ArrayController<image> &pictureArray, Editing &editing);
    CoordinateFields(const CoordinateFields &) = delete;
    CoordinateFields &operator=(const CoordinateFields &) = delete;
    ~CoordinateFields() override;

    AxisFields lat{latitudeKind};
    AxisFields lon{longitudeKind};

private:
    void didChange(Record &record, std::string_view key) override;

    void connect(AxisFields &axis);
    void selectionChanged();
    void look();
    void show();
    void show(AxisFields &axis);
    bool takeOver(AxisFields &axis);
    void takeOverEdited(AxisFields &axis);
    void apply(AxisFields &axis, const TypedAngle &typed);
    void chooseHemisphere(AxisFields &axis);
    /// The record while the fields show it.
    degrees *shownRecord() const { return photo_ ? degreeObj_.content() : nullptr; }

    Context &context_;
    ObjectController<degrees> &degreeObj_;
    ArrayController<image> &pictureArray_;
    EndOfTurn endOfTurn_;
    image *photo_ = nullptr;      ///< the selected photo when last looked, if it was just one
    bool selectionStale_ = false; ///< it has changed and nobody has looked yet
    bool writing_ = false;        ///< what changes is this object's doing
    std::vector<Connection> connections_;
};

} // namespace pinmora
