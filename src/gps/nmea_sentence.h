#pragma once

#include "gps/log_reading.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace pinmora {

enum class SentenceType {
    Other,
    Rmc, ///< position, date and time
    Gga, ///< position, altitude and time
    Gsa, ///< satellites in use
    Zda, ///< date and time
};

/// Where a position sentence has what a point is made of, as numbers of its fields.
struct FixFields {
    std::size_t time;
    std::size_t latitude;
    std::size_t latitudePart;
    std::size_t longitude;
    std::size_t longitudePart;
    std::size_t status;
    std::string_view noFix; ///< what `status` is without a fix
};

/// The fields of an RMC, else those of a GGA sentence. Both need ten fields, the last of which is
/// the date, or the altitude.
const FixFields &fixFieldsOf(SentenceType type);
inline constexpr std::size_t fixFieldCount = 10;
inline constexpr std::size_t rmcDateField = 9;
inline constexpr std::size_t ggaAltitudeField = 9;
inline constexpr std::size_t gsaFieldCount = 18;

/// Whether a line is an RMC or GGA sentence, of whichever talker.
bool isPositionSentence(std::string_view line);

/// One line of a log, taken apart at the commas. Field 0 is the sentence's name ("$GPRMC").
class NmeaSentence {
public:
    /// Looks at a line, which must stay. Lines that the reading does not know are of type Other
    /// and get no fields, the others as many as anyone asks for. A reading that looks at checksums
    /// finds none in the fields.
    void take(std::string_view line, const ReadingPolicy &policy);

    SentenceType type() const { return type_; }
    /// Up to gsaFieldCount for a GSA sentence, up to fixFieldCount for the others.
    std::size_t fieldCount() const { return fields_.size(); }
    std::string_view field(std::size_t index) const { return fields_[index]; }

    /// Whether the sentence is undamaged as far as can be told: it has no checksum, or the right
    /// one.
    bool isSound() const;
    /// Whether an RMC or GGA sentence tells a position on Earth and a time of day.
    bool hasUsableFix() const;

private:
    std::string_view line_;
    SentenceType type_ = SentenceType::Other;
    std::vector<std::string_view> fields_;
};

} // namespace pinmora
