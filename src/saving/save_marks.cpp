#include "saving/save_marks.h"

#include "persistence/context.h"
#include "store/image.h"

#include <utility>

namespace pinmora {

SaveMarks::SaveMarks(Context &context) : context_(context) {
    context.addObserver(*this, {.entity = &image::description(), .values = false});
}

SaveMarks::~SaveMarks() {
    context_.removeObserver(*this);
}

void SaveMarks::clear() {
    if (!std::exchange(reasons_, {}).empty()) {
        changed.emit();
    }
}

void SaveMarks::mark(std::vector<Mark> marks) {
    for (Mark &one : marks) {
        reasons_.insert_or_assign(one.photo, std::move(one.reason));
    }
    if (!marks.empty()) {
        changed.emit();
    }
}

const std::string *SaveMarks::reasonFor(const image &photo) const {
    const auto found = reasons_.find(&photo);
    return found == reasons_.end() ? nullptr : &found->second;
}

/// Another record may come to stand at its address.
void SaveMarks::didDelete(Record &record) {
    reasons_.erase(static_cast<const image *>(&record));
}

} // namespace pinmora
