#include "saving/metadata_tool.h"

#include "platform/translation.h"
#include "saving/argument_lines.h"
#include "saving/copy_names.h"
#include "saving/long_values.h"
#include "saving/tool_pool.h"
#include "saving/tool_words.h"

#include <algorithm>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

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

    const std::filesystem::path &path() const { return path_; }

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
using FileState = std::tuple<off_t, time_t, long>;

FileState stateOf(const std::filesystem::path &file) {
    struct stat state {};
    if (::stat(file.c_str(), &state) != 0) {
        return {};
    }
    return {state.st_size, state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
}

/// Whether the tool is at work on a copy: it writes a new file beside it first, then into it.
class Progress {
public:
    Progress(const std::filesystem::path &copy, const std::filesystem::path &temporary)
        : copy_(copy), temporary_(temporary), last_(now()) {}

    bool hasGotOn() { return std::exchange(last_, now()) != last_; }

private:
    std::pair<FileState, FileState> now() const { return {stateOf(copy_), stateOf(temporary_)}; }

    const std::filesystem::path &copy_;
    const std::filesystem::path &temporary_;
    std::pair<FileState, FileState> last_;
};

ToolResult::End endOf(const ProcessOutcome &outcome, bool copyChanged, bool remarked) {
    using Process = ProcessOutcome::End;
    using Tool = ToolResult::End;
    if (outcome.succeeded()) {
        return remarked ? Tool::WrittenWithWarning : Tool::Written;
    }
    const bool died = outcome.end == Process::Crashed || outcome.end == Process::TimedOut;
    return died || copyChanged ? Tool::Doubtful : Tool::NotWritten;
}

/// Whether an open tool can be handed an argument, and a process of its own too.
bool fitsEverywhere(const std::string &argument) {
    return LongValues::fitsOnCommandLine(argument) && fitsOnALine(argument);
}

bool isExecutable(const std::filesystem::path &file) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(file, ignored) && ::access(file.c_str(), X_OK) == 0;
}

} // namespace

MetadataTool::MetadataTool(std::filesystem::path resourceFolder, ToolSettings settings)
    : resourceFolder_(std::move(resourceFolder)), settings_(settings),
      pool_(settings.lane == ToolLane::Shared ? std::make_unique<ToolPool>() : nullptr) {}

MetadataTool::~MetadataTool() = default;

std::optional<std::filesystem::path> MetadataTool::locate() const {
    std::filesystem::path bundled = resourceFolder_ / toolName;
    return isExecutable(bundled) ? bundled : findOnPath(toolName);
}

ProcessOutcome MetadataTool::carryOut(const std::filesystem::path &tool,
                                      const std::vector<std::string> &arguments,
                                      const ProcessLimits &limits) const {
    // Of what does not fit only a path with a line end in it can be left.
    const bool handsOver = pool_ && std::all_of(arguments.begin(), arguments.end(), fitsOnALine);
    return handsOver ? pool_->run(tool, argumentLines(arguments), limits)
                     : runProcess(tool, arguments, limits);
}

ToolResult MetadataTool::write(std::vector<std::string> arguments, const FileTimes &times) const {
    const auto tool = locate();
    if (!tool) {
        return {ToolResult::End::NotWritten, toolMissingMessage()};
    }
    const std::filesystem::path copy = arguments.back();
    LongValues longValues;
    if (const std::error_code error =
            longValues.moveOut(arguments, pool_ ? fitsEverywhere : LongValues::fitsOnCommandLine)) {
        return {ToolResult::End::NotWritten,
                filled(translated("saving", "A long text could not be handed to ExifTool: %1"),
                       {error.message()})};
    }
    ToolResult result;
    {
        const Writable writable{copy};
        const TemporaryFile temporary{copy};
        const FileState before = stateOf(copy);
        Progress progress{copy, temporary.path()};
        const ProcessOutcome outcome =
            carryOut(*tool, arguments, {.patience = settings_.patience, .hasGotOn = [&progress] {
                                            return progress.hasGotOn();
                                        }});
        result.words = toolWords(outcome, copy);
        result.end = endOf(outcome, stateOf(copy) != before, !result.words.empty());
    }
    // Some file systems keep no times of ours; the copy is good all the same.
    [[maybe_unused]] const std::error_code ignored = writeFileTimes(copy, times);
    return result;
}

std::string toolMissingMessage() {
    return translated("saving",
                      "ExifTool, which writes the data into the copies, is not installed. On "
                      "Debian and Ubuntu, install it with: sudo apt install "
                      "libimage-exiftool-perl");
}

} // namespace pinmora
