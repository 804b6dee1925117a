#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace pinmora {

/// A clock offset as it is set: the numbers are not normalised against each other.
struct ClockParts {
    bool plus = false; ///< it is added, not subtracted
    std::int32_t hours = 0;
    std::int32_t minutes = 0;
    std::int32_t seconds = 0;

    std::chrono::seconds signedOffset() const;
    /// Normalised.
    static ClockParts of(std::chrono::seconds signedOffset);

    friend bool operator==(const ClockParts &, const ClockParts &) = default;
};

/// The cameras that have a clock offset of their own. As text, a line each: "+2:0:0 make, model,
/// serial number".
class CameraOffsets {
public:
    using Map = std::map<std::string, ClockParts, std::less<>>;

    CameraOffsets() = default;
    /// Lines that are none of these are left out.
    explicit CameraOffsets(std::string_view text);

    std::string text() const;
    /// Null for a camera that has none.
    const ClockParts *find(std::string_view camera) const;
    void set(std::string_view camera, const ClockParts &parts);
    void erase(std::string_view camera);
    const Map &all() const { return offsets_; }

private:
    Map offsets_;
};

} // namespace pinmora
