#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// A UTF-8 text or no value: what a text attribute holds. No value and "" are different things.
///
/// 24 bytes; texts of up to 23 bytes, which is every coordinate a logger writes, stand inside it.
/// A track of a million points holds three million of these, so std::optional<std::string> (40
/// bytes, 15 of them usable) would take half of a point's memory for nothing.
class Text {
public:
    Text() noexcept { setTag(noValueTag); }
    Text(std::nullopt_t) noexcept : Text() {}
    Text(std::string_view text) { assign(text); }
    Text(const std::string &text) : Text(std::string_view(text)) {}
    Text(const char *text) : Text(std::string_view(text)) {}
    Text(const std::optional<std::string> &text) : Text() {
        if (text) {
            assign(*text);
        }
    }

    Text(const Text &other);
    Text(Text &&other) noexcept;
    Text &operator=(const Text &other);
    Text &operator=(Text &&other) noexcept;
    ~Text() { release(); }

    bool hasValue() const noexcept { return tag() != noValueTag; }

    /// The text; "" when there is no value.
    std::string_view view() const noexcept {
        switch (tag()) {
        case noValueTag:
            return {};
        case heapTag:
            return {heap_.data, heap_.size};
        default:
            return {inline_, tag()};
        }
    }
    std::string string() const { return std::string(view()); }

    /// No value equals no value and nothing else.
    friend bool operator==(const Text &a, const Text &b) noexcept {
        return a.hasValue() == b.hasValue() && a.view() == b.view();
    }
    /// No value is not equal to any text.
    friend bool operator==(const Text &a, std::string_view b) noexcept {
        return a.hasValue() && a.view() == b;
    }
    friend bool operator==(const Text &a, const char *b) noexcept {
        return a == std::string_view(b);
    }

private:
    static constexpr std::size_t capacity = 23;
    static constexpr std::uint8_t heapTag = 0xfe;
    static constexpr std::uint8_t noValueTag = 0xff;

    struct Heap {
        char *data;
        std::size_t size;
    };

    std::uint8_t tag() const noexcept { return static_cast<std::uint8_t>(inline_[capacity]); }
    void setTag(std::uint8_t tag) noexcept { inline_[capacity] = static_cast<char>(tag); }
    void assign(std::string_view text);
    void release() noexcept {
        if (tag() == heapTag) {
            delete[] heap_.data;
        }
    }

    union {
        Heap heap_;
        char inline_[capacity + 1]; ///< the last byte is the tag: length inside, heap, or no value
    };
};

static_assert(sizeof(Text) == 24);

} // namespace pinmora
