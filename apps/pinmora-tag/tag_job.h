#pragma once

#include "options.h"
#include "report.h"
#include "surroundings.h"

namespace pinmora::tag {

/// Does the whole job in memory: loads photos and logs, places the photos, and saves tagged copies
/// (unless it is a dry run). Blocks until the last copy is tagged.
Report runTagJob(const Options &options, const Surroundings &surroundings);

} // namespace pinmora::tag
