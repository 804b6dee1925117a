#include "shell/detail_fields.h"

#include "persistence/undo_group.h"
#include "platform/number_text.h"
#include "platform/scoped_flag.h"
#include "platform/translation.h"

#include <algorithm>

namespace pinmora {

DetailFields::DetailFields(Context &context, ArrayController<image> &pictureArray, Editing &editing)
    : context_(context), pictureArray_(pictureArray), endOfTurn_([this] {
          look();
          show();
      }) {
    context.addObserver(*this, {.entity = &image::description()});
    connections_.push_back(pictureArray.selectionChanged.connect([this] {
        selectionStale_ = true;
        endOfTurn_.ask(); // the change may still be under way
    }));
    connections_.push_back(editing.addEditor([this] {
        bool fine = true;
        for (DetailField *field : fields()) {
            fine = takeOver(*field) && fine;
        }
        return fine;
    }));
    for (DetailField *field : fields()) {
        connections_.push_back(field->finished.connect([this, field] { takeOver(*field); }));
    }
    look();
    show();
}

DetailFields::~DetailFields() {
    context_.removeObserver(*this);
}

void DetailFields::didChange(Record &, std::string_view key) {
    const auto ours = fields();
    const bool goesWithAnother = key == "place_distance"; // also where that is written here
    const bool isShown = key == "image_name" ||
                         std::any_of(ours.begin(), ours.end(),
                                     [&](const DetailField *field) { return field->key == key; });
    if (goesWithAnother || (isShown && !writing_)) {
        endOfTurn_.ask();
    }
}

void DetailFields::didDelete(Record &record) {
    photos_.erase(static_cast<image *>(&record));
}

void DetailFields::look() {
    if (!selectionStale_) {
        return;
    }
    for (DetailField *field : fields()) {
        takeOverEdited(*field);
        field->revert(); // when it was unfit
    }
    selectionStale_ = false;
    const std::vector<image *> &selected = pictureArray_.selectedObjects();
    photos_ = {selected.begin(), selected.end()};
    show();
}

void DetailFields::show() {
    for (DetailField *field : fields()) {
        field->enabled.set(!photos_.empty());
        if (!field->isEdited()) {
            show(*field);
        }
    }
    const image *const only = photos_.size() == 1 ? *photos_.begin() : nullptr;
    image_name.enabled.set(!photos_.empty());
    image_name.text.set(only ? only->image_name().string() : "");
    place_distance.set(only ? only->place_distance() : std::nullopt);
}

void DetailFields::show(DetailField &field) {
    std::string first;
    bool differs = false;
    for (auto photo = photos_.begin(); photo != photos_.end() && !differs; ++photo) {
        std::string text = (*photo)->valueForKey(field.key).toText().string();
        if (photo == photos_.begin()) {
            first = std::move(text);
        } else {
            differs = text != first;
        }
    }
    field.show(differs ? "" : first, differs);
}

/// False when what has been typed is unfit.
bool DetailFields::takeOver(DetailField &field) {
    look();
    return takeOverEdited(field);
}

bool DetailFields::takeOverEdited(DetailField &field) {
    if (!field.isEdited() || photos_.empty()) {
        field.revert();
        return true;
    }
    std::string text = field.text.get();
    if (&field == &alt) {
        text = std::string(trimmed(text));
        if (!text.empty() && !plainDecimal(text)) {
            field.problem.set(
                translated("shell", "The altitude is a number of metres, such as 412.5."));
            return false;
        }
    }
    const ScopedFlag writing(writing_);
    const UndoGroup group(context_, translated("shell", field.step));
    for (image *photo : photos_) {
        if (photo->valueForKey(field.key).toText().view() != text) {
            photo->setValue(text, field.key);
        }
    }
    show(field);
    return true;
}

} // namespace pinmora
