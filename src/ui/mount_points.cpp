#include "ui/mount_points.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <sstream>

namespace pinmora {
namespace {

/// Blanks, tabs, line feeds and backslashes in a name stand there as \ and three octal digits.
std::string unescaped(std::string_view text) {
    std::string bytes;
    const auto isOctal = [](char digit) { return digit >= '0' && digit <= '7'; };
    while (!text.empty()) {
        const std::string_view digits = text.substr(1, 3);
        if (text.front() == '\\' && digits.size() == 3 && digits[0] <= '3' &&
            std::all_of(digits.begin(), digits.end(), isOctal)) {
            const int byte = (digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0');
            bytes.push_back(static_cast<char>(byte));
            text.remove_prefix(4);
        } else {
            bytes.push_back(text.front());
            text.remove_prefix(1);
        }
    }
    return bytes;
}

bool isOffered(const std::string &path) {
    constexpr std::array folders{"/media/", "/run/media/", "/mnt/"};
    return path == "/mnt" ||
           std::any_of(folders.begin(), folders.end(),
                       [&path](const char *folder) { return path.starts_with(folder); });
}

} // namespace

std::vector<std::string> mountPointsIn(std::string_view table) {
    std::vector<std::string> points;
    std::istringstream lines{std::string(table)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string point;
        fields >> device >> point;
        point = unescaped(point);
        if (device.starts_with("/dev/") && isOffered(point) &&
            std::find(points.begin(), points.end(), point) == points.end()) {
            points.push_back(point); // once, even where one volume is mounted over another
        }
    }
    return points;
}

std::vector<std::string> mountPoints() {
    std::ifstream table("/proc/self/mounts", std::ios::binary);
    return mountPointsIn(std::string(std::istreambuf_iterator<char>(table), {}));
}

} // namespace pinmora
