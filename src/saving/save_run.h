#pragma once

#include "saving/metadata_tool.h"
#include "saving/photo_snapshot.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QThreadPool;

namespace pinmora {

/// What became of one photo of a run.
struct SavedPhoto {
    enum class Status {
        Saved,   ///< copied, and its data written
        Failed,  ///< not copied, or copied and left without its data
        Skipped, ///< its original was missing before the run began, and still is
        Stopped, ///< not begun: the run was stopped before
    };
    std::size_t index = 0;                        ///< among the photos of the run
    std::optional<std::filesystem::path> savedAs; ///< the copy, if there is one
    Status status = Status::Failed;
    std::string message;     ///< why it failed, or a remark of the tool's; else ""
    bool hasPosition = true; ///< one that was written; what the file had of its own does not count
};

struct SaveOutcome {
    std::string refusal;            ///< why nothing was begun; "" when the run took place
    std::vector<SavedPhoto> photos; ///< one for each, in order; none after a refusal
    /// Why the copies may not all be on the disk, though they were written; "" when they are.
    std::string notOnDisk;
};

/// All are called on the thread that runs the run; each may be empty.
struct SaveObserver {
    /// The photo of that index, of so many, is about to be copied.
    std::function<void(std::size_t index, std::size_t count)> begins = {};
    /// A copy stands under its real name.
    std::function<void(const std::filesystem::path &copy)> placed = {};
    /// The last photo is copied, or passed over; the tool may be working on some.
    std::function<void()> copied = {};
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
    class EndedPhotos;

    /// Copies one photo and sets the tool to work on it.
    void begin(std::size_t index, const std::vector<PhotoSnapshot> &photos, EndedPhotos &ended,
               QThreadPool &pool) const;

    const MetadataTool &tool_;
    std::filesystem::path folder_;
    SaveObserver observer_;
};

} // namespace pinmora
