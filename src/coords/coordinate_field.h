#pragma once

#include "outlets/controls.h"
#include "platform/number_text.h"

#include <string>
#include <string_view>
#include <utility>

namespace pinmora {

/// A field for a part of a coordinate. What a person types stands in `text` at once and is taken
/// over when the field is `finished`; until then, and when it is refused, it differs from what the
/// field shows.
struct CoordinateField : CheckedField {
    /// The field has been left, or Return pressed.
    Signal<> finished;

    /// What typing a text and leaving the field does: nothing while the field is disabled.
    void type(const std::string &typed) {
        if (enabled.get()) {
            text.set(typed);
            finished.emit();
        }
    }

    void show(std::string value) {
        shown_ = std::move(value);
        text.set(shown_);
        problem.set("");
    }
    /// Without blanks around it.
    std::string_view typedText() const { return trimmed(text.get()); }
    bool isEdited() const { return typedText() != shown_; }
    /// Back to what it showed before it was edited.
    void revert() { show(shown_); }

private:
    std::string shown_;
};

} // namespace pinmora
