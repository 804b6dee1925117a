#include "saving/metadata_tool.h"

#include "saving/copy_names.h"
#include "saving/long_values.h"

#include <algorithm>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace pinmora {

namespace {

constexpr const char *toolName = "exiftool";
/// What the tool appends to a file's name for its temporary file. It refuses to work when one is
/// there already.
constexpr const char *temporarySuffix = "_exiftool_tmp";

/// Clears away the temporary file that the tool leaves beside a copy when it is ended. One that was
/// there before is not ours: it may be all that is left of somebody's photo.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::filesystem::path &copy)
        : path_(copy.native() + temporarySuffix), wasThere_(isTaken(path_)) {}
    ~TemporaryFile() {
        if (!wasThere_) {
            std::error_code ignored;
            std::filesystem::remove(path_, ignored);
        }
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

private:
    std::filesystem::path path_;
    bool wasThere_;
};

/// Lets the owner write to a file as long as this object lives.
class Writable {
public:
    explicit Writable(const std::filesystem::path &file) : file_(file) {
        struct stat state {};
        if (::stat(file.c_str(), &state) == 0 && (state.st_mode & S_IWUSR) == 0) {
            mode_ = state.st_mode & ALLPERMS;
            ::chmod(file.c_str(), *mode_ | S_IWUSR);
        }
    }
    ~Writable() {
        if (mode_) {
            ::chmod(file_.c_str(), *mode_);
        }
    }
    Writable(const Writable &) = delete;
    Writable &operator=(const Writable &) = delete;

private:
    const std::filesystem::path &file_;
    std::optional<mode_t> mode_;
};

/// What changes when somebody writes to a file.
std::tuple<off_t, time_t, long> stateOf(const std::filesystem::path &file) {
    struct stat state {};
    if (::stat(file.c_str(), &state) != 0) {
        return {};
    }
    return {state.st_size, state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
}

void removeAll(std::string &text, const std::string &part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.erase(at, part.size());
    }
}

void append(std::string &line, std::string_view part) {
    if (!line.empty() && !part.empty()) {
        line += "; ";
    }
    line += part;
}

/// The tool's remarks as one line. Those of its interpreter (a locale that is not installed) are
/// no business of the photo's unless there is nothing else.
std::string remarks(std::string errors, const std::filesystem::path &copy, bool succeeded) {
    removeAll(errors, " - " + copy.native());
    std::string own;
    std::string all;
    std::string_view rest = errors;
    while (!rest.empty()) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        append(all, line);
        if (line.starts_with("Error") || line.starts_with("Warning")) {
            for (const std::string_view prefix : {"Error: ", "Warning: "}) {
                line.remove_prefix(line.starts_with(prefix) ? prefix.size() : 0);
            }
            append(own, line);
        }
    }
    return own.empty() && !succeeded ? all : own;
}

ToolResult resultOf(const ProcessOutcome &outcome, const std::filesystem::path &copy) {
    using Process = ProcessOutcome::End;
    using Tool = ToolResult::End;
    std::string words = remarks(outcome.errors, copy, outcome.succeeded());
    switch (outcome.end) {
    case Process::Exited:
        if (outcome.code == 0) {
            return {words.empty() ? Tool::Written : Tool::WrittenWithWarning, words};
        }
        if (words.empty()) {
            words = "ExifTool ended with status " + std::to_string(outcome.code);
        }
        return {Tool::NotWritten, words};
    case Process::Crashed:
        append(words, "ExifTool was ended by signal " + std::to_string(outcome.code));
        return {Tool::NotWritten, words};
    case Process::TimedOut:
        append(words, "ExifTool took too long and was ended");
        return {Tool::NotWritten, words};
    case Process::NotStarted:
        break;
    }
    return {Tool::NotWritten,
            "ExifTool could not be started: " + std::generic_category().message(outcome.code)};
}

bool isExecutable(const std::filesystem::path &file) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) && ::access(file.c_str(), X_OK) == 0;
}

} // namespace

std::optional<std::filesystem::path> MetadataTool::locate() const {
    std::filesystem::path bundled = resourceFolder_ / toolName;
    return isExecutable(bundled) ? bundled : findOnPath(toolName);
}

ToolResult MetadataTool::write(std::vector<std::string> arguments, const FileTimes &times) const {
    const auto tool = locate();
    if (!tool) {
        return {ToolResult::End::NotWritten, toolMissingMessage()};
    }
    const std::filesystem::path copy = arguments.back();
    LongValues longValues;
    if (const std::error_code error = longValues.moveOut(arguments)) {
        return {ToolResult::End::NotWritten,
                "A long text could not be handed to ExifTool: " + error.message()};
    }
    ToolResult result;
    {
        const Writable writable{copy};
        const TemporaryFile temporary{copy};
        const auto before = stateOf(copy);
        result = resultOf(runProcess(*tool, arguments, limits_), copy);
        if (result.end == ToolResult::End::NotWritten && stateOf(copy) != before) {
            result.end = ToolResult::End::HalfWritten;
        }
    }
    // Some file systems keep no times of ours; the copy is good all the same.
    [[maybe_unused]] const std::error_code ignored = writeFileTimes(copy, times);
    return result;
}

std::string toolMissingMessage() {
    return "ExifTool, which writes the data into the copies, is not installed. On Debian and "
           "Ubuntu, install it with: sudo apt install libimage-exiftool-perl";
}

} // namespace pinmora
