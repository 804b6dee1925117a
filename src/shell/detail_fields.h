#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/editing.h"
#include "outlets/observable.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "platform/end_of_turn.h"
#include "store/image.h"

#include <QtGlobal>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace pinmora {

/// A text of the selected photos. What a person types stands in `text` and is taken over when the
/// field is `finished`.
struct DetailField : CheckedField {
    DetailField(std::string_view recordKey, const char *stepName)
        : key(recordKey), step(stepName) {}

    const std::string_view key; ///< in the photo
    const char *const step;     ///< the name of the step of undo that a change makes, in English
    /// The selected photos have different texts: `text` is empty then, and stays so unless edited.
    Observable<bool> differs{false};
    Signal<> finished;

    void type(const std::string &typed) {
        if (enabled.get()) {
            text.set(typed);
            finished.emit();
        }
    }

    void show(std::string value, bool different = false) {
        shown_ = std::move(value);
        text.set(shown_);
        differs.set(different);
        problem.set("");
    }
    bool isEdited() const { return text.get() != shown_; }
    /// Back to what it showed before it was edited.
    void revert() { show(shown_, differs.get()); }

private:
    std::string shown_;
};

/// The fields of the details tab: they show the texts of the selected photos and give all of them
/// what a person types, one step of undo a field. Texts are taken as they are typed; an altitude
/// must be a number, or empty. What is half typed when other photos are selected goes to those that
/// it was typed for.
class DetailFields : private ChangeObserver {
public:
    /// All must outlive the fields.
    DetailFields(Context &context, ArrayController<image> &pictureArray, Editing &editing);
    ~DetailFields() override;
    DetailFields(const DetailFields &) = delete;
    DetailFields &operator=(const DetailFields &) = delete;

    DetailField img_description{"img_description",
                                QT_TRANSLATE_NOOP("shell", "Change Description")};
    DetailField comments{"comments", QT_TRANSLATE_NOOP("shell", "Change Comment")};
    DetailField city{"city", QT_TRANSLATE_NOOP("shell", "Change City")};
    DetailField prov{"prov", QT_TRANSLATE_NOOP("shell", "Change Province")};
    DetailField country{"country", QT_TRANSLATE_NOOP("shell", "Change Country")};
    DetailField alt{"alt", QT_TRANSLATE_NOOP("shell", "Change Altitude")};
    // Of the one selected photo; only shown.
    TextField image_name;
    Observable<std::optional<double>> place_distance; ///< metres, to the city

    std::array<DetailField *, 6> fields() {
        return {&img_description, &comments, &city, &prov, &country, &alt};
    }

private:
    void didChange(Record &record, std::string_view key) override;
    void didDelete(Record &record) override;

    void look();
    void show();
    void show(DetailField &field);
    bool takeOver(DetailField &field);
    bool takeOverEdited(DetailField &field);

    Context &context_;
    ArrayController<image> &pictureArray_;
    std::unordered_set<image *> photos_; ///< the selected ones when last looked
    bool selectionStale_ = true;         ///< it has changed and nobody has looked yet
    bool writing_ = false;               ///< what changes is this object's doing
    EndOfTurn endOfTurn_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
