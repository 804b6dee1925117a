#include "persistence/text.h"

#include <cstring>
#include <utility>

namespace pinmora {

void Text::assign(std::string_view text) {
    if (text.size() <= capacity) {
        std::memcpy(inline_, text.data(), text.size());
        setTag(static_cast<std::uint8_t>(text.size()));
        return;
    }
    char *data = new char[text.size()];
    std::memcpy(data, text.data(), text.size());
    heap_ = {data, text.size()};
    setTag(heapTag);
}

Text::Text(const Text &other) : Text() {
    if (other.tag() == heapTag) {
        assign(other.view());
    } else {
        std::memcpy(inline_, other.inline_, sizeof inline_);
    }
}

Text::Text(Text &&other) noexcept {
    std::memcpy(inline_, other.inline_, sizeof inline_);
    other.setTag(noValueTag);
}

Text &Text::operator=(const Text &other) {
    Text copy(other);
    return *this = std::move(copy);
}

Text &Text::operator=(Text &&other) noexcept {
    if (this != &other) {
        release();
        std::memcpy(inline_, other.inline_, sizeof inline_);
        other.setTag(noValueTag);
    }
    return *this;
}

} // namespace pinmora
