#include "gps/text_log.h"

#include "gps/log_head.h"
#include "gps/nmea_reader.h"

#include <algorithm>
#include <array>

namespace pinmora {

namespace {

constexpr std::array formatTable{
    TextLogFormat{ImportFacts::Format::Nmea, hasSentence, readNmeaLog},
};

} // namespace

TextLogFormats textLogFormats() {
    return formatTable;
}

const TextLogFormat &formatOf(std::string_view text, TextLogFormats formats) {
    const std::string_view head = text.substr(0, logHeadSize);
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [head](const TextLogFormat &one) { return one.begins(head); });
    return found == formats.end() ? formats.back() : *found;
}

const TextLogFormat &formatOf(ImportFacts::Format number, TextLogFormats formats) {
    const auto found =
        std::find_if(formats.begin(), formats.end(),
                     [number](const TextLogFormat &one) { return one.number == number; });
    return found == formats.end() ? formats.back() : *found;
}

} // namespace pinmora
