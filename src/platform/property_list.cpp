#include "platform/property_list.h"

#include <plist/plist.h>

#include <array>
#include <cstdint>
#include <utility>

#include "platform/input_file.h"
#include "platform/plist_weight.h"

namespace pinmora {
namespace {

std::optional<std::string> bytesOf(const std::filesystem::path &path) {
    InputFile file;
    if (file.open(path)) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, inputBlockSize> block{};
    while (bytes.size() <= largestPropertyList) {
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

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

plist_t parse(std::string_view bytes) {
    if (bytes.size() > largestPropertyList) {
        return nullptr;
    }
    if (bytes.starts_with(byteOrderMark)) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    // The library looks at the byte after the last.
    const std::string terminated(bytes);
    const auto size = static_cast<std::uint32_t>(terminated.size());
    plist_t node = nullptr;
    if (plist_is_binary(terminated.data(), size) != 0) {
        if (isHarmlessBinaryPlist(terminated)) {
            plist_from_bin(terminated.data(), size, &node);
        }
    } else if (isHarmlessXmlPlist(terminated)) {
        plist_from_xml(terminated.data(), size, &node);
    }
    return node;
}

std::optional<std::string> textOf(plist_t node) {
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING) {
        return std::nullopt;
    }
    const char *text = plist_get_string_ptr(node, nullptr);
    return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace

void PropertyList::Release::operator()(void *node) const {
    plist_free(node);
}

std::optional<PropertyList> PropertyList::fromBytes(std::string_view bytes) {
    PropertyList list(parse(bytes));
    const bool isDictionary = list.top_ && plist_get_node_type(list.top_.get()) == PLIST_DICT;
    return isDictionary ? std::optional(std::move(list)) : std::nullopt;
}

void *PropertyList::item(std::string_view key) const {
    return plist_dict_get_item(top_.get(), std::string(key).c_str());
}

std::optional<std::string> PropertyList::string(std::string_view key) const {
    return textOf(item(key));
}

std::optional<std::string> PropertyList::firstString(std::string_view key) const {
    const plist_t array = item(key);
    const bool isArray = array != nullptr && plist_get_node_type(array) == PLIST_ARRAY;
    return isArray && plist_array_get_size(array) > 0 ? textOf(plist_array_get_item(array, 0))
                                                      : std::nullopt;
}

std::optional<std::string> stringInPropertyList(const std::filesystem::path &file,
                                                std::string_view key) {
    const auto bytes = bytesOf(file);
    const auto list = bytes ? PropertyList::fromBytes(*bytes) : std::nullopt;
    return list ? list->string(key) : std::nullopt;
}

} // namespace pinmora
