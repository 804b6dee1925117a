#include "photos/file_names.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace pinmora {
namespace {

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

unsigned char lowered(char byte) {
    return static_cast<unsigned char>(byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
}

/// Takes the number off the front of a text; its digits without leading zeros.
std::string_view takeNumber(std::string_view &text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// Below 0, 0 or above 0, like std::string_view::compare().
int compareForPeople(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const std::string_view numberA = takeNumber(a);
            const std::string_view numberB = takeNumber(b);
            if (numberA.size() != numberB.size()) {
                return numberA.size() < numberB.size() ? -1 : 1;
            }
            if (const int order = numberA.compare(numberB)) {
                return order;
            }
            continue;
        }
        if (const int order = lowered(a.front()) - lowered(b.front())) {
            return order;
        }
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return static_cast<int>(b.empty()) - static_cast<int>(a.empty());
}

} // namespace

std::string_view pathExtension(std::string_view path) {
    const std::string_view name = path.substr(path.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

std::string absolutePath(std::string_view path) {
    if (path.empty()) {
        return {};
    }
    std::error_code error; // no current folder: what is left of the path is taken from the root
    const std::filesystem::path whole = std::filesystem::absolute(path, error);
    const std::filesystem::path parts = error ? std::filesystem::path(path) : whole;
    std::string result;
    for (const std::filesystem::path &part : parts.relative_path()) {
        if (!part.empty() && part != ".") {
            result += "/" + part.native();
        }
    }
    return result.empty() ? "/" : result;
}

FolderAndName splitPath(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return {slash == 0 ? "/" : std::string(path.substr(0, slash)),
            std::string(path.substr(slash + 1))};
}

bool namesInOrder(std::string_view a, std::string_view b) {
    const int order = compareForPeople(a, b);
    return order != 0 ? order < 0 : a < b;
}

} // namespace pinmora
