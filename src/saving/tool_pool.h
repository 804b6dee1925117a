#pragma once

#include "saving/open_tool.h"

#include <memory>
#include <mutex>
#include <vector>

namespace pinmora {

/// Open ExifTool processes, each used by one thread at a time: as many as there have been threads
/// at once. Any thread.
class ToolPool {
public:
    ToolPool() = default;
    /// Ends them all; none may be in use.
    ~ToolPool();
    ToolPool(const ToolPool &) = delete;
    ToolPool &operator=(const ToolPool &) = delete;

    /// Has argument lines carried out by a tool that is free, or by a new one. One that did not
    /// answer is not used again.
    ProcessOutcome run(const std::filesystem::path &tool, const std::string &lines,
                       const ProcessLimits &limits);

private:
    std::unique_ptr<OpenTool> take();

    std::mutex mutex_;
    std::vector<std::unique_ptr<OpenTool>> idle_; ///< guarded by mutex_
};

} // namespace pinmora
