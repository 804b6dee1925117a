#pragma once

#include "saving/metadata_tool.h"
#include "saving/photo_snapshot.h"
#include "saving/save_run.h"
#include "saving/tool_settings.h"

#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

namespace pinmora {

class image;

/// The way photos leave the library: new names, and copies with the data written into them. The
/// originals are only ever opened for reading.
class Saving {
public:
    /// `resourceFolder` is the program's own, where it may bring ExifTool along.
    explicit Saving(std::filesystem::path resourceFolder)
        : resourceFolder_(std::move(resourceFolder)) {}

    /// Whether the tool that writes the data is there; without it nothing is saved.
    bool hasTool() const { return MetadataTool{resourceFolder_}.locate().has_value(); }

    /// Copies one file into a folder under the given name, bytes, permissions, extended attributes
    /// and times; `file_exists`, and nothing done, when the name is taken.
    std::error_code copyTheFile(const std::filesystem::path &source,
                                const std::filesystem::path &location,
                                std::string_view fileName) const;

    /// Names photos "BASE_1", "BASE_2", ... in order; numbers whose name one of `all` has at that
    /// moment are skipped. All of `photos` are among `all`. Main thread.
    void updateThesePict(const std::vector<image *> &photos, const std::vector<image *> &all,
                         std::string_view base) const;

    /// Saves copies of the photos into a folder (see SaveRun). Any thread, which is held up until
    /// the last copy is done; the snapshots are all that is read.
    SaveOutcome save(const std::vector<PhotoSnapshot> &photos, const std::filesystem::path &folder,
                     const ToolSettings &settings, SaveObserver observer = {}) const;

private:
    std::filesystem::path resourceFolder_;
};

} // namespace pinmora
