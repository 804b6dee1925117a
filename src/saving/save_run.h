#pragma once

#include "saving/metadata_tool.h"
#include "saving/photo_snapshot.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// What became of one photo of a run.
struct SavedPhoto {
    enum class Status {
        Saved,  ///< copied, and its data written
        Failed, ///< not copied, or copied and left without its data
    };
    std::size_t index = 0;                        ///< among the photos of the run
    std::optional<std::filesystem::path> savedAs; ///< the copy, if there is one
    Status status = Status::Failed;
    std::string message; ///< why it failed, or a remark of the tool's; else ""
};

struct SaveOutcome {
    std::string refusal;            ///< why nothing was begun; "" when the run took place
    std::vector<SavedPhoto> photos; ///< one for each, in order; none after a refusal
};

/// All are called on the thread that runs the run; each may be empty.
struct SaveObserver {
    /// The photo of that index, of so many, is about to be copied.
    std::function<void(std::size_t index, std::size_t count)> begins = {};
    /// A photo is done with; photos end in any order.
    std::function<void(const SavedPhoto &)> ended = {};
    /// Asked before each photo: once yes, no further one is begun. What is copied is still tagged.
    std::function<bool()> stopped = {};
};

/// Copies photos into a folder and writes their data into the copies.
///
/// Copying goes on one photo after another while the tool works on the copies already made, in as
/// many processes as there are cores. A copy appears whole under a name that was free, or not at
/// all, whoever else writes into the folder. Where the program is killed, copies may be left that
/// the tool had not come to, and the ones that it was writing into.
class SaveRun {
public:
    /// The tool must outlive the run.
    SaveRun(const MetadataTool &tool, const std::filesystem::path &folder,
            SaveObserver observer = {});

    /// Returns when the last tool process has ended. Begins nothing when there is no tool.
    SaveOutcome run(const std::vector<PhotoSnapshot> &photos);

private:
    const MetadataTool &tool_;
    std::filesystem::path folder_;
    SaveObserver observer_;
};

} // namespace pinmora
