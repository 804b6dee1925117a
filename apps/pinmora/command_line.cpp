#include "command_line.h"

#include "platform/translation.h"

#include <filesystem>
#include <system_error>

namespace pinmora::app {
namespace {

std::string usage() {
    return filled(translated("app", "Usage: %1"), {"pinmora [FILE|FOLDER]..."}) + "\n\n" +
           translated("app", "Opens Pinmora and loads photos, folders of photos and GPS logs.") +
           "\n" + translated("app", "A Pinmora that runs already gets them.") +
           "\n\n  --help     " + translated("app", "this text") + "\n  --version  " +
           translated("app", "the version") + "\n\n" +
           translated("app", "pinmora-tag does the same job without windows.") + "\n";
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string> &arguments) {
    CommandLine parsed;
    bool onlyFiles = false;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string &argument = arguments[i];
        if (argument.empty()) {
            continue;
        }
        if (onlyFiles || argument.size() < 2 || argument[0] != '-') {
            std::error_code noCurrentFolder;
            const auto path = std::filesystem::absolute(argument, noCurrentFolder);
            parsed.paths.push_back(noCurrentFolder ? argument : path.string());
        } else if (argument == "--") {
            onlyFiles = true;
        } else if (argument == "--help" || argument == "-h") {
            return {.paths = {}, .message = usage()};
        } else if (argument == "--version") {
            return {.paths = {}, .message = "pinmora " PINMORA_VERSION "\n"};
        } else {
            return {.paths = {},
                    .message = "pinmora: " +
                               filled(translated("app", "there is no option %1"), {argument}) +
                               "\n" + usage(),
                    .wrong = true};
        }
    }
    return parsed;
}

} // namespace pinmora::app
