#pragma once

#include "persistence/context.h"
#include "store/track.h"

#include <filesystem>
#include <string>

namespace pinmora::test {

/// A word for each track: number/log/reading/points.
inline std::string tracksIn(const Context &context) {
    std::string words;
    for (const track *one : context.records<track>()) {
        words += (words.empty() ? "" : " ") + std::to_string(one->track_id().value()) + "/" +
                 std::filesystem::path(one->log_path().string()).filename().native() + "/" +
                 one->log_reading().string() + "/" + std::to_string(one->points().size());
    }
    return words;
}

} // namespace pinmora::test
