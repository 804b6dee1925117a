#include "platform/instance_message.h"

#include <algorithm>
#include <cstddef>

namespace pinmora {
namespace {

// The word below, the number of the bytes that follow as eight hexadecimal digits, then each path
// with a NUL behind it.
constexpr std::string_view word = "pinmora-open-1 ";
constexpr std::size_t digitCount = 8;
constexpr std::size_t headSize = word.size() + digitCount;
/// More than a command line holds on Linux (2 MiB).
constexpr std::size_t largestBody = std::size_t{4} << 20U;

std::string hexadecimal(std::size_t number) {
    std::string digits(digitCount, '0');
    for (std::size_t i = digitCount; i-- > 0; number /= 16) {
        digits[i] = "0123456789abcdef"[number % 16];
    }
    return digits;
}

std::optional<std::size_t> bodySize(std::string_view digits) {
    std::size_t size = 0;
    for (const char digit : digits) {
        const auto value = std::string_view("0123456789abcdef").find(digit);
        if (value == std::string_view::npos) {
            return std::nullopt;
        }
        size = size * 16 + value;
    }
    return size <= largestBody ? std::optional(size) : std::nullopt;
}

std::optional<std::vector<std::string>> pathsIn(std::string_view body) {
    std::vector<std::string> paths;
    while (!body.empty()) {
        const auto end = body.find('\0');
        if (end == std::string_view::npos || body.front() != '/') {
            return std::nullopt;
        }
        paths.emplace_back(body.substr(0, end));
        body.remove_prefix(end + 1);
    }
    return paths;
}

} // namespace

std::optional<std::string> instanceMessage(const std::vector<std::string> &paths) {
    std::string body;
    for (const std::string &path : paths) {
        if (!path.starts_with('/') || path.find('\0') != std::string::npos) {
            return std::nullopt;
        }
        body.append(path).push_back('\0');
    }
    if (body.size() > largestBody) {
        return std::nullopt;
    }
    return std::string(word) + hexadecimal(body.size()) + body;
}

InstanceReading readInstanceMessage(std::string_view bytes) {
    const std::size_t known = std::min(bytes.size(), word.size());
    if (bytes.substr(0, known) != word.substr(0, known)) {
        return {true, std::nullopt};
    }
    if (bytes.size() < headSize) {
        return {};
    }
    const auto size = bodySize(bytes.substr(word.size(), digitCount));
    const std::string_view body = bytes.substr(headSize);
    if (!size || body.size() > *size) {
        return {true, std::nullopt};
    }
    if (body.size() < *size) {
        return {};
    }
    auto paths = pathsIn(body);
    return {!paths, std::move(paths)};
}

} // namespace pinmora
