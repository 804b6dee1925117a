#include "gps/log_reading.h"

namespace pinmora {

const ReadingPolicy &policyOf(LogReading reading) {
    static constexpr ReadingPolicy exact{
        .name = "exact",
        .xmlNeedsDeclaration = true,
        .isoTimes = false,
        .sentenceStart = "$GP",
        .needsLineAfterStart = true,
        .anyTalker = false,
        .skipsUnusable = false,
        .datesFromBefore = false,
        .makesEmptyPoint = true,
    };
    static constexpr ReadingPolicy tolerant{
        .name = "tolerant",
        .xmlNeedsDeclaration = false,
        .isoTimes = true,
        .sentenceStart = "$",
        .needsLineAfterStart = false,
        .anyTalker = true,
        .skipsUnusable = true,
        .datesFromBefore = true,
        .makesEmptyPoint = false,
    };
    return reading == LogReading::Exact ? exact : tolerant;
}

} // namespace pinmora
