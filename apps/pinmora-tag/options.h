#pragma once

#include "saving/tool_settings.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pinmora::tag {

/// How logs are to be read.
enum class LogsChoice { Auto, Exact, Tolerant };

/// What the command line asks for.
struct Options {
    std::vector<std::filesystem::path> logs;  ///< --gps
    std::vector<std::filesystem::path> paths; ///< photos, folders of photos, logs
    std::filesystem::path out;                ///< where the copies go; "" only in a dry run
    std::chrono::seconds offset{0};           ///< signed; added to the photos' times
    std::optional<std::string> name;          ///< base of the copies' new names
    LogsChoice reading = LogsChoice::Auto;
    std::optional<ToolLane> lane; ///< --lane; without it the person's setting holds
    bool places = true;           ///< names of the new positions are looked up
    bool dryRun = false;
    bool json = false;
};

/// The person wants to read something instead, or has mistyped.
struct Usage {
    std::string text;
    bool wrong = false; ///< the text says what is wrong
};

/// Reads a command line (the program's name first). Arguments are bytes, as file names are.
std::variant<Options, Usage> parseCommandLine(std::vector<std::string> arguments);

} // namespace pinmora::tag
