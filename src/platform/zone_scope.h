#pragma once

#include <mutex>
#include <optional>
#include <shared_mutex>
#include <string>
#include <string_view>

namespace pinmora {

/// The computer's time zone by a name that stays good: what TZ says where it is set, else the name
/// of the zone that the system is set to ("Europe/Berlin"), else the path of its zone file.
std::string computerZone();

/// Puts a time zone in force while it lives: TZ says the name, and LocalZone follows. For the main
/// thread, and one at a time. Other threads that ask for local time hold a ZoneHold meanwhile.
class ZoneScope {
public:
    explicit ZoneScope(std::string_view zone);
    ZoneScope(const ZoneScope &) = delete;
    ZoneScope &operator=(const ZoneScope &) = delete;
    ~ZoneScope();

private:
    std::unique_lock<std::shared_mutex> alone_;
    std::optional<std::string> before_; ///< TZ as it was; nothing when it was not set
};

/// Keeps the time zone in force what it is, for a thread that is not the main one: a ZoneScope
/// waits until it goes.
class ZoneHold {
public:
    ZoneHold();
    ZoneHold(const ZoneHold &) = delete;
    ZoneHold &operator=(const ZoneHold &) = delete;
    ~ZoneHold() = default;

private:
    std::shared_lock<std::shared_mutex> held_;
};

} // namespace pinmora
