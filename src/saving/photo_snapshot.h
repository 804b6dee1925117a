#pragma once

#include <filesystem>
#include <string>

namespace pinmora {

class image;

/// What saving needs to know of a photo, taken from its record before anything runs beside the
/// main thread. Texts are UTF-8; "" stands for no value too.
struct PhotoSnapshot {
    std::filesystem::path source; ///< the original; only ever opened for reading
    bool wasMissing = false;      ///< already when the run was begun: no failure of the run's
    std::string imageName;        ///< the copy's name without extension
    std::string extension;        ///< without the dot
    std::string description;
    std::string comments;
    std::string lat, lon; ///< signed decimal degrees
    std::string latRef;   ///< "N" or "S"
    std::string lonRef;   ///< "E" or "W"
    std::string mapDatum;
    std::string alt; ///< metres, negative below sea level
    std::string country;
    std::string prov; ///< province or state
    std::string city;
    /// A photo without a position is to lose the one that its file carries.
    bool removeOldPosition = false;
};

PhotoSnapshot snapshotOf(const image &photo);

bool hasPosition(const PhotoSnapshot &photo);

} // namespace pinmora
