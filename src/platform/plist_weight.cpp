#include "platform/plist_weight.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace pinmora {
namespace {

constexpr int mostLevels = 64;
constexpr std::int64_t mostBytes = std::int64_t{8} << 20U; ///< of the tree, about
constexpr std::int64_t bytesOfNode = 100;                  ///< in the library, about

/// Walks the objects of a binary list as they will be copied, and gives up where that is too much
/// or makes no sense.
/// The format: "bplist00", objects, a table of their offsets, and 32 bytes that say where it is.
class Walk {
public:
    explicit Walk(std::string_view bytes) : bytes_(bytes) {
        constexpr std::size_t trailerSize = 32;
        if (bytes.size() < trailerSize) {
            return;
        }
        const std::size_t trailer = bytes.size() - trailerSize;
        offsetSize_ = number(trailer + 6, 1).value_or(0);
        referenceSize_ = number(trailer + 7, 1).value_or(0);
        objects_ = number(trailer + 8, 8).value_or(0);
        top_ = number(trailer + 16, 8).value_or(0);
        table_ = number(trailer + 24, 8).value_or(0);
    }

    bool isHarmless() { return objects_ <= bytes_.size() && weigh(top_, 0); }

private:
    /// Of a whole number in bytes: 1, 2, 4, 8, or 0 where it is none of these.
    static constexpr std::uint64_t sizeOf(std::uint64_t power) {
        return power <= 3 ? std::uint64_t{1} << power : 0;
    }

    std::optional<std::uint64_t> number(std::uint64_t at, std::uint64_t size) const {
        const bool isSize = size == 1 || size == 2 || size == 4 || size == 8;
        if (!isSize || at > bytes_.size() || size > bytes_.size() - at) {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        for (const char byte : bytes_.substr(at, size)) {
            value = value << 8U | static_cast<unsigned char>(byte);
        }
        return value;
    }

    /// How much an object holds, and where that begins.
    struct Content {
        std::uint64_t count;
        std::uint64_t begin;
    };
    std::optional<Content> contentOf(std::uint64_t object, std::uint64_t marker) const {
        constexpr std::uint64_t isElsewhere = 0xF; // in a whole number that follows
        if ((marker & 0xFU) != isElsewhere) {
            return Content{marker & 0xFU, object + 1};
        }
        const auto head = number(object + 1, 1);
        const std::uint64_t size = head ? sizeOf(*head & 0xFU) : 0;
        const auto count = number(object + 2, size);
        return count && *count <= bytes_.size() ? std::optional(Content{*count, object + 2 + size})
                                                : std::nullopt;
    }

    bool weigh(std::uint64_t index, int level) {
        left_ -= bytesOfNode;
        if (level > mostLevels || left_ < 0 || index >= objects_) {
            return false;
        }
        const auto object = number(table_ + index * offsetSize_, offsetSize_);
        const auto marker = object ? number(*object, 1) : std::nullopt;
        if (!marker) {
            return false;
        }
        constexpr std::uint64_t data = 4, text = 5, wideText = 6, array = 0xA, set = 0xC, map = 0xD;
        const std::uint64_t kind = *marker >> 4U;
        const bool isContainer = kind == array || kind == set || kind == map;
        if (!isContainer && kind != data && kind != text && kind != wideText) {
            return true;
        }
        const auto content = contentOf(*object, *marker);
        if (content && isContainer) {
            return weighAll(content->begin, (kind == map ? 2 : 1) * content->count, level + 1);
        }
        left_ -= content ? 2 * static_cast<std::int64_t>(content->count) : 0;
        return content && left_ >= 0;
    }

    bool weighAll(std::uint64_t begin, std::uint64_t count, int level) {
        for (std::uint64_t i = 0; i < count; ++i) {
            const auto reference = number(begin + i * referenceSize_, referenceSize_);
            if (!reference || !weigh(*reference, level)) {
                return false;
            }
        }
        return true;
    }

    const std::string_view bytes_;
    std::uint64_t offsetSize_ = 0;
    std::uint64_t referenceSize_ = 0;
    std::uint64_t objects_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t table_ = 0;
    std::int64_t left_ = mostBytes;
};

} // namespace

bool isHarmlessBinaryPlist(std::string_view bytes) {
    return Walk(bytes).isHarmless();
}

/// More containers than this are in no list that is read here; nesting is at most their number.
bool isHarmlessXmlPlist(std::string_view bytes) {
    constexpr int mostContainers = 1'000;
    int containers = 0;
    for (const std::string_view tag : {"<array", "<dict"}) {
        for (auto at = bytes.find(tag); at != std::string_view::npos;
             at = bytes.find(tag, at + tag.size())) {
            ++containers;
        }
    }
    return containers <= mostContainers;
}

} // namespace pinmora
