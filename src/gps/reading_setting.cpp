#include "gps/reading_setting.h"

#include "platform/defaults.h"

namespace pinmora {

LogReading logReadingFrom(const Defaults &defaults) {
    return defaults.text(logReadingKey) == policyOf(LogReading::Tolerant).name
               ? LogReading::Tolerant
               : LogReading::Exact;
}

} // namespace pinmora
