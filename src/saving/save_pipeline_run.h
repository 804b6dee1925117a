#pragma once

#include "saving/name_wait.h"
#include "saving/save_pipeline.h"
#include "saving/save_run.h"
#include "saving/save_worker.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

namespace pinmora {

/// A run from the choice of the folder to its end.
struct SavePipeline::Run {
    std::filesystem::path folder;
    bool removesOldPositions = false;
    bool quits = false;
    std::unique_ptr<NameWait> names;
    std::vector<std::uint32_t> photos; ///< their serials: photos can go while the run goes on
    std::size_t moment = 0;            ///< of the snapshot
    SaveOutcome outcome;
    std::unique_ptr<SaveWorker> worker; ///< null: no photo has been begun
};

} // namespace pinmora
