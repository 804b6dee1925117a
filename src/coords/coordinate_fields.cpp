#include "coords/coordinate_fields.h"

#include "persistence/undo_group.h"
#include "platform/number_text.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"

#include <utility>

namespace pinmora {

namespace {

std::string stepName() {
    return translated("coords", "Type Position");
}

void setCoordinate(image &photo, const AxisFields &axis, const std::string &text) {
    photo.setValue(text, axis.kind().key);
    photo.setPosition_source(text.empty() ? Text() : Text(PositionSource::typed));
}

} // namespace

CoordinateFields::CoordinateFields(Context &context, ObjectController<degrees> &degreeObj,
                                   ArrayController<image> &pictureArray, Editing &editing)
    : context_(context), degreeObj_(degreeObj), pictureArray_(pictureArray),
      endOfTurn_([this] { look(); }) {
    context_.addObserver(*this, {.entity = &degrees::description()});
    context_.addObserver(*this, {.entity = &image::description()});
    connections_.push_back(pictureArray_.selectionChanged.connect([this] { selectionChanged(); }));
    connections_.push_back(degreeObj_.onChange([this](degrees *) { show(); }));
    connections_.push_back(editing.addEditor([this] {
        const bool latitude = takeOver(lat);
        return takeOver(lon) && latitude;
    }));
    connect(lat);
    connect(lon);
    selectionStale_ = true;
    look();
}

CoordinateFields::~CoordinateFields() {
    context_.removeObserver(*this);
}

void CoordinateFields::connect(AxisFields &axis) {
    for (CoordinateField *field : axis.fields()) {
        connections_.push_back(field->finished.connect([this, &axis] { takeOver(axis); }));
    }
    connections_.push_back(
        axis.hemisphere.chosen.connect([this, &axis] { chooseHemisphere(axis); }));
}

void CoordinateFields::didChange(Record &record, std::string_view key) {
    if (writing_) {
        return;
    }
    if (&record == degreeObj_.content()) {
        look();
        if (photo_) {
            show(key.ends_with(lat.kind().key) ? lat : lon);
        }
    } else if (&record == photo_ && !selectionStale_ && shownRecord()) {
        for (const AxisFields *axis : {&lat, &lon}) {
            if (key == axis->kind().key) {
                shownRecord()->setValue(photo_->valueForKey(key),
                                        std::string("degree_").append(key));
            }
        }
    }
}

/// The change may still be under way: the fields look when it is over.
void CoordinateFields::selectionChanged() {
    selectionStale_ = true;
    endOfTurn_.ask();
}

void CoordinateFields::look() {
    if (std::exchange(selectionStale_, false)) {
        const std::vector<image *> &selected = pictureArray_.selectedObjects();
        photo_ = selected.size() == 1 ? selected.front() : nullptr;
        for (AxisFields *axis : {&lat, &lon}) {
            for (CoordinateField *field : axis->fields()) {
                field->enabled.set(photo_ || (field == &axis->d && !selected.empty()));
            }
            axis->hemisphere.enabled.set(photo_);
        }
        show();
    }
}

void CoordinateFields::show() {
    show(lat);
    show(lon);
}

void CoordinateFields::show(AxisFields &axis) {
    axis.show(shownRecord());
}

/// Takes over whatever has been edited in an axis; false when something is unfit.
bool CoordinateFields::takeOver(AxisFields &axis) {
    look();
    for (CoordinateField *field : axis.fields()) {
        if (!field->isEdited() || !field->enabled.get()) {
            field->revert();
        }
    }
    takeOverEdited(axis);
    return !axis.hasProblem();
}

void CoordinateFields::takeOverEdited(AxisFields &axis) {
    if (axis.d.isEdited()) {
        if (const std::optional<TypedAngle> typed = axis.readDecimal()) {
            apply(axis, *typed);
        }
    }
    for (const Notation notation : {Notation::DegreesMinutes, Notation::DegreesMinutesSeconds}) {
        if (shownRecord() && axis.isEdited(notation)) {
            if (const auto typed = axis.readParts(notation, *shownRecord())) {
                apply(axis, *typed);
            }
        }
    }
}

void CoordinateFields::apply(AxisFields &axis, const TypedAngle &typed) {
    const ScopedFlag writing(writing_);
    if (degrees *record = shownRecord()) {
        axis.write(typed, *record);
    }
    const UndoGroup group(context_, stepName());
    const std::vector<image *> photos = pictureArray_.selectedObjects();
    for (image *photo : photos) {
        setCoordinate(*photo, axis, typed.text);
    }
    show(axis);
}

/// Turns the sign of the photo's own text, so that no digit of it is lost.
void CoordinateFields::chooseHemisphere(AxisFields &axis) {
    look();
    degrees *const record = shownRecord();
    const bool negative = axis.hemisphere.selectedTag.get() == 1;
    if (!record || (record->*axis.kind().negative)() == negative) {
        return;
    }
    const ScopedFlag writing(writing_);
    axis.setNegative(negative, *record);
    const Text held = photo_->valueForKey(axis.kind().key).toText();
    std::string_view text = trimmed(held.view());
    if (leadingDouble(text) != 0) {
        text.remove_prefix(text.starts_with('-') || text.starts_with('+') ? 1 : 0);
        const UndoGroup group(context_, stepName());
        setCoordinate(*photo_, axis, std::string(negative ? "-" : "").append(text));
    }
    show(axis);
}

} // namespace pinmora
