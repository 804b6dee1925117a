#include "saving/tool_pool.h"

#include <utility>

namespace pinmora {

ToolPool::~ToolPool() {
    for (const auto &tool : idle_) {
        tool->dismiss(); // so that they end side by side
    }
}

ProcessOutcome ToolPool::run(const std::filesystem::path &tool, const std::string &lines,
                             const ProcessLimits &limits) {
    std::unique_ptr<OpenTool> open = take();
    if (!open) {
        open = std::make_unique<OpenTool>();
        if (const int error = open->start(tool)) {
            ProcessOutcome outcome;
            outcome.code = error;
            return outcome;
        }
    }
    ProcessOutcome outcome = open->run(lines, limits);
    if (open->isReady()) {
        const std::lock_guard lock{mutex_};
        idle_.push_back(std::move(open));
    }
    return outcome;
}

std::unique_ptr<OpenTool> ToolPool::take() {
    const std::lock_guard lock{mutex_};
    while (!idle_.empty()) {
        std::unique_ptr<OpenTool> tool = std::move(idle_.back());
        idle_.pop_back();
        if (tool->isReady()) {
            return tool;
        }
    }
    return nullptr;
}

} // namespace pinmora
