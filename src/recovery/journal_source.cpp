#include "recovery/journal_source.h"

#include <algorithm>

namespace pinmora {

std::string_view JournalSource::next() {
    while (!isOver_) {
        const Frame *frame = file_.next();
        if (frame && frame->kind == FrameKind::ImportBytes) {
            return frame->payload;
        }
        if (frame && frame->kind == FrameKind::ImportEntity) {
            if (std::optional<ImportedEntity> entity = entityFrom(frame->payload)) {
                entities_.push_back(std::move(*entity));
            }
            continue;
        }
        isOver_ = true;
        if (frame && frame->kind == FrameKind::ImportEnd) {
            result_ = resultFrom(frame->payload);
        }
    }
    return {};
}

std::optional<std::string> JournalSource::entity(std::string_view name) {
    const auto told = std::find_if(entities_.begin(), entities_.end(),
                                   [&](const ImportedEntity &one) { return one.name == name; });
    if (told == entities_.end()) {
        return std::nullopt;
    }
    std::optional<std::string> content = std::move(told->content);
    entities_.erase(told);
    return content;
}

std::optional<ImportResult> JournalSource::result() {
    while (!next().empty()) {
    }
    return result_;
}

} // namespace pinmora
