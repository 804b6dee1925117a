#pragma once

#include "photos/file_search.h"
#include "platform/background_job.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// Looks for files in a folder without holding up the main thread, on which it lives.
class FolderSearch {
public:
    using Found = std::vector<std::optional<std::string>>;

    /// `turn` is told whose turn it is, no more often than a person can read; `ended` what was
    /// found, and must not destroy the search.
    FolderSearch(std::function<void(const std::string &folder)> turn,
                 std::function<void(const Found &)> ended);
    ~FolderSearch();
    FolderSearch(const FolderSearch &) = delete;
    FolderSearch &operator=(const FolderSearch &) = delete;

    /// None may have been started before.
    void start(const std::string &folder, std::vector<WantedFile> wanted);
    /// Nobody is told of anything any more. The present folder may still be read.
    void stop();
    bool isRunning() const;

private:
    struct News;

    const std::function<void(const Found &)> ended_;
    const std::shared_ptr<News> news_; ///< shared with the thread that searches
    BackgroundJob job_;
};

} // namespace pinmora
