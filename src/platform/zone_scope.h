#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The computer's time zone by a name that stays good: what TZ says where it is set, else the name
/// of the zone that the system is set to ("Europe/Berlin"), else the path of its zone file.
std::string computerZone();

/// Puts a time zone in force while it lives: TZ says the name, and LocalZone follows. For the main
/// thread, with no other one asking for local time.
class ZoneScope {
public:
    explicit ZoneScope(std::string_view zone);
    ZoneScope(const ZoneScope &) = delete;
    ZoneScope &operator=(const ZoneScope &) = delete;
    ~ZoneScope();

private:
    std::optional<std::string> before_; ///< TZ as it was; nothing when it was not set
};

} // namespace pinmora
