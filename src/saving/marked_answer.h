#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// What a tool says on one stream up to the mark "{NAME...}" that ends its answer. Of more than the
/// limit only the beginning and the latest part are kept.
class MarkedAnswer {
public:
    /// The mark begins with "{" and `name`. The limit must be well above the length of a mark.
    MarkedAnswer(const std::string &name, std::size_t limit)
        : opening_('{' + name), limit_(limit) {}

    void take(std::string_view bytes);

    /// What stands in the mark behind its name; nothing before it has come.
    const std::optional<std::string> &mark() const { return mark_; }

    /// What was said before the mark.
    const std::string &text() const { return text_; }

private:
    std::string opening_;
    std::size_t limit_;
    std::string text_;
    std::optional<std::string> mark_;
};

} // namespace pinmora
