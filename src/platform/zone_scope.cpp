#include "platform/zone_scope.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace pinmora {

namespace {

constexpr const char *zoneFile = "/etc/localtime";

void putInForce(const char *zone) {
    if (zone) {
        ::setenv("TZ", zone, 1);
    } else {
        ::unsetenv("TZ");
    }
    ::tzset();
}

std::shared_mutex &zoneMutex() {
    static std::shared_mutex mutex;
    return mutex;
}

} // namespace

std::string computerZone() {
    if (const char *zone = std::getenv("TZ")) {
        return zone;
    }
    constexpr std::string_view folder = "/zoneinfo/";
    std::error_code none;
    const std::string target = std::filesystem::read_symlink(zoneFile, none).native();
    if (const std::size_t at = target.find(folder); at != std::string::npos) {
        return target.substr(at + folder.size());
    }
    std::string name;
    std::getline(std::ifstream("/etc/timezone") >> std::ws, name);
    if (!name.empty()) {
        return name;
    }
    // Without that file, UTC is what the C library takes.
    return std::filesystem::exists(zoneFile, none) ? std::string(":") + zoneFile : "UTC0";
}

ZoneScope::ZoneScope(std::string_view zone) : alone_(zoneMutex()) {
    if (const char *before = std::getenv("TZ")) {
        before_ = before;
    }
    putInForce(std::string(zone).c_str());
}

ZoneScope::~ZoneScope() {
    putInForce(before_ ? before_->c_str() : nullptr);
}

ZoneHold::ZoneHold() : held_(zoneMutex()) {}

} // namespace pinmora
