#include "platform/property_list.h"

#include <plist/plist.h>

#include <array>
#include <cstdint>
#include <memory>

#include "platform/input_file.h"

namespace pinmora {
namespace {

constexpr std::size_t largestFile = std::size_t{1} << 20U;

struct Release {
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, Release>;

std::optional<std::string> bytesOf(const std::filesystem::path &path) {
    InputFile file;
    if (file.open(path)) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, inputBlockSize> block{};
    while (bytes.size() <= largestFile) {
        const auto part = file.read(block);
        if (!part) {
            return std::nullopt;
        }
        if (part->empty()) {
            return bytes;
        }
        bytes += *part;
    }
    return std::nullopt;
}

Node parse(const std::string &bytes) {
    const auto size = static_cast<std::uint32_t>(bytes.size());
    plist_t node = nullptr;
    if (plist_is_binary(bytes.data(), size) != 0) {
        plist_from_bin(bytes.data(), size, &node);
    } else {
        plist_from_xml(bytes.data(), size, &node);
    }
    return Node(node);
}

} // namespace

std::optional<std::string> stringInPropertyList(const std::filesystem::path &file,
                                                std::string_view key) {
    const auto bytes = bytesOf(file);
    const Node top = bytes ? parse(*bytes) : nullptr;
    if (!top || plist_get_node_type(top.get()) != PLIST_DICT) {
        return std::nullopt;
    }
    const plist_t value = plist_dict_get_item(top.get(), std::string(key).c_str());
    if (value == nullptr || plist_get_node_type(value) != PLIST_STRING) {
        return std::nullopt;
    }
    const char *text = plist_get_string_ptr(value, nullptr);
    return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace pinmora
