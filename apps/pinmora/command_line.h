#pragma once

#include <string>
#include <vector>

namespace pinmora::app {

/// What the command line asks for.
struct CommandLine {
    std::vector<std::string> paths; ///< photos, folders and logs to load; absolute, bytes
    std::string message;            ///< to be printed instead of starting; "" otherwise
    bool wrong = false;             ///< the message says what is wrong
};

/// Reads a command line (the program's name first). Arguments are bytes, as file names are.
CommandLine parseCommandLine(const std::vector<std::string> &arguments);

} // namespace pinmora::app
