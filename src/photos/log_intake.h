#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// Reads the GPS logs that come with photos: what the photo intake needs of whoever knows logs.
class LogIntake {
public:
    virtual ~LogIntake() = default;

    /// Whether a name or path has the extension of a GPS log.
    virtual bool isGPS(std::string_view path) const = 0;

    /// Reads a log that a person named; what is wrong with it is told to the person.
    virtual void readLog(const std::string &path) = 0;

    /// Reads a file that was found in a folder and has a log's extension. False: it is a text but
    /// no log, and nobody was told. True: it was taken, or the person was told why it was not.
    virtual bool readLogFoundByScan(const std::string &path) = 0;
};

} // namespace pinmora
