#include "saving/marked_answer.h"

#include <algorithm>

namespace pinmora {

namespace {

/// An exit status and what it is set off with.
constexpr std::size_t longestMark = 16;

} // namespace

void MarkedAnswer::take(std::string_view bytes) {
    if (mark_) {
        return;
    }
    const std::size_t looked = text_.size();
    text_ += bytes;
    const std::size_t from = looked - std::min(looked, opening_.size() + longestMark);
    const std::size_t open = text_.find(opening_, from);
    const std::size_t close = open == std::string::npos ? open : text_.find('}', open);
    if (close != std::string::npos) {
        const std::size_t inside = open + opening_.size();
        mark_ = text_.substr(inside, close - inside);
        text_.resize(open);
    } else if (text_.size() > limit_) {
        text_.erase(limit_ / 2, text_.size() - limit_);
    }
}

} // namespace pinmora
