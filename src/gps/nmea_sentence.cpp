#include "gps/nmea_sentence.h"

#include "gps/nmea_values.h"

#include <algorithm>

namespace pinmora {

namespace {

constexpr std::size_t nameLength = 6; // "$", talker, type

SentenceType typeNamed(std::string_view type) {
    if (type == "RMC") {
        return SentenceType::Rmc;
    }
    if (type == "GGA") {
        return SentenceType::Gga;
    }
    if (type == "GSA") {
        return SentenceType::Gsa;
    }
    return type == "ZDA" ? SentenceType::Zda : SentenceType::Other;
}

SentenceType typeOf(std::string_view line, const ReadingPolicy &policy) {
    // "$P" begins the makers' own sentences, which may end like others: $PGRMC.
    if (line.size() < nameLength || line[0] != '$' || line[1] == 'P' ||
        !(policy.anyTalker || line.substr(1, 2) == "GP")) {
        return SentenceType::Other;
    }
    return typeNamed(line.substr(3, 3));
}

int hexDigit(char c) {
    constexpr std::string_view values = "0123456789ABCDEF";
    const char upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    const std::size_t value = values.find(upper);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

/// Whether a text is an angle of `degreeDigits` digits of degrees, two of minutes and perhaps
/// decimals, up to `mostDegrees`.
bool isAngle(std::string_view text, std::size_t degreeDigits, int mostDegrees) {
    const std::size_t whole = degreeDigits + 2;
    if (text.size() < whole || (text.size() > whole && text[whole] != '.')) {
        return false;
    }
    int degrees = 0;
    bool hasMinutes = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at == whole) {
            continue; // the point
        }
        if (!isDigit(text[at])) {
            return false;
        }
        if (at < degreeDigits) {
            degrees = degrees * 10 + (text[at] - '0');
        } else {
            hasMinutes = hasMinutes || text[at] != '0';
        }
    }
    return text[degreeDigits] < '6' &&
           (hasMinutes ? degrees < mostDegrees : degrees <= mostDegrees);
}

bool isOneOf(std::string_view text, std::string_view a, std::string_view b) {
    return text == a || text == b;
}

} // namespace

const FixFields &fixFieldsOf(SentenceType type) {
    static constexpr FixFields rmc{1, 3, 4, 5, 6, 2, "V"};
    static constexpr FixFields gga{1, 2, 3, 4, 5, 6, "0"};
    return type == SentenceType::Rmc ? rmc : gga;
}

bool isPositionSentence(std::string_view line) {
    const SentenceType type = typeOf(line, policyOf(LogReading::Tolerant));
    return type == SentenceType::Rmc || type == SentenceType::Gga;
}

void NmeaSentence::take(std::string_view line, const ReadingPolicy &policy) {
    line_ = line;
    type_ = typeOf(line, policy);
    fields_.clear();
    if (type_ == SentenceType::Other) {
        return;
    }
    const std::string_view body = policy.skipsUnusable ? line.substr(0, line.find('*')) : line;
    const std::size_t wanted = type_ == SentenceType::Gsa ? gsaFieldCount : fixFieldCount;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < body.size(); ++at) {
        if (body[at] == ',') {
            fields_.push_back(body.substr(begin, at - begin));
            begin = at + 1;
            if (fields_.size() == wanted) {
                return;
            }
        }
    }
    fields_.push_back(body.substr(begin));
}

bool NmeaSentence::isSound() const {
    const std::size_t star = line_.find('*');
    if (star == std::string_view::npos) {
        return true;
    }
    const std::string_view checksum = line_.substr(star + 1, 2);
    unsigned sum = 0;
    for (const char c : line_.substr(1, star - 1)) {
        sum ^= static_cast<unsigned char>(c);
    }
    return checksum.size() == 2 && hexDigit(checksum[0]) == static_cast<int>(sum >> 4U) &&
           hexDigit(checksum[1]) == static_cast<int>(sum & 15U);
}

bool NmeaSentence::hasUsableFix() const {
    if (fieldCount() < fixFieldCount || field(0).size() != nameLength) {
        return false;
    }
    const FixFields &where = fixFieldsOf(type_);
    const std::string_view time = field(where.time);
    return field(where.status) != where.noFix && isAngle(field(where.latitude), 2, 90) &&
           isAngle(field(where.longitude), 3, 180) &&
           isOneOf(field(where.latitudePart), "N", "S") &&
           isOneOf(field(where.longitudePart), "E", "W") && time.size() >= 6 &&
           std::all_of(time.begin(), time.begin() + 6, isDigit) && makeTimeOfDay(time).has_value();
}

} // namespace pinmora
