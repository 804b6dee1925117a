#pragma once

#include "log_list.h"
#include "memory_library.h"
#include "options.h"
#include "surroundings.h"

#include "store/offset.h"

#include <vector>

namespace pinmora {
class image;
}

namespace pinmora::tag {

/// What was loaded for the command, ready to be matched.
struct Loaded {
    std::vector<image *> photos; ///< in the order of loading
    bool hadLogs = false;        ///< a log was named or found, readable or not
    bool trouble = false;        ///< something that was named or found could not be used
};

/// Loads photos and logs into the library, the logs under the reading that the options and the
/// person's setting choose, and tells what could not be used.
Loaded loadEverything(MemoryLibrary &library, const offset &clockOffset, const Options &options,
                      const Surroundings &surroundings);

} // namespace pinmora::tag
