#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// More bytes than this are no property list that is read here.
inline constexpr std::size_t largestPropertyList = std::size_t{1} << 20U;

/// A property list (XML or binary) whose top is a dictionary. Texts are UTF-8, cut at the first
/// NUL.
class PropertyList {
public:
    /// Nothing where the bytes are no such list, or too many, or lists within lists without end.
    static std::optional<PropertyList> fromBytes(std::string_view bytes);

    /// The text under a key; nothing where there is no such key, or something else under it.
    std::optional<std::string> string(std::string_view key) const;
    /// The first entry of the array under a key, likewise.
    std::optional<std::string> firstString(std::string_view key) const;

private:
    struct Release {
        void operator()(void *node) const;
    };
    explicit PropertyList(void *top) : top_(top) {}
    void *item(std::string_view key) const;

    std::unique_ptr<void, Release> top_;
};

/// PropertyList::string() of a file; nothing also where the file is missing.
std::optional<std::string> stringInPropertyList(const std::filesystem::path &file,
                                                std::string_view key);

} // namespace pinmora
